#include "sim/joint_symmetry.hpp"

#include "core/handle.hpp"
#include "groups/joint_symmetry_impl.hpp"

namespace Sim {

JointSymmetry::JointSymmetry() : _impl(nullptr) {}

JointSymmetry::~JointSymmetry() = default;

std::pair<Joint const*, Joint const*> JointSymmetry::symmetricJoints() const
{
    auto const [first, second] = implOf(_impl, jointSymmetryErrorMsg).symmetricJoints();
    return {first.get(), second.get()};
}

Joint const* JointSymmetry::symmetricJoint(Joint const* joint) const
{
    return implOf(_impl, jointSymmetryErrorMsg).symmetricJoint(joint).get();
}

JointSymmetry::SymmetryType JointSymmetry::symmetryType() const
{
    return implOf(_impl, jointSymmetryErrorMsg).symmetryType();
}

}  // namespace Sim
