#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include "rules/named_pairs.hpp"
#include "rules/numbers.hpp"

/// Coupled actuators, tips of chains and start angles of the two sides.
namespace Varo::Model::Rules {

namespace {

/// Calls `visit` with the actuators that mirror each other as the text says, and with those that their names say.
template <class Visit>
void forEachActuatorPair(Facts const& facts, Visit const& visit)
{
    if (!facts.records->statesActuators) {
        return;  // they are what their joints are
    }
    for (auto const& [first, second] : facts.actuatorPairs) {
        visit(first, second);
    }
    forEachNamedPair(facts.records->actuators, [&](ActuatorConfig const& first, ActuatorConfig const& second) {
        if (first.mirrorKind == noMirror && second.mirrorKind == noMirror) {
            visit(first, second);
        }
    });
}

/// Whether one position is the other's reflection in a plane along two of its axes, or equal to it.
bool areAlikeUpToSide(Vector const& one, Vector const& other, double tolerance)
{
    int turned = 0;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        bool const isEqual = std::abs(one[axis] - other[axis]) <= tolerance;
        turned += isEqual ? 0 : 1;
        if (!isEqual && std::abs(one[axis] + other[axis]) > tolerance) {
            return false;
        }
    }
    return turned <= 1;
}

class SubJointComparison {
public:
    SubJointComparison(Facts const& facts, Report const& report) : _facts(facts), _report(report) {}

    /// Group by group. Where one has more sub-joints, that alone is told, and nothing of one that has none, which
    /// another rule tells.
    void compare(ActuatorConfig const& first, ActuatorConfig const& second) const
    {
        std::vector<std::size_t> const one = sizesOf(first);
        std::vector<std::size_t> const other = sizesOf(second);
        if (one != other && !one.empty() && !other.empty()) {
            _report.ofTwo(second, first, Part::whole,
                          "The actuators " + namesOf(first, second) + " move different numbers of joints.");
        }
        for (std::size_t group = 0; one == other && group < first.jointGroups.size(); ++group) {
            for (std::size_t i = 0; i < first.jointGroups[group].size(); ++i) {
                compareSubJoints(first.jointGroups[group][i], second.jointGroups[group][i]);
            }
        }
    }

private:
    /// Of the groups; nothing for an actuator that moves no joint.
    static std::vector<std::size_t> sizesOf(ActuatorConfig const& actuator)
    {
        std::vector<std::size_t> sizes;
        std::size_t joints = 0;
        for (auto const& group : actuator.jointGroups) {
            sizes.push_back(group.size());
            joints += group.size();
        }
        return joints == 0 ? std::vector<std::size_t>() : sizes;
    }

    void compareSubJoints(std::string const& one, std::string const& other) const
    {
        auto const* const first = _facts.records->subActuators.find(one);
        auto const* const second = _facts.records->subActuators.find(other);
        if (first == nullptr || second == nullptr) {
            return;
        }
        if (differ(std::abs(first->ratio), std::abs(second->ratio), _facts.tolerances.mass)) {
            _report.ofTwo(*second, *first, Part::ratio,
                          "The ratios of " + namesOf(*first, *second) + " differ: " + shortest(first->ratio) + " and " +
                              shortest(second->ratio) + ".");
        }
        if (!areAlikeUpToSide(fromTransform(first->placement).translation, fromTransform(second->placement).translation,
                              _facts.sides.tolerance)) {
            _report.ofTwo(
                *second, *first, Part::placement,
                "The places of " + namesOf(*first, *second) + " are neither each other's reflections nor alike.");
        }
    }

    Facts const& _facts;
    Report const& _report;
};

/// In the root frame.
Vector tipOf(Facts const& facts, ChainConfig const& chain, JointConfig const& last)
{
    return (facts.placeOf(last).link * fromTransform(chain.tipTransform)).translation;
}

/// Whether each side starts with what the other does, but in the wrong direction.
void compareStarts(Facts const& facts, Report const& report, std::string const& first, std::string const& second,
                   std::int32_t kind)
{
    auto const one = facts.startAngles.find(first);
    auto const other = facts.startAngles.find(second);
    if (one == facts.startAngles.end() || other == facts.startAngles.end() || kind == noMirror) {
        return;
    }
    bool const isReflected = kind == reflectedMirror;
    double const angle = (isReflected ? -1.0 : 1.0) * static_cast<double>(one->second->value);
    double const found = static_cast<double>(other->second->value);
    if (std::abs(angle) > facts.tolerances.limit && std::abs(angle + found) <= facts.tolerances.limit) {
        report.ofTwo(*other->second, *one->second, Part::value,
                     "The start angles of " + quoted(first) + " and " + quoted(second) + ", " +
                         shortest(one->second->value) + " and " + shortest(other->second->value) +
                         (isReflected ? ", should be opposite: the pair is reflected."
                                      : ", should be equal: the pair is not reflected."));
    }
}

}  // namespace

void findActuatorNotMirrored(Facts const& facts, Report const& report)
{
    using Of = Quantity<ActuatorConfig>;
    SubJointComparison const subJoints(facts, report);
    forEachActuatorPair(facts, [&](ActuatorConfig const& first, ActuatorConfig const& second) {
        compare(facts, report, first, second, "actuators",
                Of{&ActuatorConfig::maxTorque, Part::effort, "greatest efforts"});
        compare(facts, report, first, second, "actuators",
                Of{&ActuatorConfig::maxAngularSpeed, Part::velocity, "greatest speeds"});
        subJoints.compare(first, second);
    });
}

void findTipNotMirrored(Facts const& facts, Report const& report)
{
    auto const& joints = facts.records->joints;
    forEachNamedPair(facts.records->chains, [&](ChainConfig const& first, ChainConfig const& second) {
        if (first.jointNames.empty() || second.jointNames.empty() ||
            provedPair(facts, first.jointNames.back(), second.jointNames.back()) == nullptr) {
            return;
        }
        Vector const one = tipOf(facts, first, *joints.find(first.jointNames.back()));
        Vector const other = tipOf(facts, second, *joints.find(second.jointNames.back()));
        double const miss = length(minus(facts.sides.plane.reflected(one), other));
        if (miss > facts.sides.tolerance) {
            report.ofTwo(second, first, Part::tip,
                         "The tips of the chains " + namesOf(first, second) + " miss each other's reflection by " +
                             rounded(miss) + " m.");
        }
    });
}

void findStartNotMirrored(Facts const& facts, Report const& report)
{
    for (JointPair const& pair : facts.jointPairs) {
        if (pair.side.isLimb && pair.side.isSure) {
            compareStarts(facts, report, pair.first.name, pair.second.name, pair.kind());
        }
    }
    for (auto const& [first, second] : facts.actuatorPairs) {
        std::int32_t const kind = first.mirrorKind == second.mirrorKind ? first.mirrorKind : std::int32_t{noMirror};
        compareStarts(facts, report, first.name, second.name, kind);
    }
}

}  // namespace Varo::Model::Rules
