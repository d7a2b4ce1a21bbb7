#include "sim/inertial_sensor.hpp"

#include "core/handle.hpp"
#include "core/model_impl.hpp"
#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

constexpr char inertialSensorErrMsg[] = "Could not query InertialSensor as it seems not correctly constructed.";

InertialSensor::InertialSensor() = default;

InertialSensor::~InertialSensor()
{
    delete _impl;
}

int InertialSensor::bufferSize() const
{
    return implOf<InertialSensorImpl>(_impl, inertialSensorErrMsg).bufferSize();
}

InertialSensor const* Model::inertialSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<InertialSensor>(name);
}

std::vector<InertialSensor const*> Model::inertialSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<InertialSensor>());
}

}  // namespace Sim
