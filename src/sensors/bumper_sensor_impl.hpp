#ifndef VARO_SENSORS_BUMPER_SENSOR_IMPL_HPP
#define VARO_SENSORS_BUMPER_SENSOR_IMPL_HPP

#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

inline constexpr char bumperSensorErrMsg[] = "Could not query BumperSensor as it seems not correctly constructed.";

class BumperSensorImpl : public KeyedSensorImpl<Sensor::Bumper> {
public:
    using KeyedSensorImpl::KeyedSensorImpl;
};

}  // namespace Sim

#endif
