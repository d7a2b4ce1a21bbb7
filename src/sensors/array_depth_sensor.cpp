#include "sim/array_depth_sensor.hpp"

#include "core/handle.hpp"
#include "sensors/array_depth_sensor_impl.hpp"

namespace Sim {

ArrayDepthSensor::ArrayDepthSensor() = default;

ArrayDepthSensor::~ArrayDepthSensor()
{
    delete _impl;
}

int ArrayDepthSensor::bufferSize() const
{
    return implOf<ArrayDepthSensorImpl>(_impl, arrayDepthSensorErrMsg).bufferSize();
}

int ArrayDepthSensor::width() const
{
    return implOf<ArrayDepthSensorImpl>(_impl, arrayDepthSensorErrMsg).width();
}

int ArrayDepthSensor::height() const
{
    return implOf<ArrayDepthSensorImpl>(_impl, arrayDepthSensorErrMsg).height();
}

}  // namespace Sim
