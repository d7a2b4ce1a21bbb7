#include "sim/single_depth_sensor.hpp"

#include "core/handle.hpp"
#include "core/model_impl.hpp"
#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

constexpr char singleDepthSensorErrMsg[] = "Could not query SingleDepthSensor as it seems not correctly constructed.";

SingleDepthSensor::SingleDepthSensor() = default;

SingleDepthSensor::~SingleDepthSensor()
{
    delete _impl;
}

int SingleDepthSensor::bufferSize() const
{
    return implOf<SingleDepthSensorImpl>(_impl, singleDepthSensorErrMsg).bufferSize();
}

SingleDepthSensor const* Model::singleDepthSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<SingleDepthSensor>(name);
}

std::vector<SingleDepthSensor const*> Model::singleDepthSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<SingleDepthSensor>());
}

}  // namespace Sim
