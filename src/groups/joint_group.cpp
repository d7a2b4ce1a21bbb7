#include "sim/joint_group.hpp"

#include "core/handle.hpp"
#include "groups/joint_group_impl.hpp"

namespace Sim {

JointGroup::JointGroup() : _impl(nullptr) {}

JointGroup::~JointGroup() = default;

std::string const& JointGroup::name() const
{
    return implOf(_impl, jointGroupErrorMsg).name();
}

std::vector<Joint const*> JointGroup::joints() const
{
    return rawPointers(implOf(_impl, jointGroupErrorMsg).joints());
}

}  // namespace Sim
