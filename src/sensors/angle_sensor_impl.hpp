#ifndef VARO_SENSORS_ANGLE_SENSOR_IMPL_HPP
#define VARO_SENSORS_ANGLE_SENSOR_IMPL_HPP

#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

inline constexpr char angleSensorErrMsg[] = "Could not query AngleSensor as it seems not correctly constructed.";

class AngleSensorImpl : public KeyedSensorImpl<Sensor::Angle> {
public:
    using KeyedSensorImpl::KeyedSensorImpl;
};

}  // namespace Sim

#endif
