#include "groups/joint_symmetry_impl.hpp"

namespace Sim {

boost::shared_ptr<Joint const> JointSymmetryImpl::symmetricJoint(Joint const* joint) const
{
    if (joint == nullptr) {
        return {};
    }
    auto const [first, second] = symmetricJoints();
    if (first != nullptr && first->name() == joint->name()) {
        return second;
    }
    if (second != nullptr && second->name() == joint->name()) {
        return first;
    }
    return {};
}

}  // namespace Sim
