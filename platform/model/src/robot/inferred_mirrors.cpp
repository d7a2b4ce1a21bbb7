#include <algorithm>
#include <utility>
#include <vector>

#include "robot/link_tree.hpp"
#include "robot/mirror_pairs.hpp"
#include "varo/model/name_index.hpp"

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
void pairActuators(Records& records, std::vector<JointConfig const*> const& joints)
{
    if (records.actuators.empty()) {
        return;
    }
    NameIndex byName;
    for (std::size_t i = 0; i < joints.size(); ++i) {
        byName.add(joints[i]->name, static_cast<std::uint32_t>(i));
    }
    NameIndex byLeader;
    for (std::size_t i = 0; i < records.actuators.size(); ++i) {
        ActuatorConfig& actuator = records.actuators[i];
        std::size_t const found = find(byName, actuator.jointGroups.front().front());
        if (found == none) {
            continue;
        }
        JointConfig const& leader = *joints[found];
        byLeader.add(leader.name, static_cast<std::uint32_t>(i));
        std::size_t const other = find(byLeader, leader.mirrorName);
        if (other != none && records.actuators[other].jointGroups.size() == actuator.jointGroups.size()) {
            makeMirrors(records.actuators[other], actuator, leader.mirrorKind);
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
    NameIndex const joints = indexOf(records.joints);
    SideCandidates candidates = findSideCandidates(records, joints);
    if (candidates.all.empty()) {
        return;  // without looking where the joints are
    }
    std::vector<JointConfig const*> mirrored;
    for (SidePair const& pair : findSides(records, std::move(candidates), placeAtZero(records, joints)).pairs) {
        JointConfig& first = records.joints[pair.first];
        JointConfig& second = records.joints[pair.second];
        if (pair.isProved() && isMoving(first.jointType)) {
            makeMirrors(first, second, pair.kind);
            mirrored.push_back(&first);
            mirrored.push_back(&second);
        }
    }
    pairActuators(records, mirrored);
}

}  // namespace Varo::Model
