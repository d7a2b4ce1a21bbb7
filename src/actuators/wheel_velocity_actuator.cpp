#include "sim/wheel_velocity_actuator.hpp"

#include "actuators/actuator_handle.hpp"
#include "actuators/wheel_velocity_actuator_impl.hpp"
#include "core/handle.hpp"

namespace Sim {

WheelVelocityActuator::WheelVelocityActuator(WheelVelocityActuatorImpl* impl) : DCMActuator(impl) {}

WheelVelocityActuator::WheelVelocityActuator(WheelVelocityActuator const& other) : DCMActuator(other)
{
    adoptCopy<WheelVelocityActuatorImpl>(_impl, other._impl);
}

WheelVelocityActuator::~WheelVelocityActuator()
{
    release(_impl);
}

int WheelVelocityActuator::bufferSize() const
{
    return implOf<WheelVelocityActuatorImpl>(_impl, wheelVelocityActuatorErrorMsg).bufferSize();
}

float WheelVelocityActuator::maxVelocity() const
{
    return implOf<WheelVelocityActuatorImpl>(_impl, wheelVelocityActuatorErrorMsg).maxVelocity();
}

Joint const* WheelVelocityActuator::controlledJoint() const
{
    return implOf<WheelVelocityActuatorImpl>(_impl, wheelVelocityActuatorErrorMsg).controlledJoint().get();
}

}  // namespace Sim
