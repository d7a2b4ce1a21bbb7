#include "sim/wheel_velocity_sensor.hpp"

#include "core/handle.hpp"
#include "sensors/wheel_velocity_sensor_impl.hpp"

namespace Sim {

WheelVelocitySensor::WheelVelocitySensor() = default;

WheelVelocitySensor::~WheelVelocitySensor()
{
    delete _impl;
}

int WheelVelocitySensor::bufferSize() const
{
    return implOf<WheelVelocitySensorImpl>(_impl, wheelVelocitySensorErrMsg).bufferSize();
}

}  // namespace Sim
