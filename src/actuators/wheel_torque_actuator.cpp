#include "sim/wheel_torque_actuator.hpp"

#include "actuators/actuator_handle.hpp"
#include "actuators/wheel_torque_actuator_impl.hpp"
#include "core/handle.hpp"
#include "core/model_impl.hpp"

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

WheelTorqueActuator const* Model::wheelTorqueActuator(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuator<WheelTorqueActuator>(name);
}

std::vector<WheelTorqueActuator const*> Model::wheelTorqueActuators() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuators<WheelTorqueActuator>());
}

}  // namespace Sim
