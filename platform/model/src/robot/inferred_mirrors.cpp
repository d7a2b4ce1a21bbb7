#include <algorithm>
#include <unordered_map>

#include "robot/mirror_pairs.hpp"

namespace Varo::Model {

namespace {

template <class Config>
void makeMirrors(Config& one, Config& other, std::int32_t kind)
{
    one.mirrorKind = other.mirrorKind = kind;
    one.mirrorName = other.name;
    other.mirrorName = one.name;
}

/// Coupled actuators are called after their leaders, which they drive first.
void pairActuators(Records& records, std::unordered_map<std::string, JointConfig const*> const& joints)
{
    std::unordered_map<std::string, std::size_t> byLeader;
    for (std::size_t i = 0; i < records.actuators.size(); ++i) {
        ActuatorConfig& actuator = records.actuators[i];
        auto const leader = joints.find(actuator.jointGroups.front().front());
        if (leader == joints.end()) {
            continue;
        }
        byLeader.emplace(leader->first, i);
        auto const other = byLeader.find(leader->second->mirrorName);
        if (other != byLeader.end() &&
            records.actuators[other->second].jointGroups.size() == actuator.jointGroups.size()) {
            makeMirrors(records.actuators[other->second], actuator, leader->second->mirrorKind);
        }
    }
}

}  // namespace

void inferMirrors(Records& records)
{
    auto const isStated = [](JointConfig const& joint) { return joint.mirrorKind != noMirror; };
    if (std::any_of(records.joints.begin(), records.joints.end(), isStated)) {
        return;
    }
    std::unordered_map<std::string, JointConfig const*> mirrored;
    for (SidePair const& pair : findSides(records, placeAtZero(records)).pairs) {
        JointConfig& first = records.joints[pair.first];
        JointConfig& second = records.joints[pair.second];
        if (pair.isProved() && isMoving(first.jointType)) {
            makeMirrors(first, second, pair.kind);
            mirrored.emplace(first.name, &first);
            mirrored.emplace(second.name, &second);
        }
    }
    pairActuators(records, mirrored);
}

}  // namespace Varo::Model
