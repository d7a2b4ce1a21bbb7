#include "sim/actuator.hpp"

#include "actuators/actuator_handle.hpp"
#include "core/handle.hpp"

namespace Sim {

Actuator::Actuator(ActuatorImpl* impl) : _impl(impl) {}

Actuator::Actuator(Actuator const& other) : _impl(nullptr)
{
    adoptCopy<ActuatorImpl>(_impl, other._impl);
}

Actuator::~Actuator()
{
    release(_impl);
}

std::string const& Actuator::name() const
{
    return implOf(_impl, actuatorErrMsg).name();
}

Frame const* Actuator::frame() const
{
    return implOf(_impl, actuatorErrMsg).frame().get();
}

Actuator::Type Actuator::type() const
{
    return implOf(_impl, actuatorErrMsg).type();
}

}  // namespace Sim
