#include "sim/wheel_torque_actuator.hpp"

#include "actuators/actuator_handle.hpp"
#include "actuators/wheel_torque_actuator_impl.hpp"
#include "core/handle.hpp"

namespace Sim {

WheelTorqueActuator::WheelTorqueActuator(WheelTorqueActuatorImpl* impl) : DCMActuator(impl) {}

WheelTorqueActuator::WheelTorqueActuator(WheelTorqueActuator const& other) : DCMActuator(other)
{
    adoptCopy<WheelTorqueActuatorImpl>(_impl, other._impl);
}

WheelTorqueActuator::~WheelTorqueActuator()
{
    release(_impl);
}

int WheelTorqueActuator::bufferSize() const
{
    return implOf<WheelTorqueActuatorImpl>(_impl, wheelTorqueActuatorErrorMsg).bufferSize();
}

float WheelTorqueActuator::maxTorque() const
{
    return implOf<WheelTorqueActuatorImpl>(_impl, wheelTorqueActuatorErrorMsg).maxTorque();
}

Joint const* WheelTorqueActuator::controlledJoint() const
{
    return implOf<WheelTorqueActuatorImpl>(_impl, wheelTorqueActuatorErrorMsg).controlledJoint().get();
}

}  // namespace Sim
