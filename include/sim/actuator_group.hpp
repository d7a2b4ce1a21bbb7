#ifndef SIM_ACTUATOR_GROUP_HPP
#define SIM_ACTUATOR_GROUP_HPP

#include <string>
#include <vector>

#include "varo/export.hpp"

namespace Sim {

class Actuator;
class ActuatorGroupImpl;

/// The actuators of a kinematic chain.
///
/// Handed out by Model as a borrowed pointer, as is everything that it returns: valid as long as the model, immutable,
/// and safe to ask from several threads. Every getter throws std::runtime_error on a group that no model made.
class VAROROBOTMODEL_API ActuatorGroup {
public:
    ActuatorGroup();
    ActuatorGroup(ActuatorGroup const&) = delete;
    ActuatorGroup& operator=(ActuatorGroup const&) = delete;
    /// Leaves the data of the group alone: the model frees it with itself.
    ~ActuatorGroup();

    /// The name of the chain.
    std::string const& name() const;
    /// The group of the chain that this one hangs on; null when it hangs on the root, or when the description lists
    /// that chain later than this one.
    ActuatorGroup const* parent() const;
    /// The angle actuators of the chain's joints, then the coupled actuators that hang on them; null for a name that
    /// the model has no actuator for.
    std::vector<Actuator const*> actuators() const;

private:
    friend class ModelImpl;

    ActuatorGroupImpl* _impl;
};

}  // namespace Sim

#endif
