#include "motion_model/motion_model_index.hpp"

namespace Sim {

MotionModel::Index::Index(Varo::Model::Records const& records, StartAngles const& startAngles)
{
    _entries.reserve(records.joints.size() + records.subActuators.size() + records.actuators.size() +
                     records.wheels.size() + records.sensors.size() + 1);
    addRecords(records.joints, &NameEntry::joint);
    addRecords(records.subActuators, &NameEntry::subActuator);
    addRecords(records.actuators, &NameEntry::actuator);
    addRecords(records.wheels, &NameEntry::wheel);
    addRecords(records.sensors, &NameEntry::sensor);
    _entries[records.root.name].root = &records.root;

    _branches.reserve(records.joints.size() + records.chains.size());
    for (std::uint32_t const& listed : records.chainOrder) {
        addListedChain(listed, records.chains);
    }
    for (std::uint32_t const chain : records.chains.nameOrder()) {
        addChainPlaces(records.chains[chain]);
    }
    for (std::uint32_t const actuator : records.actuators.nameOrder()) {
        addGroups(records.actuators[actuator], actuator);
    }
    for (auto const& [name, angle] : startAngles) {
        auto& known = _entries[*name].startAngle;
        known = known.value_or(angle);  // the first one counts
    }
    for (auto const& name : records.reflectionForced) {
        _entries[name].reflectionForced = true;
    }
}

NameEntry const& MotionModel::Index::of(std::string const& name) const
{
    static NameEntry const none;
    auto const found = _entries.find(name);
    return found == _entries.end() ? none : found->second;
}

template <typename Record>
void MotionModel::Index::addRecords(Varo::Model::Table<Record> const& table, Record const* NameEntry::*record)
{
    for (std::size_t index = 0; index < table.size(); ++index) {
        _entries[table.nameOf(index)].*record = &table[index];
    }
}

void MotionModel::Index::addListedChain(std::uint32_t const& listed,
                                        Varo::Model::Table<Varo::Model::ChainConfig> const& chains)
{
    Varo::Model::ChainConfig const& chain = chains[listed];
    auto const& joints = chain.jointNames;
    for (std::size_t position = 0; position < joints.size(); ++position) {
        auto& joint = _entries[joints[position]];
        if (joint.lastBranch != NameEntry::none && _branches[joint.lastBranch].chain == &listed) {
            continue;  // listed twice
        }
        if (joint.firstChain == nullptr) {
            joint.firstChain = &chains.nameOf(listed);
        }
        addBranch(joint, {&listed, position + 1 < joints.size() ? &joints[position + 1] : nullptr, true});
    }
    if (!joints.empty()) {
        addBranch(_entries[chain.parentJoint], {&listed, &joints.front(), false});
    }
}

void MotionModel::Index::addBranch(NameEntry& joint, NameEntry::Branch const& branch)
{
    auto const index = static_cast<std::uint32_t>(_branches.size());
    (joint.lastBranch == NameEntry::none ? joint.firstBranch : _branches[joint.lastBranch].following) = index;
    joint.lastBranch = index;
    _branches.push_back(branch);
}

void MotionModel::Index::addChainPlaces(Varo::Model::ChainConfig const& chain)
{
    for (std::size_t position = 0; position < chain.jointNames.size(); ++position) {
        auto& place = _entries[chain.jointNames[position]].lastPlace;
        if (place.chain != &chain) {
            place = {&chain, position};
        }
    }
}

void MotionModel::Index::addGroups(Varo::Model::ActuatorConfig const& actuator, std::uint32_t index)
{
    _entries[actuator.parentJoint].actuators.push_back(index);
    for (auto const& group : actuator.jointGroups) {
        for (std::size_t position = 0; position < group.size(); ++position) {
            auto& places = _entries[group[position]].groupPlaces;
            if (places.empty() || places.back().group != &group) {
                places.push_back({&actuator, &group, position});
            }
        }
    }
}

}  // namespace Sim
