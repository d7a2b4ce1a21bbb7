#ifndef VARO_CORE_KIND_OF_HPP
#define VARO_CORE_KIND_OF_HPP

#include <tuple>
#include <type_traits>

#include "sim/model.hpp"

namespace Sim {

/// The row of a class of devices in the tables of kinds.
template <class Device>
constexpr auto kindOf()
{
    if constexpr (std::is_base_of_v<Sensor, Device>) {
        return std::get<SensorKind<Device>>(sensorKinds);
    } else {
        return std::get<ActuatorKind<Device>>(actuatorKinds);
    }
}

}  // namespace Sim

#endif
