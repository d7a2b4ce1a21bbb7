#include "sim/bumper_sensor.hpp"

#include "core/handle.hpp"
#include "sensors/bumper_sensor_impl.hpp"

namespace Sim {

BumperSensor::BumperSensor() = default;

BumperSensor::~BumperSensor()
{
    delete _impl;
}

int BumperSensor::bufferSize() const
{
    return implOf<BumperSensorImpl>(_impl, bumperSensorErrMsg).bufferSize();
}

}  // namespace Sim
