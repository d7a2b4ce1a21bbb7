#include "sim/array_depth_sensor.hpp"

#include "core/handle.hpp"
#include "core/model_impl.hpp"
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

ArrayDepthSensor const* Model::arrayDepthSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<ArrayDepthSensor>(name);
}

std::vector<ArrayDepthSensor const*> Model::arrayDepthSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<ArrayDepthSensor>());
}

}  // namespace Sim
