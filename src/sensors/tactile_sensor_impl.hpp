#ifndef VARO_SENSORS_TACTILE_SENSOR_IMPL_HPP
#define VARO_SENSORS_TACTILE_SENSOR_IMPL_HPP

#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

inline constexpr char tactileSensorErrMsg[] = "Could not query TactileSensor as it seems not correctly constructed.";

class TactileSensorImpl : public KeyedSensorImpl<Sensor::Tactile> {
public:
    using KeyedSensorImpl::KeyedSensorImpl;
};

}  // namespace Sim

#endif
