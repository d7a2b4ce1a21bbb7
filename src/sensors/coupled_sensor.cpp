#include "sim/coupled_sensor.hpp"

#include "core/handle.hpp"
#include "sensors/coupled_sensor_impl.hpp"

namespace Sim {

CoupledSensor::CoupledSensor() = default;

CoupledSensor::~CoupledSensor()
{
    delete _impl;
}

int CoupledSensor::bufferSize() const
{
    return implOf<CoupledSensorImpl>(_impl, coupledSensorErrMsg).bufferSize();
}

}  // namespace Sim
