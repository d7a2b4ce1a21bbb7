#include "sim/fsr_sensor.hpp"

#include "core/handle.hpp"
#include "sensors/fsr_sensor_impl.hpp"

namespace Sim {

FSRSensor::FSRSensor() = default;

FSRSensor::~FSRSensor()
{
    delete _impl;
}

int FSRSensor::bufferSize() const
{
    return implOf<FSRSensorImpl>(_impl, fsrSensorErrMsg).bufferSize();
}

}  // namespace Sim
