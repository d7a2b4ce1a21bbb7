#ifndef SIM_JOINT_SYMMETRY_HPP
#define SIM_JOINT_SYMMETRY_HPP

#include <utility>

#include "varo/export.hpp"

namespace Sim {

class Joint;
class JointSymmetryImpl;

/// A pair of joints that are each other's mirror image, such as the two elbows: what the left one does, the right one
/// does for a motion that is symmetric about the plane between left and right.
///
/// Each pair is there once, whichever of its joints is asked for. The mirror partner of an actuator stands at the
/// actuator itself.
///
/// An element of a Model, which says how long it lives and who may ask it at once.
class VAROROBOTMODEL_API JointSymmetry {
public:
    /// Which values of the two joints mirror each other.
    enum SymmetryType {
        ReflectedSymmetric = 0,  ///< equal values of the two joints mirror each other
        ReflectedSymmetricReversed = 1,  ///< opposite values do
    };

    JointSymmetry();
    JointSymmetry(JointSymmetry const&) = delete;
    JointSymmetry& operator=(JointSymmetry const&) = delete;
    /// Leaves the data of the symmetry alone: the model frees it with itself.
    ~JointSymmetry();

    /// The second is null when the model has no joint of the mirror's name; a joint may be its own mirror.
    std::pair<Joint const*, Joint const*> symmetricJoints() const;
    /// The partner of `joint`, which is recognised by its name; null when it is null or not of this pair.
    Joint const* symmetricJoint(Joint const* joint) const;
    /// As the description states it of the first joint.
    SymmetryType symmetryType() const;

private:
    friend class ModelImpl;

    JointSymmetryImpl* _impl;
};

}  // namespace Sim

#endif
