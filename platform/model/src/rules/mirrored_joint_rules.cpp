#include <algorithm>
#include <cmath>

#include "robot/side_names.hpp"
#include "rules/numbers.hpp"
#include "rules/rules.hpp"

/// The two joints of a pair are made alike.
namespace Varo::Model::Rules {

namespace {

bool agree(float a, float b, double tolerance)
{
    auto const [one, other] = std::pair(static_cast<double>(a), static_cast<double>(b));
    return a == b || std::abs(one - other) <= tolerance * std::max(std::abs(one), std::abs(other));
}

/// A quantity that is the same on both sides.
struct Quantity {
    float JointConfig::*field;
    Part part;
    char const* name;  ///< as a sentence begins with it, in the plural
    bool isOfMotion;  ///< whether it means nothing for a joint that does not move
};

bool isMeant(Quantity const& quantity, JointPair const& pair)
{
    return pair.side.isLimb && pair.side.isSure &&
           (!quantity.isOfMotion || (isMoving(pair.first.jointType) && isMoving(pair.second.jointType)));
}

/// How many other joints of the kind, on other legs say, have the value.
std::ptrdiff_t countOthers(Facts const& facts, JointPair const& pair, Quantity const& quantity, float value)
{
    std::ptrdiff_t count = 0;
    for (std::size_t const index : facts.pairsOfKind.at(withoutSides(pair.first.name))) {
        JointPair const& other = facts.jointPairs[index];
        bool const isOther = &other.side != &pair.side;
        count += isOther && agree(other.first.*quantity.field, value, facts.tolerances.mass) ? 1 : 0;
        count += isOther && agree(other.second.*quantity.field, value, facts.tolerances.mass) ? 1 : 0;
    }
    return count;
}

void findDifferent(Facts const& facts, Report const& report, Quantity const& quantity)
{
    for (JointPair const& pair : facts.jointPairs) {
        float const one = pair.first.*quantity.field;
        float const other = pair.second.*quantity.field;
        bool const isSpeed = quantity.part == Part::velocity;
        bool const isTold = isSpeed ? one <= 0.0F || other <= 0.0F : one < 0.0F || other < 0.0F;
        if (!isMeant(quantity, pair) || isTold || agree(one, other, facts.tolerances.mass)) {
            continue;
        }
        bool const isFirst = countOthers(facts, pair, quantity, other) > countOthers(facts, pair, quantity, one);
        report.ofTwo(isFirst ? pair.first : pair.second, isFirst ? pair.second : pair.first, quantity.part,
                     std::string(quantity.name) + " of " + namesOf(pair.first, pair.second) +
                         " differ: " + shortest(one) + " and " + shortest(other) + ".");
    }
}

}  // namespace

void findMassNotMirrored(Facts const& facts, Report const& report)
{
    findDifferent(facts, report, {&JointConfig::mass, Part::mass, "The masses", false});
}

void findEffortNotMirrored(Facts const& facts, Report const& report)
{
    findDifferent(facts, report, {&JointConfig::maxTorque, Part::effort, "The greatest efforts", true});
}

void findVelocityNotMirrored(Facts const& facts, Report const& report)
{
    findDifferent(facts, report, {&JointConfig::maxAngularSpeed, Part::velocity, "The greatest velocities", true});
}

void findDampingNotMirrored(Facts const& facts, Report const& report)
{
    findDifferent(facts, report, {&JointConfig::damping, Part::damping, "The dampings", true});
}

void findFrictionNotMirrored(Facts const& facts, Report const& report)
{
    findDifferent(facts, report, {&JointConfig::friction, Part::friction, "The frictions", true});
}

/// What follows its leader on one side does so on the other, turned round where the axes are.
void findMimicNotMirrored(Facts const& facts, Report const& report)
{
    auto const& followers = facts.records->subActuators;
    for (JointPair const& pair : facts.jointPairs) {
        SubActuatorConfig const* const one = followers.find(pair.first.name);
        SubActuatorConfig const* const other = followers.find(pair.second.name);
        if (!pair.side.isLimb || !pair.side.isSure || (one == nullptr && other == nullptr)) {
            continue;
        }
        if (one == nullptr || other == nullptr) {
            bool const isFirst = one != nullptr;
            report.ofTwo(isFirst ? pair.first : pair.second, isFirst ? pair.second : pair.first, Part::mimic,
                         "Of " + namesOf(pair.first, pair.second) + " only one moves together with other joints.");
        } else if (!agree(std::abs(one->ratio), std::abs(other->ratio), facts.tolerances.mass) ||
                   !agree(std::abs(one->offset), std::abs(other->offset), facts.tolerances.mass)) {
            report.ofTwo(pair.second, pair.first, Part::mimic,
                         "The mimics of " + namesOf(pair.first, pair.second) + " differ: multipliers " +
                             shortest(one->ratio) + " and " + shortest(other->ratio) + ", offsets " +
                             shortest(one->offset) + " and " + shortest(other->offset) + ".");
        }
    }
}

}  // namespace Varo::Model::Rules
