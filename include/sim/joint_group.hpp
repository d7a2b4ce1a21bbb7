#ifndef SIM_JOINT_GROUP_HPP
#define SIM_JOINT_GROUP_HPP

#include <string>
#include <vector>

#include "varo/export.hpp"

namespace Sim {

class Joint;
class JointGroupImpl;

/// The joints of a kinematic chain, or those that one coupled actuator moves.
///
/// Handed out by Model as a borrowed pointer, as is everything that it returns: valid as long as the model, immutable,
/// and safe to ask from several threads. Every getter throws std::runtime_error on a group that no model made.
class VAROROBOTMODEL_API JointGroup {
public:
    JointGroup();
    JointGroup(JointGroup const&) = delete;
    JointGroup& operator=(JointGroup const&) = delete;
    /// Leaves the data of the group alone: the model frees it with itself.
    ~JointGroup();

    /// The name of the chain or of the coupled actuator. Several groups may bear one name.
    std::string const& name() const;
    /// The members from the parent outward; null for a name that the model has no joint for.
    std::vector<Joint const*> joints() const;

private:
    friend class ModelImpl;

    JointGroupImpl* _impl;
};

}  // namespace Sim

#endif
