#include "description/motion_model_index.hpp"

namespace Sim {

MotionModel::Index::Index(MotionModel const& model)
{
    _entries.reserve(model._joints.size() + model._subActuators.size() + model._actuators.size() +
                     model._wheels.size() + model._sensors.size() + 1);
    addRecords(model._joints, &NameEntry::joint);
    addRecords(model._subActuators, &NameEntry::subActuator);
    addRecords(model._actuators, &NameEntry::actuator);
    addRecords(model._wheels, &NameEntry::wheel);
    addRecords(model._sensors, &NameEntry::sensor);
    _entries[model._root.name].root = &model._root;

    for (auto const& name : model._chainNames) {
        addListedChain(name, model._chains.at(name));
    }
    for (auto const& entry : model._chains) {
        addChainPlaces(entry.second);
    }
    for (auto const& entry : model._actuators) {
        addGroups(entry);
    }
    for (auto const& [name, angle] : model._startAngles) {
        auto& known = _entries[name].startAngle;
        known = known.value_or(angle);  // the first one counts
    }
    for (auto const& name : model._reflectionForced) {
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
void MotionModel::Index::addRecords(std::map<std::string, Record> const& table, Record const* NameEntry::*record)
{
    for (auto const& [name, value] : table) {
        _entries[name].*record = &value;
    }
}

void MotionModel::Index::addListedChain(std::string const& name, Varo::Model::ChainConfig const& chain)
{
    auto const& joints = chain.jointNames;
    for (std::size_t position = 0; position < joints.size(); ++position) {
        auto& joint = _entries[joints[position]];
        if (!joint.branches.empty() && joint.branches.back().chain == &name) {
            continue;  // listed twice
        }
        if (joint.firstChain == nullptr) {
            joint.firstChain = &name;
        }
        joint.branches.push_back({&name, position + 1 < joints.size() ? &joints[position + 1] : nullptr, true});
    }
    if (!joints.empty()) {
        _entries[chain.parentJoint].branches.push_back({&name, &joints.front(), false});
    }
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

void MotionModel::Index::addGroups(Varo::Model::ActuatorTable::value_type const& entry)
{
    auto const& actuator = entry.second;
    _entries[actuator.parentJoint].actuators.push_back(&entry);
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
