#ifndef SIM_MOTION_MODEL_INDEX_HPP
#define SIM_MOTION_MODEL_INDEX_HPP

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "motion_model/start_angles.hpp"
#include "sim/motion_model.hpp"

namespace Sim {

/// What the records say of one name. Everything pointed to belongs to them.
struct NameEntry {
    /// Where a chain lists the joint: the first place, if it does so twice.
    struct ChainPlace {
        Varo::Model::ChainConfig const* chain = nullptr;
        std::size_t position = 0;
    };
    /// How one chain goes on from the joint.
    static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();
    struct Branch {
        std::uint32_t const* chain = nullptr;  ///< its place in the list of chains
        std::string const* next = nullptr;  ///< null at the chain's end
        bool listsJoint = false;  ///< true when the chain runs through the joint, false when it is attached to it
        std::uint32_t following = none;  ///< the joint's next branch, as an index of all of them
    };
    /// Where a group of an actuator holds the sub-joint: the first place, if it does so twice.
    struct GroupPlace {
        Varo::Model::ActuatorConfig const* actuator = nullptr;
        std::vector<std::string> const* group = nullptr;
        std::size_t position = 0;
    };

    // The records of that name, null where there is none.
    Varo::Model::JointConfig const* joint = nullptr;
    Varo::Model::JointConfig const* root = nullptr;
    Varo::Model::SubActuatorConfig const* subActuator = nullptr;
    Varo::Model::ActuatorConfig const* actuator = nullptr;
    Varo::Model::WheelConfig const* wheel = nullptr;
    Varo::Model::SensorConfig const* sensor = nullptr;

    // What records of other names say of it.
    std::string const* firstChain = nullptr;  ///< name of the first chain, in the description's order, that lists it
    ChainPlace lastPlace;  ///< in the last chain, in order of name, that lists it
    std::uint32_t firstBranch = none;  ///< in the description's order of chains; mostly there is just this one
    std::uint32_t lastBranch = none;
    std::vector<std::uint32_t> actuators;  ///< indices of those that are attached to it, in order of name
    std::vector<GroupPlace> groupPlaces;  ///< actuators in order of name, their groups in order
    std::optional<float> startAngle;
    bool reflectionForced = false;
};

/// The entries of all names, found in constant time. Refers into the records that it was made of, which must neither
/// change nor move.
struct __attribute__((visibility("hidden"))) MotionModel::Index {
    Index(Varo::Model::Records const& records, StartAngles const& startAngles);

    /// An empty entry for a name that nothing is known of.
    NameEntry const& of(std::string const& name) const;

    /// Calls `visit` for each way in which a chain goes on from a joint.
    template <typename Visit>
    void forEachBranch(NameEntry const& joint, Visit visit) const
    {
        for (auto branch = joint.firstBranch; branch != NameEntry::none; branch = _branches[branch].following) {
            visit(_branches[branch]);
        }
    }

private:
    void addBranch(NameEntry& joint, NameEntry::Branch const& branch);
    template <typename Record>
    void addRecords(Varo::Model::Table<Record> const& table, Record const* NameEntry::*record);
    void addListedChain(std::uint32_t const& listed, Varo::Model::Table<Varo::Model::ChainConfig> const& chains);
    void addChainPlaces(Varo::Model::ChainConfig const& chain);
    void addGroups(Varo::Model::ActuatorConfig const& actuator, std::uint32_t index);

    std::unordered_map<std::string_view, NameEntry> _entries;
    std::vector<NameEntry::Branch> _branches;  ///< of all joints
};

}  // namespace Sim

#endif
