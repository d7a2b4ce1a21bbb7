#ifndef SIM_MOTION_MODEL_INDEX_HPP
#define SIM_MOTION_MODEL_INDEX_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "sim/motion_model.hpp"

namespace Sim {

/// What the tables of a motion model say of one name. Everything pointed to belongs to the tables.
struct NameRelations {
    /// Where a chain lists the joint: the first place, if it does so twice.
    struct ChainPlace {
        Varo::Model::ChainConfig const* chain = nullptr;
        std::size_t position = 0;
    };
    /// How one chain goes on from the joint.
    struct Branch {
        std::string const* next = nullptr;  ///< null at the chain's end
        bool listsJoint = false;  ///< true when the chain runs through the joint, false when it hangs on it
    };
    /// Where a group of an actuator holds the sub-joint: the first place, if it does so twice.
    struct GroupPlace {
        Varo::Model::ActuatorConfig const* actuator = nullptr;
        std::vector<std::string> const* group = nullptr;
        std::size_t position = 0;
    };

    std::string const* firstChain = nullptr;  ///< name of the first chain, in the description's order, that lists it
    ChainPlace lastPlace;  ///< in the last chain, in order of name, that lists it
    std::vector<Branch> branches;  ///< in the description's order of chains
    std::vector<Varo::Model::ActuatorTable::value_type const*> actuators;  ///< that hang on it, in order of name
    std::vector<GroupPlace> groupPlaces;  ///< actuators in order of name, their groups in order
    std::optional<float> startAngle;
    bool reflectionForced = false;
};

/// The relations of all names, found in constant time. Refers into the tables that it was made of, so that these must
/// neither change nor move.
struct MotionModel::Index {
    Index(std::vector<std::string> const& chainNames, Varo::Model::ChainTable const& chains,
          Varo::Model::ActuatorTable const& actuators, std::vector<std::pair<std::string, float>> const& startAngles,
          std::vector<std::string> const& reflectionForced);

    /// Empty relations for a name that nothing is known of.
    NameRelations const& of(std::string const& name) const;

private:
    void addListedChain(std::string const& name, Varo::Model::ChainConfig const& chain);
    void addChainPlaces(Varo::Model::ChainConfig const& chain);
    void addActuator(Varo::Model::ActuatorTable::value_type const& entry);

    std::unordered_map<std::string_view, NameRelations> _relations;
};

}  // namespace Sim

#endif
