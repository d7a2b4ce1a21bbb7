#ifndef SIM_ACTUATOR_GROUP_HPP
#define SIM_ACTUATOR_GROUP_HPP

#include <string>
#include <vector>

#include "varo/export.hpp"

namespace Sim {

class Actuator;
class ActuatorGroupImpl;

/// The motors of one kinematic chain. The groups form a tree as the chains do: that of an arm has the torso's as its
/// parent.
///
/// Of the actuators that share a joint's name a group holds the angle actuator only; wheels and lights are in no group.
///
/// An element of a Model, which says how long it lives and who may ask it at once.
class VAROROBOTMODEL_API ActuatorGroup {
public:
    ActuatorGroup();
    ActuatorGroup(ActuatorGroup const&) = delete;
    ActuatorGroup& operator=(ActuatorGroup const&) = delete;
    /// Leaves the data of the group alone: the model frees it with itself.
    ~ActuatorGroup();

    /// The name of the chain.
    std::string const& name() const;
    /// The group of the chain that this one is attached to; null when it is attached to the root, or when the
    /// description lists that chain later than this one.
    ActuatorGroup const* parent() const;
    /// The angle actuators of the chain's joints, then the coupled actuators attached to them; null for a name that
    /// the model has no actuator for.
    std::vector<Actuator const*> actuators() const;

private:
    friend class ModelImpl;

    ActuatorGroupImpl* _impl;
};

}  // namespace Sim

#endif
