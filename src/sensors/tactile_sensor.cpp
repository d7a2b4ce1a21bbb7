#include "sim/tactile_sensor.hpp"

#include "core/handle.hpp"
#include "core/model_impl.hpp"
#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

constexpr char tactileSensorErrMsg[] = "Could not query TactileSensor as it seems not correctly constructed.";

TactileSensor::TactileSensor() = default;

TactileSensor::~TactileSensor()
{
    delete _impl;
}

int TactileSensor::bufferSize() const
{
    return implOf<TactileSensorImpl>(_impl, tactileSensorErrMsg).bufferSize();
}

TactileSensor const* Model::tactileSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<TactileSensor>(name);
}

std::vector<TactileSensor const*> Model::tactileSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<TactileSensor>());
}

}  // namespace Sim
