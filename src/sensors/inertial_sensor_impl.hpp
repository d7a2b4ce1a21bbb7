#ifndef VARO_SENSORS_INERTIAL_SENSOR_IMPL_HPP
#define VARO_SENSORS_INERTIAL_SENSOR_IMPL_HPP

#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

inline constexpr char inertialSensorErrMsg[] = "Could not query InertialSensor as it seems not correctly constructed.";

class InertialSensorImpl : public KeyedSensorImpl<Sensor::Inertial, 28> {
public:
    using KeyedSensorImpl::KeyedSensorImpl;
};

}  // namespace Sim

#endif
