#include "sim/angle_sensor.hpp"

#include "core/handle.hpp"
#include "core/model_impl.hpp"
#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

constexpr char angleSensorErrMsg[] = "Could not query AngleSensor as it seems not correctly constructed.";

AngleSensor::AngleSensor() = default;

AngleSensor::~AngleSensor()
{
    delete _impl;
}

int AngleSensor::bufferSize() const
{
    return implOf<AngleSensorImpl>(_impl, angleSensorErrMsg).bufferSize();
}

AngleSensor const* Model::angleSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<AngleSensor>(name);
}

std::vector<AngleSensor const*> Model::angleSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<AngleSensor>());
}

}  // namespace Sim
