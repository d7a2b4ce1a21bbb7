#include "sim/inertial_sensor.hpp"

#include "core/handle.hpp"
#include "sensors/inertial_sensor_impl.hpp"

namespace Sim {

InertialSensor::InertialSensor() = default;

InertialSensor::~InertialSensor()
{
    delete _impl;
}

int InertialSensor::bufferSize() const
{
    return implOf<InertialSensorImpl>(_impl, inertialSensorErrMsg).bufferSize();
}

}  // namespace Sim
