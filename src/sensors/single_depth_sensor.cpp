#include "sim/single_depth_sensor.hpp"

#include "core/handle.hpp"
#include "sensors/single_depth_sensor_impl.hpp"

namespace Sim {

SingleDepthSensor::SingleDepthSensor() = default;

SingleDepthSensor::~SingleDepthSensor()
{
    delete _impl;
}

int SingleDepthSensor::bufferSize() const
{
    return implOf<SingleDepthSensorImpl>(_impl, singleDepthSensorErrMsg).bufferSize();
}

}  // namespace Sim
