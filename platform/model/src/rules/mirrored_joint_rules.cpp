#include <algorithm>
#include <cmath>
#include <string_view>
#include <unordered_map>

#include "rules/numbers.hpp"
#include "rules/rules.hpp"
#include "varo/model/name_hash.hpp"

/// The two joints of a pair are made alike.
namespace Varo::Model::Rules {

namespace {

bool agree(float a, float b, double tolerance)
{
    auto const [one, other] = std::pair(static_cast<double>(a), static_cast<double>(b));
    return a == b || std::abs(one - other) <= tolerance * std::max(std::abs(one), std::abs(other));
}

/// A quantity that is the same on both sides.
struct JointQuantity {
    float JointConfig::*field;
    Part part;
    char const* name;  ///< as a sentence begins with it, in the plural
    bool isOfMotion;  ///< whether it means nothing for a joint that does not move
};

bool isMeant(JointQuantity const& quantity, JointPair const& pair)
{
    return pair.side.isLimb && pair.side.isSure &&
           (!quantity.isOfMotion || (isMoving(pair.first.jointType) && isMoving(pair.second.jointType)));
}

void findDifferent(Facts const& facts, Report const& report, JointQuantity const& quantity)
{
    for (JointPair const& pair : facts.jointPairs) {
        float const one = pair.first.*quantity.field;
        float const other = pair.second.*quantity.field;
        bool const isSpeed = quantity.part == Part::velocity;
        bool const isTold = isSpeed ? one <= 0.0F || other <= 0.0F : one < 0.0F || other < 0.0F;
        if (!isMeant(quantity, pair) || isTold || agree(one, other, facts.tolerances.mass)) {
            continue;
        }
        bool const isFirst = isFirstOdd(facts, pair, [&](JointConfig const& a, JointConfig const& b) {
            return agree(a.*quantity.field, b.*quantity.field, facts.tolerances.mass);
        });
        report.ofPair(pair, isFirst, quantity.part,
                      std::string(quantity.name) + " of " + namesOf(pair.first, pair.second) +
                          " differ: " + shortest(one) + " and " + shortest(other) + ".");
    }
}

bool isCompared(JointPair const& pair)
{
    return pair.side.isLimb && pair.side.isSure;
}

/// Only one of the two follows others, or leads them.
void findLoneMimics(Facts const& facts, Report const& report)
{
    auto const& followers = facts.records->subActuators;
    for (JointPair const& pair : facts.jointPairs) {
        bool const isFirst = followers.contains(pair.first.name);
        if (isCompared(pair) && isFirst != followers.contains(pair.second.name)) {
            report.ofPair(pair, isFirst, Part::mimic,
                          "Of " + namesOf(pair.first, pair.second) + " only one moves together with other joints.");
        }
    }
}

/// By joint, what turns its value into that of its counterpart: 0 for a joint that is in no pair, or in one of which
/// that cannot be told.
std::unordered_map<std::string_view, double, NameHash> signsOf(Facts const& facts)
{
    std::unordered_map<std::string_view, double, NameHash> signs;
    for (JointPair const& pair : facts.jointPairs) {
        std::int32_t const kind = pair.side.isSure ? pair.kind() : std::int32_t{noMirror};
        double const sign = kind == noMirror ? 0.0 : kind == reflectedMirror ? -1.0 : 1.0;
        signs.emplace(pair.first.name, sign);
        signs.emplace(pair.second.name, sign);
    }
    return signs;
}

double signOf(std::unordered_map<std::string_view, double, NameHash> const& signs, std::string const& joint)
{
    auto const found = signs.find(joint);
    return found == signs.end() ? 0.0 : found->second;
}

/// Where the signs cannot be told, the magnitudes alone have to agree.
bool agreeBySign(float one, float other, double sign, double tolerance)
{
    return sign == 0.0 ? agree(std::abs(one), std::abs(other), tolerance)
                       : agree(static_cast<float>(sign) * one, other, tolerance);
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
    findLoneMimics(facts, report);
    auto const signs = signsOf(facts);
    double const tolerance = facts.tolerances.mass;
    for (JointPair const& pair : facts.jointPairs) {
        MimicConfig const* const one = pair.first.mimic.get();
        MimicConfig const* const other = pair.second.mimic.get();
        bool const areMoving = isMoving(pair.first.jointType) && isMoving(pair.second.jointType);
        if (!isCompared(pair) || !areMoving || one == nullptr || other == nullptr) {
            continue;
        }
        double const sign = signOf(signs, pair.first.name);
        double const leaderSign = one->joint == other->joint ? 1.0 : signOf(signs, one->joint);
        if (!agreeBySign(one->multiplier, other->multiplier, sign * leaderSign, tolerance) ||
            !agreeBySign(one->offset, other->offset, sign, tolerance)) {
            report.ofPair(pair, false, Part::mimic,
                          "The mimics of " + namesOf(pair.first, pair.second) + " do not mirror: multipliers " +
                              shortest(one->multiplier) + " and " + shortest(other->multiplier) + ", offsets " +
                              shortest(one->offset) + " and " + shortest(other->offset) + ".");
        }
    }
}

}  // namespace Varo::Model::Rules
