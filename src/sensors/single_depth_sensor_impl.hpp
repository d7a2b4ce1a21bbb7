#ifndef VARO_SENSORS_SINGLE_DEPTH_SENSOR_IMPL_HPP
#define VARO_SENSORS_SINGLE_DEPTH_SENSOR_IMPL_HPP

#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

inline constexpr char singleDepthSensorErrMsg[] =
    "Could not query SingleDepthSensor as it seems not correctly constructed.";

class SingleDepthSensorImpl : public KeyedSensorImpl<Sensor::SingleDepth> {
public:
    using KeyedSensorImpl::KeyedSensorImpl;
};

}  // namespace Sim

#endif
