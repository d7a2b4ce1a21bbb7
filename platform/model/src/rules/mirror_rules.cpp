#include <algorithm>
#include <cmath>
#include <functional>

#include "rules/mirrored_bodies.hpp"

namespace Varo::Model::Rules {

namespace {

/// Whether the mirror that `config` names has another mirror than `config`, or none. That of a mirror whose own
/// reference leads nowhere is not known.
template <class Config>
bool isOneSided(Table<Config> const& table, Config const& config)
{
    Config const* const mirror = mirrorOf(table, config);
    if (mirror == nullptr) {
        return false;
    }
    Config const* const back = mirrorOf(table, *mirror);
    bool const isUnknown = back == nullptr && mirror->mirrorKind != noMirror;
    return back != &config && !isUnknown;
}

/// When L names R, and R one of another pair, neither L nor R is pointed back to; but only R is to blame.
template <class Config>
bool isToBlame(Table<Config> const& table, Config const& config)
{
    auto const isWrong = [&table](Config const& each) {
        return isOneSided(table, each) && !isOneSided(table, *mirrorOf(table, each));
    };
    return isOneSided(table, config) && !isWrong(*mirrorOf(table, config));
}

template <class Config>
void findNotMutual(Report const& report, Table<Config> const& table)
{
    for (Config const& each : table) {
        if (isToBlame(table, each)) {
            report.at(each, Part::mirror,
                      "The mirror " + quoted(each.mirrorName) + " does not point back to " + quoted(each.name) + ".");
        }
    }
}

template <class Config>
void findKindsDiffer(Report const& report, std::vector<Pair<Config>> const& pairs)
{
    for (auto const& [first, second] : pairs) {
        if (first.mirrorKind != second.mirrorKind) {
            report.at(second, Part::mirror,
                      "Of " + namesOf(first, second) + " only one says that their mirror is reflected.");
        }
    }
}

bool agree(float a, float b, double tolerance)
{
    return a == b || std::abs(static_cast<double>(a) - static_cast<double>(b)) <= tolerance;  // infinities are equal
}

template <class Driven>
bool areReversed(Driven const& first, Driven const& second)
{
    return first.minAngle > first.maxAngle || second.minAngle > second.maxAngle;  // told already
}

/// Which limits of the second are not what those of the first make them.
struct LimitMisses {
    bool minimum;
    bool maximum;

    bool any() const { return minimum || maximum; }
};

template <class Driven>
LimitMisses limitMisses(Driven const& first, Driven const& second, bool isReflected, double tolerance)
{
    return {!agree(second.minAngle, isReflected ? -first.maxAngle : first.minAngle, tolerance),
            !agree(second.maxAngle, isReflected ? -first.minAngle : first.maxAngle, tolerance)};
}

template <class Driven>
void reportLimits(Report const& report, Driven const& blamed, Driven const& other, bool isReflected,
                  LimitMisses const& misses)
{
    report.ofTwo(
        blamed, other, misses.minimum ? Part::minimum : Part::maximum,
        "The limits of " + namesOf(other, blamed) + ", " + rangeText(other.minAngle, other.maxAngle) + " and " +
            rangeText(blamed.minAngle, blamed.maxAngle) +
            (isReflected ? ", are not each other's opposites." : ", do not agree."),
        isReflected ? "A reflected pair has opposite limits." : "A pair that is not reflected has the same limits.");
}

/// As they are, or as those of a reflected joint.
bool haveLikeLimits(JointConfig const& one, JointConfig const& other, double tolerance)
{
    return !limitMisses(one, other, false, tolerance).any() || !limitMisses(one, other, true, tolerance).any();
}

/// Of two joints whose limits miss each other's.
void reportLimits(Facts const& facts, Report const& report, JointPair const& pair)
{
    double const tolerance = facts.tolerances.limit;
    bool const isReflected = pair.kind() == reflectedMirror;
    bool const isFirst = isFirstOdd(facts, pair, [&](JointConfig const& one, JointConfig const& other) {
        return haveLikeLimits(one, other, tolerance);
    });
    JointConfig const& blamed = isFirst ? pair.first : pair.second;
    JointConfig const& other = isFirst ? pair.second : pair.first;
    reportLimits(report, blamed, other, isReflected, limitMisses(other, blamed, isReflected, tolerance));
}

bool contains(std::vector<JointPair const*> const& odd, JointPair const& pair)
{
    return std::binary_search(odd.begin(), odd.end(), &pair, std::less<>());
}

bool haveLimits(JointPair const& pair)
{
    return pair.side.isLimb && pair.side.isSure && pair.side.isOfOneType && pair.kind() != noMirror &&
           isMoving(pair.first.jointType) && !areReversed(pair.first, pair.second);
}

}  // namespace

void findMirrorNotMutual(Facts const& facts, Report const& report)
{
    findNotMutual(report, facts.records->joints);
    findNotMutual(report, facts.records->actuators);
}

void findMirrorKindsDiffer(Facts const& facts, Report const& report)
{
    findKindsDiffer(report, mutualPairs(facts.records->joints));
    findKindsDiffer(report, facts.actuatorPairs);
}

void findLimitsNotMirrored(Facts const& facts, Report const& report)
{
    bool const areCopies = areSidesCopies(facts);
    auto const odd = pairsOfOddAxis(facts);
    for (JointPair const& pair : facts.jointPairs) {
        if (!haveLimits(pair) || contains(odd, pair)) {
            continue;
        }
        bool const isReflected = pair.kind() == reflectedMirror;
        LimitMisses const misses = limitMisses(pair.first, pair.second, isReflected, facts.tolerances.limit);
        bool const isCopy = pair.first.endTransform.isNear(pair.second.endTransform) &&
                            !limitMisses(pair.first, pair.second, false, facts.tolerances.limit).any();
        if (misses.any() && !(areCopies && isCopy)) {
            reportLimits(facts, report, pair);
        }
    }
    for (auto const& [first, second] : facts.actuatorPairs) {
        if (!facts.records->statesActuators || areReversed(first, second) || first.mirrorKind != second.mirrorKind) {
            continue;  // that of their joints, or told already
        }
        bool const isReflected = first.mirrorKind == reflectedMirror;
        LimitMisses const misses = limitMisses(first, second, isReflected, facts.tolerances.limit);
        if (misses.any()) {
            reportLimits(report, second, first, isReflected, misses);
        }
    }
}

/// A joint that points at the other without being pointed back to has a finding of its own.
void findActuatorsNotPaired(Facts const& facts, Report const& report)
{
    auto const& joints = facts.records->joints;
    for (auto const& [first, second] : facts.actuatorPairs) {
        if (!facts.records->statesActuators) {
            return;  // what their joints are attached to says nothing
        }
        auto const* const one = joints.find(first.parentJoint);
        auto const* const other = joints.find(second.parentJoint);
        bool const areTwo = one != nullptr && other != nullptr && one != other;
        if (areTwo && mirrorOf(joints, *one) != other && mirrorOf(joints, *other) != one) {
            report.at(second, Part::parent,
                      "The actuators " + namesOf(first, second) +
                          " mirror each other, but the joints that they are attached to, " + namesOf(*one, *other) +
                          ", do not.");
        }
    }
}

}  // namespace Varo::Model::Rules
