#include "sim/torque_actuator.hpp"

#include "actuators/actuator_handle.hpp"
#include "actuators/joint_actuator_impl.hpp"
#include "core/handle.hpp"
#include "core/model_impl.hpp"

namespace Sim {

constexpr char torqueActuatorErrorMsg[] = "Could not query TorqueActuator as it seems not correctly constructed.";

TorqueActuator::TorqueActuator(TorqueActuatorImpl* impl) : DCMActuator(impl) {}

TorqueActuator::TorqueActuator(TorqueActuator const& other) : DCMActuator(other)
{
    adoptCopy<TorqueActuatorImpl>(_impl, other._impl);
}

TorqueActuator::~TorqueActuator()
{
    release(_impl);
}

int TorqueActuator::bufferSize() const
{
    return implOf<TorqueActuatorImpl>(_impl, torqueActuatorErrorMsg).bufferSize();
}

float TorqueActuator::startValue() const
{
    return implOf<TorqueActuatorImpl>(_impl, torqueActuatorErrorMsg).startValue();
}

float TorqueActuator::minValue() const
{
    return implOf<TorqueActuatorImpl>(_impl, torqueActuatorErrorMsg).minValue();
}

float TorqueActuator::maxValue() const
{
    return implOf<TorqueActuatorImpl>(_impl, torqueActuatorErrorMsg).maxValue();
}

Joint const* TorqueActuator::controlledJoint() const
{
    return implOf<TorqueActuatorImpl>(_impl, torqueActuatorErrorMsg).controlledJoint().get();
}

TorqueActuator const* TorqueActuator::reflectedSymmetric() const
{
    return implOf<TorqueActuatorImpl>(_impl, torqueActuatorErrorMsg).reflectedSymmetric().get();
}

bool TorqueActuator::reflectedSymmetricReversed() const
{
    return implOf<TorqueActuatorImpl>(_impl, torqueActuatorErrorMsg).reflectedSymmetricReversed();
}

TorqueActuator const* Model::torqueActuator(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuator<TorqueActuator>(name);
}

std::vector<TorqueActuator const*> Model::torqueActuators() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuators<TorqueActuator>());
}

}  // namespace Sim
