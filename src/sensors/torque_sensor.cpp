#include "sim/torque_sensor.hpp"

#include "core/handle.hpp"
#include "sensors/torque_sensor_impl.hpp"

namespace Sim {

TorqueSensor::TorqueSensor() = default;

TorqueSensor::~TorqueSensor()
{
    delete _impl;
}

int TorqueSensor::bufferSize() const
{
    return implOf<TorqueSensorImpl>(_impl, torqueSensorErrMsg).bufferSize();
}

}  // namespace Sim
