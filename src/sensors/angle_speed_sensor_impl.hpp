#ifndef VARO_SENSORS_ANGLE_SPEED_SENSOR_IMPL_HPP
#define VARO_SENSORS_ANGLE_SPEED_SENSOR_IMPL_HPP

#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

inline constexpr char angleSpeedSensorErrMsg[] =
    "Could not query AngleSpeedSensor as it seems not correctly constructed.";

class AngleSpeedSensorImpl : public KeyedSensorImpl<Sensor::AngleSpeed> {
public:
    using KeyedSensorImpl::KeyedSensorImpl;
};

}  // namespace Sim

#endif
