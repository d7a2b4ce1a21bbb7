#include "sim/tactile_sensor.hpp"

#include "core/handle.hpp"
#include "sensors/tactile_sensor_impl.hpp"

namespace Sim {

TactileSensor::TactileSensor() = default;

TactileSensor::~TactileSensor()
{
    delete _impl;
}

int TactileSensor::bufferSize() const
{
    return implOf<TactileSensorImpl>(_impl, tactileSensorErrMsg).bufferSize();
}

}  // namespace Sim
