#ifndef VARO_GROUPS_JOINT_SYMMETRY_IMPL_HPP
#define VARO_GROUPS_JOINT_SYMMETRY_IMPL_HPP

#include <utility>

#include <boost/shared_ptr.hpp>

#include "core/element_ref.hpp"
#include "sim/joint.hpp"
#include "sim/joint_symmetry.hpp"

namespace Sim {

inline constexpr char jointSymmetryErrorMsg[] = "Could not query JointSymmetry as it seems not correctly constructed.";

class JointSymmetryImpl {
public:
    using JointPair = std::pair<boost::shared_ptr<Joint const>, boost::shared_ptr<Joint const>>;

    JointSymmetryImpl(JointPair joints, JointSymmetry::SymmetryType type)
        : _first(joints.first), _second(joints.second), _symmetryType(type)
    {}

    JointPair symmetricJoints() const { return {_first.lock(), _second.lock()}; }
    boost::shared_ptr<Joint const> symmetricJoint(Joint const* joint) const;
    JointSymmetry::SymmetryType symmetryType() const { return _symmetryType; }

private:
    ElementRef<Joint const> _first;
    ElementRef<Joint const> _second;
    JointSymmetry::SymmetryType _symmetryType;
};

}  // namespace Sim

#endif
