#include "urdf/couplings.hpp"

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <utility>

#include "urdf/numbers.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Urdf {

namespace {

class MimicReader {
public:
    MimicReader(Description const& description, Diagnostics& diagnostics)
        : _description(description),
          _diagnostics(diagnostics),
          _followings(description.joints.size()),
          _states(description.joints.size(), State::fresh)
    {}

    std::vector<Following> readAll();

private:
    enum class State : char { fresh, read, settled };

    void read(std::size_t joint);
    void settle(std::size_t joint);
    void reportCircle(std::size_t joint);
    void reportOverflow(std::size_t joint);

    Description const& _description;
    Diagnostics& _diagnostics;
    std::vector<Following> _followings;
    std::vector<State> _states;
};

void MimicReader::read(std::size_t index)
{
    _states[index] = State::read;
    Joint const& joint = _description.joints[index];
    if (!joint.mimic) {
        return;
    }
    if (joint.isFixed()) {
        _diagnostics.report(at(joint.mimic), codes::frozenMimic, "This joint does not move: its mimic means nothing.");
        return;
    }
    double const multiplier = readNumber(joint.mimic, "multiplier", 1.0, _diagnostics);
    double const offset = readNumber(joint.mimic, "offset", 0.0, _diagnostics);
    std::string_view const name = joint.mimic.attribute("joint").value();
    std::size_t const leader = find(_description.jointByName, name);
    if (leader == none) {
        _diagnostics.report(at(joint.mimic, "joint"), codes::unknownLeader,
                            name.empty() ? "This mimic does not say which joint it follows."
                                         : "There is no joint " + quoted(name) + ".");
        return;
    }
    if (_description.joints[leader].isFixed()) {
        _diagnostics.report(at(joint.mimic), codes::frozenLeader,
                            "The joint " + quoted(name) + " does not move, and so neither does this one.");
    }
    if (offset != 0.0) {
        _diagnostics.report(at(joint.mimic, "offset"), codes::mimicOffset,
                            "This offset is in the record only: the model knows ratios, not offsets.");
    }
    _followings[index] = {leader, multiplier, offset};
}

/// Follows the mimics up to a joint that is settled or mimics none, then multiplies through on the way back.
void MimicReader::settle(std::size_t start)
{
    std::vector<std::size_t> path;
    std::size_t joint = start;
    while (joint != none && _states[joint] == State::fresh) {
        read(joint);
        path.push_back(joint);
        joint = _followings[joint].leader;
    }
    if (joint != none && _states[joint] == State::read) {
        reportCircle(joint);
    }
    for (auto follower = path.rbegin(); follower != path.rend(); ++follower) {
        Following& following = _followings[*follower];
        _states[*follower] = State::settled;
        if (following.leader == none) {
            continue;
        }
        Following const& above = _followings[following.leader];
        if (above.leader != none) {
            following = {above.leader, following.ratio * above.ratio,
                         following.ratio * above.offset + following.offset};
        }
        if (std::abs(following.ratio) > largestNumber || std::abs(following.offset) > largestNumber) {
            reportOverflow(*follower);
        }
    }
}

void MimicReader::reportCircle(std::size_t joint)
{
    _diagnostics.report(at(_description.joints[joint].mimic), codes::mimicCircle,
                        "This joint mimics itself, or a joint that follows it.");
    _followings[joint] = {};
}

void MimicReader::reportOverflow(std::size_t joint)
{
    _diagnostics.report(at(_description.joints[joint].mimic), codes::notANumber,
                        "The multipliers of this mimic and of those that it leads to exceed all bounds together.");
    _followings[joint] = {};
}

std::vector<Following> MimicReader::readAll()
{
    for (std::size_t joint = 0; joint < _states.size(); ++joint) {
        settle(joint);
    }
    return std::move(_followings);
}

SubActuatorConfig makeSubActuator(Joint const& joint, Following const& following)
{
    SubActuatorConfig config;
    config.name = joint.config.name;
    config.ratio = static_cast<float>(following.ratio);
    config.offset = static_cast<float>(following.offset);
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

/// By leader, the members of its coupling: itself, then its followers in the order of the file.
std::map<std::size_t, std::vector<std::size_t>> membersByLeader(std::vector<Following> const& followings)
{
    std::map<std::size_t, std::vector<std::size_t>> members;
    for (std::size_t joint = 0; joint < followings.size(); ++joint) {
        std::size_t const leader = followings[joint].leader;
        if (leader != none) {
            members.try_emplace(leader, 1, leader).first->second.push_back(joint);
        }
    }
    return members;
}

}  // namespace

std::vector<Following> followMimics(Description const& description, Diagnostics& diagnostics)
{
    return MimicReader(description, diagnostics).readAll();
}

void makeCouplings(Description const& description, std::vector<Following> const& followings,
                   std::vector<std::size_t> const& buildingOrder, UniqueNames& names, Records& robot,
                   Diagnostics& diagnostics)
{
    std::vector<std::size_t> placeOf(buildingOrder.size());
    for (std::size_t place = 0; place < buildingOrder.size(); ++place) {
        placeOf[buildingOrder[place]] = place;
    }
    auto const builtBefore = [&](std::size_t a, std::size_t b) { return placeOf[a] < placeOf[b]; };
    for (auto const& [leader, members] : membersByLeader(followings)) {
        Joint const& first = description.joints[leader];
        std::size_t const last = *std::max_element(members.begin(), members.end(), builtBefore);
        ActuatorConfig actuator = makeActuator(first);
        actuator.name = names.claim(first.config.name + "Coupling", "the coupled actuator", first.node, diagnostics);
        actuator.parentJoint = description.joints[last].config.name;
        for (std::size_t const member : members) {
            SubActuatorConfig subActuator = makeSubActuator(description.joints[member], followings[member]);
            actuator.jointGroups.push_back({subActuator.name});
            robot.subActuators.add(std::move(subActuator));
        }
        robot.actuators.add(std::move(actuator));
    }
}

}  // namespace Varo::Model::Urdf
