#ifndef SIM_MOTION_MODEL_INDEX_HPP
#define SIM_MOTION_MODEL_INDEX_HPP

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "motion_model/start_angles.hpp"
#include "sim/motion_model.hpp"
#include "varo/model/name_index.hpp"
#include "varo/model/records.hpp"
#include "varo/model/short_lists.hpp"

namespace Sim {

/// Where a chain lists a joint.
struct ChainPlace {
    Varo::Model::ChainConfig const* chain = nullptr;
    std::size_t position = 0;
};

/// How one chain goes on from a joint.
struct Branch {
    std::uint32_t const* chain = nullptr;  ///< its place in the list of chains
    std::string const* next = nullptr;  ///< null at the chain's end
    bool listsJoint = false;  ///< true when the chain runs through the joint, false when it is attached to it
};

/// Where a group of an actuator holds a sub-joint.
struct GroupPlace {
    Varo::Model::ActuatorConfig const* actuator = nullptr;
    std::vector<std::string> const* group = nullptr;
    std::size_t position = 0;
};

/// What the records say by names, found in constant time. Refers into the records that it was made of, which must
/// neither change nor move.
struct __attribute__((visibility("hidden"))) MotionModel::Index {
    class Entry;

    Index(Varo::Model::Records const& records, StartAngles const& startAngles);

    /// An empty entry for a name that nothing is known of.
    Entry of(std::string const& name) const;
    /// The same, for one joint of a chain after the other: `next`, at first 0, is kept by the caller.
    Entry of(std::string const& name, std::uint32_t& next) const;

private:
    static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

    /// Records by their indices in their tables.
    struct Facts {
        std::uint32_t joint = none;
        std::uint32_t subActuator = none;
        std::uint32_t actuator = none;
        std::uint32_t wheel = none;
        std::uint32_t sensor = none;
        // What records of other names say of it.
        std::uint32_t firstChain = none;  ///< in the description's order, of those that list it
        std::uint32_t lastChain = none;  ///< in order of name, of those that list it
        std::uint32_t positionInLast = 0;
        Varo::Model::ShortLists<Branch>::List branches;
        Varo::Model::ShortLists<std::uint32_t>::List actuators;
        Varo::Model::ShortLists<GroupPlace>::List groupPlaces;
        float startAngle = 0.0F;
        bool hasStartAngle = false;
        bool isRoot = false;
        bool reflectionForced = false;
    };

    std::uint32_t numberOf(std::string const& name) const;
    template <typename Record>
    std::uint32_t ownNumber(Varo::Model::Table<Record> const& table, std::uint32_t Facts::*record, std::size_t first,
                            std::string const& name) const;
    Entry entryOf(std::uint32_t number) const;
    Facts& factsOf(std::string const& name);
    Facts& factsOf(std::string const& name, std::uint32_t& next);
    template <typename Record>
    void addRecords(Varo::Model::Table<Record> const& table, std::uint32_t Facts::*record);
    void addListedChain(std::uint32_t const& listed);
    void addChainPlaces(std::uint32_t chain);
    void addGroups(std::uint32_t actuator, std::uint32_t& nextSubJoint);

    Varo::Model::Records const& _records;
    Varo::Model::NameIndex _names;
    std::vector<Facts> _facts;  ///< by number of the name
    Varo::Model::ShortLists<Branch> _branches;
    Varo::Model::ShortLists<std::uint32_t> _actuators;
    Varo::Model::ShortLists<GroupPlace> _groupPlaces;
};

/// What is known of one name. Everything pointed to belongs to the records.
class MotionModel::Index::Entry {
public:
    Entry(Index const& index, Facts const& facts) : _index(index), _facts(facts) {}

    // The records of that name, null where there is none.
    Varo::Model::JointConfig const* joint() const { return in(_index._records.joints, _facts.joint); }
    // The names under which these are listed, which the records may state otherwise; null for no such record.
    std::string const* jointName() const { return nameIn(_index._records.joints, _facts.joint); }
    std::string const* subActuatorName() const { return nameIn(_index._records.subActuators, _facts.subActuator); }
    Varo::Model::JointConfig const* root() const { return _facts.isRoot ? &_index._records.root : nullptr; }
    Varo::Model::SubActuatorConfig const* subActuator() const
    {
        return in(_index._records.subActuators, _facts.subActuator);
    }
    Varo::Model::ActuatorConfig const* actuator() const { return in(_index._records.actuators, _facts.actuator); }
    Varo::Model::WheelConfig const* wheel() const { return in(_index._records.wheels, _facts.wheel); }
    Varo::Model::SensorConfig const* sensor() const { return in(_index._records.sensors, _facts.sensor); }

    // What records of other names say of it.
    /// Name of the first chain, in the description's order, that lists it; null for none.
    std::string const* firstChain() const
    {
        return _facts.firstChain == none ? nullptr : &_index._records.chains.nameOf(_facts.firstChain);
    }
    /// In the last chain, in order of name, that lists it: the first place, if it does so twice.
    ChainPlace lastPlace() const { return {in(_index._records.chains, _facts.lastChain), _facts.positionInLast}; }
    /// In the description's order of chains; mostly there is just one.
    auto branches() const { return _index._branches.of(_facts.branches); }
    /// Indices of those that are attached to it, in order of name.
    auto actuators() const { return _index._actuators.of(_facts.actuators); }
    /// Actuators in order of name, their groups in order, and in each the first place.
    auto groupPlaces() const { return _index._groupPlaces.of(_facts.groupPlaces); }
    std::optional<float> startAngle() const
    {
        return _facts.hasStartAngle ? std::optional<float>(_facts.startAngle) : std::nullopt;
    }
    bool reflectionForced() const { return _facts.reflectionForced; }

private:
    template <typename Record>
    static std::string const* nameIn(Varo::Model::Table<Record> const& table, std::uint32_t index)
    {
        return index == none ? nullptr : &table.nameOf(index);
    }
    template <typename Record>
    static Record const* in(Varo::Model::Table<Record> const& table, std::uint32_t index)
    {
        return index == none ? nullptr : &table[index];
    }

    Index const& _index;
    Facts const& _facts;
};

}  // namespace Sim

#endif
