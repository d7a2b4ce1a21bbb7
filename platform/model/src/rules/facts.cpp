#include "rules/facts.hpp"

#include "robot/side_names.hpp"
#include "rules/inertia.hpp"
#include "rules/numbers.hpp"

namespace Varo::Model::Rules {

Facts::Facts(Robot const& robot, LintTolerances const& allowed)
    : records(recordsOf(robot)), tolerances(allowed), actuatorPairs(mutualPairs(records->actuators))
{
    NameIndex const joints = indexOf(records->joints);
    SideCandidates candidates = findSideCandidates(*records, joints);
    if (!candidates.all.empty() || !actuatorPairs.empty()) {  // otherwise nothing has a counterpart
        places = placeAtZero(*records, joints);
        sides = findSides(*records, std::move(candidates), places);
    }
    for (SidePair const& side : sides.pairs) {
        JointConfig const& first = records->joints[side.first];
        pairsOfKind[withoutSides(first.name)].push_back(jointPairs.size());
        jointPairs.push_back({first, records->joints[side.second], side});
    }
    for (PostureConfig const& posture : records->postures) {
        for (PostureAngle const& angle : posture.angles) {
            if (posture.name == "StandInit") {
                startAngles.emplace(angle.name, &angle);
            }
        }
    }
    inertiaFaults.reserve(1 + records->joints.size() + records->wheels.size());
    forEachBody(*this, [this](auto const& body) {
        inertiaFaults.push_back(faultOf(inertiaOf(body.inertiaMatrix), tolerances.inertia));
    });
}

std::string rangeText(float min, float max)
{
    return shortest(min) + " to " + shortest(max);
}

}  // namespace Varo::Model::Rules
