#include "robot/couplings.hpp"

#include <cmath>
#include <map>
#include <string>
#include <utility>

#include "robot/kind_note.hpp"
#include "robot/link_tree_codes.hpp"
#include "robot/mimics.hpp"

namespace Varo::Model {

namespace {

/// What is noted of mimics.
struct MimicNotes {
    KindNote frozen;
    KindNote offsets;

    void report(Diagnostics& diagnostics) const
    {
        frozen.report(codes::frozenMimic, "A mimic means nothing on a joint that does not move", diagnostics);
        offsets.report(codes::mimicOffset,
                       "The zero pose of the model leaves out the offset of a mimic, which only a moved robot has",
                       diagnostics);
    }
};

/// The joint that this one mimics; none for a mimic without a meaning.
std::size_t findLeader(LinkTree& tree, Joint const& follower, MimicNotes& notes, Diagnostics& diagnostics)
{
    Mimic const& mimic = follower.mimic;
    if (!mimic.textOffset.isKnown()) {
        return none;
    }
    if (!follower.moves()) {
        notes.frozen.add(mimic.textOffset, follower.config.name);
        return none;
    }
    std::size_t const leader = find(tree.jointByName, mimic.leader.name);
    if (leader == none) {
        diagnostics.report(mimic.leader.offset, codes::unknownLeader,
                           mimic.leader.name.empty()
                               ? "This mimic does not say which joint it follows: the joint moves on its own."
                               : "There is no joint " + quoted(mimic.leader.name) + ": this one moves on its own.",
                           didYouMean(tree.closestJoint(mimic.leader.name)));
        return none;
    }
    if (!tree.joints[leader].moves()) {
        diagnostics.report(mimic.textOffset, codes::frozenLeader,
                           "The joint " + quoted(mimic.leader.name) + " does not move, and so neither does this one.");
    }
    if (mimic.offset != 0.0) {
        notes.offsets.add(mimic.offsetOffset, follower.config.name);
    }
    return leader;
}

std::vector<std::size_t> leadersOf(LinkTree const& tree)
{
    std::vector<std::size_t> leaders;
    leaders.reserve(tree.joints.size());
    for (Joint const& joint : tree.joints) {
        leaders.push_back(joint.mimic.leaderJoint);
    }
    return leaders;
}

/// Reports each cycle at its first joint, which then follows none.
void cutCycles(LinkTree& tree, Diagnostics& diagnostics)
{
    for (Cycle const& cycle : findCycles(leadersOf(tree))) {
        Mimic& mimic = tree.joints[cycle.front()].mimic;
        diagnostics.report(mimic.textOffset, codes::mimicCycle, mimicCycleText(cycle));
        mimic = {};
    }
}

/// The ratio of a follower of a follower to the one that leads them all.
void multiplyThrough(Mimic& mimic, Mimic const& leader, Diagnostics& diagnostics)
{
    if (leader.leaderJoint != none) {
        mimic.leaderJoint = leader.leaderJoint;
        mimic.offset += mimic.ratio * leader.offset;
        mimic.ratio *= leader.ratio;
    }
    if (std::abs(mimic.ratio) > largestNumber || std::abs(mimic.offset) > largestNumber) {
        diagnostics.report(mimic.textOffset, codes::notANumber, multipliersTooLarge);
        mimic = {};
    }
}

void settleMimics(LinkTree& tree, Diagnostics& diagnostics)
{
    for (std::size_t const joint : parentsFirst(leadersOf(tree))) {
        Mimic& mimic = tree.joints[joint].mimic;
        if (mimic.leaderJoint != none) {
            multiplyThrough(mimic, tree.joints[mimic.leaderJoint].mimic, diagnostics);
        }
    }
}

SubActuatorConfig makeSubActuator(Joint const& joint)
{
    SubActuatorConfig config;
    config.name = joint.config.name;
    config.ratio = static_cast<float>(joint.mimic.ratio);
    config.offset = static_cast<float>(joint.mimic.offset);
    config.textOffset = joint.config.textOffset;
    return config;
}

ActuatorConfig makeActuator(Joint const& leader)
{
    ActuatorConfig actuator;
    actuator.minAngle = leader.config.minAngle;
    actuator.maxAngle = leader.config.maxAngle;
    actuator.maxTorque = leader.config.maxTorque;
    actuator.maxAngularSpeed = leader.config.maxAngularSpeed;
    actuator.textOffset = leader.config.textOffset;
    return actuator;
}

/// By leader, the members of its coupling: itself, then its followers in the order of the text.
std::map<std::size_t, std::vector<std::size_t>> membersByLeader(LinkTree const& tree)
{
    std::map<std::size_t, std::vector<std::size_t>> members;
    for (std::size_t joint = 0; joint < tree.joints.size(); ++joint) {
        std::size_t const leader = tree.joints[joint].mimic.leaderJoint;
        if (leader != none) {
            members.try_emplace(leader, 1, leader).first->second.push_back(joint);
        }
    }
    return members;
}

}  // namespace

void followMimics(LinkTree& tree, Diagnostics& diagnostics)
{
    MimicNotes notes;
    for (Joint& joint : tree.joints) {
        std::size_t const leader = findLeader(tree, joint, notes, diagnostics);
        joint.mimic = leader == none ? Mimic() : joint.mimic;
        joint.config.mimic = leader == none && joint.moves() ? nullptr : joint.config.mimic;
        joint.mimic.leaderJoint = leader;
    }
    notes.report(diagnostics);
    cutCycles(tree, diagnostics);
    settleMimics(tree, diagnostics);
}

void addCouplings(LinkTree& tree, std::vector<std::size_t> const& buildingOrder, Records& robot,
                  Diagnostics& diagnostics)
{
    std::vector<std::size_t> lastBuilt(tree.joints.size(), none);  // by leader
    for (std::size_t const joint : buildingOrder) {
        std::size_t const leader = tree.joints[joint].mimic.leaderJoint;
        lastBuilt[leader == none ? joint : leader] = joint;
    }
    for (auto const& [leader, members] : membersByLeader(tree)) {
        JointConfig const& first = tree.joints[leader].config;
        ActuatorConfig actuator = makeActuator(tree.joints[leader]);
        actuator.name =
            tree.names.claim(first.name + "Coupling", "the coupled actuator", first.textOffset, diagnostics);
        actuator.parentJoint = tree.joints[lastBuilt[leader]].config.name;
        for (std::size_t const member : members) {
            SubActuatorConfig subActuator = makeSubActuator(tree.joints[member]);
            actuator.jointGroups.push_back({subActuator.name});
            robot.subActuators.add(std::move(subActuator));
        }
        robot.actuators.add(std::move(actuator));
    }
}

}  // namespace Varo::Model
