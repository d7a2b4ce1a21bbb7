#include "sim/torque_sensor.hpp"

#include "core/handle.hpp"
#include "core/model_impl.hpp"
#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

constexpr char torqueSensorErrMsg[] = "Could not query TorqueSensor as it seems not correctly constructed.";

TorqueSensor::TorqueSensor() = default;

TorqueSensor::~TorqueSensor()
{
    delete _impl;
}

int TorqueSensor::bufferSize() const
{
    return implOf<TorqueSensorImpl>(_impl, torqueSensorErrMsg).bufferSize();
}

TorqueSensor const* Model::torqueSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<TorqueSensor>(name);
}

std::vector<TorqueSensor const*> Model::torqueSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<TorqueSensor>());
}

}  // namespace Sim
