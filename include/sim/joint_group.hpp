#ifndef SIM_JOINT_GROUP_HPP
#define SIM_JOINT_GROUP_HPP

#include <string>
#include <vector>

#include "varo/export.hpp"

namespace Sim {

class Joint;
class JointGroupImpl;

/// Joints that belong together: those of one kinematic chain, or those that one coupled actuator moves.
///
/// The groups of chains are how a program addresses a limb as a whole. Wheels are in no group.
///
/// An element of a Model, which says how long it lives and who may ask it at once.
class VAROROBOTMODEL_API JointGroup {
public:
    JointGroup();
    JointGroup(JointGroup const&) = delete;
    JointGroup& operator=(JointGroup const&) = delete;
    /// Leaves the data of the group alone: the model frees it with itself.
    ~JointGroup();

    /// The name of the chain or of the coupled actuator. Several groups may have one name.
    std::string const& name() const;
    /// The members from the parent outward; null for a name that the model has no joint for.
    std::vector<Joint const*> joints() const;

private:
    friend class ModelImpl;

    JointGroupImpl* _impl;
};

}  // namespace Sim

#endif
