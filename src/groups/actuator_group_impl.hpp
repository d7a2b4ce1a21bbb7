#ifndef VARO_GROUPS_ACTUATOR_GROUP_IMPL_HPP
#define VARO_GROUPS_ACTUATOR_GROUP_IMPL_HPP

#include <string>
#include <vector>

#include "core/element_ref.hpp"
#include "core/shared_value.hpp"
#include "groups/weak_members.hpp"
#include "sim/actuator.hpp"
#include "sim/actuator_group.hpp"

namespace Sim {

inline constexpr char actuatorGroupErrorMsg[] = "Could not query ActuatorGroup as it seems not correctly initialized.";

class ActuatorGroupImpl {
public:
    ActuatorGroupImpl(SharedName const& name, boost::shared_ptr<ActuatorGroup> const& parent,
                      std::vector<boost::shared_ptr<Actuator>> const& actuators)
        : _name(name), _parent(parent), _actuators(actuators)
    {}

    std::string const& name() const { return _name; }
    boost::shared_ptr<ActuatorGroup> parent() const { return _parent.lock(); }
    std::vector<boost::shared_ptr<Actuator>> actuators() const { return _actuators.locked(); }

private:
    SharedName _name;
    ElementRef<ActuatorGroup> _parent;
    WeakMembers<Actuator> _actuators;
};

}  // namespace Sim

#endif
