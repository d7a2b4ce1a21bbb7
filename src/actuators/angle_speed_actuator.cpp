#include "sim/angle_speed_actuator.hpp"

#include "actuators/actuator_handle.hpp"
#include "actuators/joint_actuator_impl.hpp"
#include "core/handle.hpp"
#include "core/model_impl.hpp"

namespace Sim {

constexpr char angleSpeedActuatorErrorMsg[] =
    "Could not query AngleSpeedActuator as it seems not correctly constructed.";

AngleSpeedActuator::AngleSpeedActuator(AngleSpeedActuatorImpl* impl) : DCMActuator(impl) {}

AngleSpeedActuator::AngleSpeedActuator(AngleSpeedActuator const& other) : DCMActuator(other)
{
    adoptCopy<AngleSpeedActuatorImpl>(_impl, other._impl);
}

AngleSpeedActuator::~AngleSpeedActuator()
{
    release(_impl);
}

int AngleSpeedActuator::bufferSize() const
{
    return implOf<AngleSpeedActuatorImpl>(_impl, angleSpeedActuatorErrorMsg).bufferSize();
}

float AngleSpeedActuator::startValue() const
{
    return implOf<AngleSpeedActuatorImpl>(_impl, angleSpeedActuatorErrorMsg).startValue();
}

float AngleSpeedActuator::minValue() const
{
    return implOf<AngleSpeedActuatorImpl>(_impl, angleSpeedActuatorErrorMsg).minValue();
}

float AngleSpeedActuator::maxValue() const
{
    return implOf<AngleSpeedActuatorImpl>(_impl, angleSpeedActuatorErrorMsg).maxValue();
}

Joint const* AngleSpeedActuator::controlledJoint() const
{
    return implOf<AngleSpeedActuatorImpl>(_impl, angleSpeedActuatorErrorMsg).controlledJoint().get();
}

AngleSpeedActuator const* AngleSpeedActuator::reflectedSymmetric() const
{
    return implOf<AngleSpeedActuatorImpl>(_impl, angleSpeedActuatorErrorMsg).reflectedSymmetric().get();
}

bool AngleSpeedActuator::reflectedSymmetricReversed() const
{
    return implOf<AngleSpeedActuatorImpl>(_impl, angleSpeedActuatorErrorMsg).reflectedSymmetricReversed();
}

AngleSpeedActuator const* Model::angleSpeedActuator(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuator<AngleSpeedActuator>(name);
}

std::vector<AngleSpeedActuator const*> Model::angleSpeedActuators() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuators<AngleSpeedActuator>());
}

}  // namespace Sim
