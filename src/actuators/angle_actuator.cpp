#include "sim/angle_actuator.hpp"

#include "actuators/actuator_handle.hpp"
#include "actuators/angle_actuator_impl.hpp"
#include "core/handle.hpp"
#include "core/model_impl.hpp"

namespace Sim {

AngleActuator::AngleActuator(AngleActuatorImpl* impl) : DCMActuator(impl) {}

AngleActuator::AngleActuator(AngleActuator const& other) : DCMActuator(other)
{
    adoptCopy<AngleActuatorImpl>(_impl, other._impl);
}

AngleActuator::~AngleActuator()
{
    release(_impl);
}

int AngleActuator::bufferSize() const
{
    return implOf<AngleActuatorImpl>(_impl, angleActuatorErrorMsg).bufferSize();
}

float AngleActuator::startValue() const
{
    return implOf<AngleActuatorImpl>(_impl, angleActuatorErrorMsg).startValue();
}

float AngleActuator::minValue() const
{
    return implOf<AngleActuatorImpl>(_impl, angleActuatorErrorMsg).minValue();
}

float AngleActuator::maxValue() const
{
    return implOf<AngleActuatorImpl>(_impl, angleActuatorErrorMsg).maxValue();
}

float AngleActuator::maxSpeed() const
{
    return implOf<AngleActuatorImpl>(_impl, angleActuatorErrorMsg).maxSpeed();
}

Joint const* AngleActuator::controlledJoint() const
{
    return implOf<AngleActuatorImpl>(_impl, angleActuatorErrorMsg).controlledJoint().get();
}

AngleActuator const* AngleActuator::reflectedSymmetric() const
{
    return implOf<AngleActuatorImpl>(_impl, angleActuatorErrorMsg).reflectedSymmetric().get();
}

bool AngleActuator::reflectedSymmetricReversed() const
{
    return implOf<AngleActuatorImpl>(_impl, angleActuatorErrorMsg).reflectedSymmetricReversed();
}

bool AngleActuator::reflectionForced() const
{
    return implOf<AngleActuatorImpl>(_impl, angleActuatorErrorMsg).reflectionForced();
}

AngleActuator const* Model::angleActuator(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuator<AngleActuator>(name);
}

std::vector<AngleActuator const*> Model::angleActuators() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuators<AngleActuator>());
}

}  // namespace Sim
