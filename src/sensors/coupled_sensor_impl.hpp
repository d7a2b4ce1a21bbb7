#ifndef VARO_SENSORS_COUPLED_SENSOR_IMPL_HPP
#define VARO_SENSORS_COUPLED_SENSOR_IMPL_HPP

#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

inline constexpr char coupledSensorErrMsg[] = "Could not query CoupledSensor as it seems not correctly constructed.";

class CoupledSensorImpl : public KeyedSensorImpl<Sensor::Coupled> {
public:
    using KeyedSensorImpl::KeyedSensorImpl;
};

}  // namespace Sim

#endif
