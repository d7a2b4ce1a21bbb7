#include "sim/angle_sensor.hpp"

#include "core/handle.hpp"
#include "sensors/angle_sensor_impl.hpp"

namespace Sim {

AngleSensor::AngleSensor() = default;

AngleSensor::~AngleSensor()
{
    delete _impl;
}

int AngleSensor::bufferSize() const
{
    return implOf<AngleSensorImpl>(_impl, angleSensorErrMsg).bufferSize();
}

}  // namespace Sim
