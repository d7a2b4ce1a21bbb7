#include "robot/mimics.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "robot/link_tree.hpp"
#include "robot/link_tree_codes.hpp"

namespace Varo::Model {

namespace {

using JointRecords = Table<JointConfig>;

/// By joint, the one that it mimics.
std::vector<std::size_t> leadersOf(JointRecords const& joints)
{
    NameIndex byName;
    byName.reserve(joints.size());
    for (std::size_t joint = 0; joint < joints.size(); ++joint) {
        byName.add(joints[joint].name, static_cast<std::uint32_t>(joint));
    }
    std::vector<std::size_t> leaders;
    leaders.reserve(joints.size());
    for (JointConfig const& joint : joints) {
        leaders.push_back(joint.mimic == nullptr ? none : find(byName, joint.mimic->joint));
    }
    return leaders;
}

void checkMultipliers(JointRecords const& joints, std::vector<std::size_t> const& leaders, Diagnostics& diagnostics)
{
    std::vector<Mimic> mimics(joints.size());  // of each joint, in terms of the one that leads in the end
    for (std::size_t const joint : parentsFirst(leaders)) {
        if (leaders[joint] == none) {
            continue;
        }
        MimicConfig const& stated = *joints[joint].mimic;
        Mimic const& leader = mimics[leaders[joint]];
        double const multiplier = static_cast<double>(stated.multiplier);
        double const ratio = multiplier * leader.ratio;
        double const offset = multiplier * leader.offset + static_cast<double>(stated.offset);
        if (std::abs(ratio) > largestNumber || std::abs(offset) > largestNumber) {
            diagnostics.report(stated.textOffset, codes::notANumber, multipliersTooLarge);
        } else {
            mimics[joint].ratio = ratio;
            mimics[joint].offset = offset;
        }
    }
}

}  // namespace

std::string mimicCycleText(Cycle const& cycle)
{
    return cycle.size() == 1 ? "This joint mimics itself."
                             : "This joint mimics one that, by way of others, mimics this joint.";
}

void checkMimics(Records const& records, Diagnostics& diagnostics)
{
    JointRecords const& joints = records.joints;
    if (std::none_of(joints.begin(), joints.end(), [](JointConfig const& joint) { return joint.mimic != nullptr; })) {
        return;
    }
    std::vector<std::size_t> const leaders = leadersOf(joints);
    std::vector<Cycle> const cycles = findCycles(leaders);
    for (Cycle const& cycle : cycles) {
        diagnostics.report(joints[cycle.front()].mimic->textOffset, codes::mimicCycle, mimicCycleText(cycle));
    }
    if (cycles.empty()) {
        checkMultipliers(joints, leaders, diagnostics);
    }
}

}  // namespace Varo::Model
