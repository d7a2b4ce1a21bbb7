#include "sim/angle_speed_sensor.hpp"

#include "core/handle.hpp"
#include "sensors/angle_speed_sensor_impl.hpp"

namespace Sim {

AngleSpeedSensor::AngleSpeedSensor() = default;

AngleSpeedSensor::~AngleSpeedSensor()
{
    delete _impl;
}

int AngleSpeedSensor::bufferSize() const
{
    return implOf<AngleSpeedSensorImpl>(_impl, angleSpeedSensorErrMsg).bufferSize();
}

}  // namespace Sim
