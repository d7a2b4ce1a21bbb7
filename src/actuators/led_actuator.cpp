#include "sim/led_actuator.hpp"

#include "actuators/actuator_handle.hpp"
#include "actuators/led_actuator_impl.hpp"
#include "core/handle.hpp"
#include "core/model_impl.hpp"

namespace Sim {

LEDActuator::LEDActuator(LEDActuatorImpl* impl) : DCMActuator(impl) {}

LEDActuator::LEDActuator(LEDActuator const& other) : DCMActuator(other)
{
    adoptCopy<LEDActuatorImpl>(_impl, other._impl);
}

LEDActuator::~LEDActuator()
{
    release(_impl);
}

int LEDActuator::bufferSize() const
{
    return implOf<LEDActuatorImpl>(_impl, ledActuatorErrMsg).bufferSize();
}

std::string const& LEDActuator::shortname() const
{
    return implOf<LEDActuatorImpl>(_impl, ledActuatorErrMsg).shortname();
}

std::vector<std::string> const& LEDActuator::groups() const
{
    return implOf<LEDActuatorImpl>(_impl, ledActuatorErrMsg).groups();
}

LEDActuator::Color LEDActuator::color() const
{
    return implOf<LEDActuatorImpl>(_impl, ledActuatorErrMsg).color();
}

LEDActuator const* Model::ledActuator(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuator<LEDActuator>(name);
}

std::vector<LEDActuator const*> Model::ledActuators(std::string const& group) const
{
    return rawPointers(implOf(_impl, modelErrorMsg).ledActuators(group));
}

}  // namespace Sim
