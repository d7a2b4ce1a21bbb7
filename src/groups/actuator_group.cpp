#include "sim/actuator_group.hpp"

#include "core/handle.hpp"
#include "groups/actuator_group_impl.hpp"

namespace Sim {

ActuatorGroup::ActuatorGroup() : _impl(nullptr) {}

ActuatorGroup::~ActuatorGroup() = default;

std::string const& ActuatorGroup::name() const
{
    return implOf(_impl, actuatorGroupErrorMsg).name();
}

ActuatorGroup const* ActuatorGroup::parent() const
{
    return implOf(_impl, actuatorGroupErrorMsg).parent().get();
}

std::vector<Actuator const*> ActuatorGroup::actuators() const
{
    return rawPointers(implOf(_impl, actuatorGroupErrorMsg).actuators());
}

}  // namespace Sim
