#include "description/motion_model_index.hpp"

#include <unordered_set>

namespace Sim {

namespace {

/// Calls `visit` with the position of every name that does not stand earlier in `names` already.
template <typename Visit>
void forEachFirstPlace(std::vector<std::string> const& names, Visit visit)
{
    std::unordered_set<std::string_view> seen;
    for (std::size_t position = 0; position < names.size(); ++position) {
        if (seen.insert(names[position]).second) {
            visit(position);
        }
    }
}

}  // namespace

MotionModel::Index::Index(std::vector<std::string> const& chainNames, Varo::Model::ChainTable const& chains,
                          Varo::Model::ActuatorTable const& actuators,
                          std::vector<std::pair<std::string, float>> const& startAngles,
                          std::vector<std::string> const& reflectionForced)
{
    for (auto const& name : chainNames) {
        addListedChain(name, chains.at(name));
    }
    for (auto const& entry : chains) {
        addChainPlaces(entry.second);
    }
    for (auto const& entry : actuators) {
        addActuator(entry);
    }
    for (auto const& [name, angle] : startAngles) {
        auto& known = _relations[name].startAngle;
        known = known.value_or(angle);  // the first one counts
    }
    for (auto const& name : reflectionForced) {
        _relations[name].reflectionForced = true;
    }
}

NameRelations const& MotionModel::Index::of(std::string const& name) const
{
    static NameRelations const none;
    auto const found = _relations.find(name);
    return found == _relations.end() ? none : found->second;
}

void MotionModel::Index::addListedChain(std::string const& name, Varo::Model::ChainConfig const& chain)
{
    auto const& joints = chain.jointNames;
    forEachFirstPlace(joints, [&](std::size_t position) {
        auto& joint = _relations[joints[position]];
        if (joint.firstChain == nullptr) {
            joint.firstChain = &name;
        }
        joint.branches.push_back({position + 1 < joints.size() ? &joints[position + 1] : nullptr, true});
    });
    if (!joints.empty()) {
        _relations[chain.parentJoint].branches.push_back({&joints.front(), false});
    }
}

void MotionModel::Index::addChainPlaces(Varo::Model::ChainConfig const& chain)
{
    forEachFirstPlace(chain.jointNames, [&](std::size_t position) {
        _relations[chain.jointNames[position]].lastPlace = {&chain, position};
    });
}

void MotionModel::Index::addActuator(Varo::Model::ActuatorTable::value_type const& entry)
{
    auto const& actuator = entry.second;
    _relations[actuator.parentJoint].actuators.push_back(&entry);
    for (auto const& group : actuator.jointGroups) {
        forEachFirstPlace(group, [&](std::size_t position) {
            _relations[group[position]].groupPlaces.push_back({&actuator, &group, position});
        });
    }
}

}  // namespace Sim
