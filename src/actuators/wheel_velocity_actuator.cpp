#include "sim/wheel_velocity_actuator.hpp"

#include "actuators/actuator_handle.hpp"
#include "actuators/wheel_velocity_actuator_impl.hpp"
#include "core/handle.hpp"
#include "core/model_impl.hpp"

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

WheelVelocityActuator const* Model::wheelVelocityActuator(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuator<WheelVelocityActuator>(name);
}

std::vector<WheelVelocityActuator const*> Model::wheelVelocityActuators() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuators<WheelVelocityActuator>());
}

}  // namespace Sim
