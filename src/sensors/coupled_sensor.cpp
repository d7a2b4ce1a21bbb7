#include "sim/coupled_sensor.hpp"

#include "core/handle.hpp"
#include "core/model_impl.hpp"
#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

constexpr char coupledSensorErrMsg[] = "Could not query CoupledSensor as it seems not correctly constructed.";

CoupledSensor::CoupledSensor() = default;

CoupledSensor::~CoupledSensor()
{
    delete _impl;
}

int CoupledSensor::bufferSize() const
{
    return implOf<CoupledSensorImpl>(_impl, coupledSensorErrMsg).bufferSize();
}

CoupledSensor const* Model::coupledSensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<CoupledSensor>(name);
}

std::vector<CoupledSensor const*> Model::coupledSensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<CoupledSensor>());
}

}  // namespace Sim
