#ifndef VARO_GROUPS_JOINT_GROUP_IMPL_HPP
#define VARO_GROUPS_JOINT_GROUP_IMPL_HPP

#include <string>
#include <vector>

#include "core/shared_value.hpp"
#include "groups/weak_members.hpp"
#include "sim/joint.hpp"
#include "sim/joint_group.hpp"

namespace Sim {

inline constexpr char jointGroupErrorMsg[] = "Could not query JointGroup as it seems not correctly initialized.";

class JointGroupImpl {
public:
    JointGroupImpl(SharedName const& name, std::vector<boost::shared_ptr<Joint>> const& joints)
        : _name(name), _joints(joints)
    {}

    std::string const& name() const { return _name; }
    std::vector<boost::shared_ptr<Joint>> joints() const { return _joints.locked(); }

private:
    SharedName _name;
    WeakMembers<Joint> _joints;
};

}  // namespace Sim

#endif
