#ifndef VARO_SENSORS_WHEEL_VELOCITY_SENSOR_IMPL_HPP
#define VARO_SENSORS_WHEEL_VELOCITY_SENSOR_IMPL_HPP

#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

inline constexpr char wheelVelocitySensorErrMsg[] =
    "Could not query WheelVelocitySensor as it seems not correctly constructed.";

class WheelVelocitySensorImpl : public KeyedSensorImpl<Sensor::WheelVelocity> {
public:
    using KeyedSensorImpl::KeyedSensorImpl;
};

}  // namespace Sim

#endif
