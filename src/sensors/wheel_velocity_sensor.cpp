#include "sim/wheel_velocity_sensor.hpp"

#include "core/handle.hpp"
#include "core/model_impl.hpp"
#include "sensors/keyed_sensor_impl.hpp"

namespace Sim {

constexpr char wheelVelocitySensorErrMsg[] =
    "Could not query WheelVelocitySensor as it seems not correctly constructed.";

WheelVelocitySensor::WheelVelocitySensor() = default;

WheelVelocitySensor::~WheelVelocitySensor()
{
    delete _impl;
}

int WheelVelocitySensor::bufferSize() const
{
    return implOf<WheelVelocitySensorImpl>(_impl, wheelVelocitySensorErrMsg).bufferSize();
}

WheelVelocitySensor const* Model::wheelVelocitySensor(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).sensor<WheelVelocitySensor>(name);
}

std::vector<WheelVelocitySensor const*> Model::wheelVelocitySensors() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).sensors<WheelVelocitySensor>());
}

}  // namespace Sim
