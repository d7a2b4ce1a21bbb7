#include <cmath>

#include "rules/mirrors.hpp"
#include "rules/rule_codes.hpp"

namespace Tool::Rules {

namespace {

using Varo::Model::ActuatorConfig;

/// Whether the mirror that `config` names has another mirror than `config`, or none. That of a mirror whose own
/// reference leads nowhere is not known.
template <class Config>
bool isOneSided(Varo::Model::Table<Config> const& table, Config const& config)
{
    Config const* const mirror = mirrorOf(table, config);
    if (mirror == nullptr) {
        return false;
    }
    Config const* const back = mirrorOf(table, *mirror);
    bool const isUnknown = back == nullptr && mirror->mirrorKind != Varo::Model::noMirror;
    return back != &config && !isUnknown;
}

/// When L names R, and R one of another pair, neither L nor R is pointed back to; but only R is to blame.
template <class Config>
bool isToBlame(Varo::Model::Table<Config> const& table, Config const& config)
{
    auto const isWrong = [&table](Config const& each) {
        return isOneSided(table, each) && !isOneSided(table, *mirrorOf(table, each));
    };
    return isOneSided(table, config) && !isWrong(*mirrorOf(table, config));
}

bool agree(float a, float b, double tolerance)
{
    return a == b || std::abs(static_cast<double>(a) - static_cast<double>(b)) <= tolerance;  // infinities are equal
}

template <class Driven>
void checkLimits(Facts& facts, Driven const& first, Driven const& second)
{
    bool const isReversed = first.minAngle > first.maxAngle || second.minAngle > second.maxAngle;
    if (isReversed) {
        return;
    }
    bool const isReflected = first.mirrorKind == Varo::Model::reflectedMirror;
    bool const minAgrees =
        agree(second.minAngle, isReflected ? -first.maxAngle : first.minAngle, facts.tolerances.limit);
    bool const maxAgrees =
        agree(second.maxAngle, isReflected ? -first.minAngle : first.maxAngle, facts.tolerances.limit);
    if (!minAgrees || !maxAgrees) {
        facts.warn(second, minAgrees ? Part::maximum : Part::minimum, code::limitsNotMirrored,
                   "The limits of " + namesOf(first, second) + ", " + rangeText(first.minAngle, first.maxAngle) +
                       " and " + rangeText(second.minAngle, second.maxAngle) +
                       (isReflected ? ", are not each other's opposites." : ", do not agree."),
                   isReflected ? "A reflected pair has opposite limits."
                               : "A pair that is not reflected has the same limits.");
    }
}

template <class Driven>
void checkTable(Facts& facts, Varo::Model::Table<Driven> const& table)
{
    for (Driven const& each : table) {
        if (isToBlame(table, each)) {
            facts.warn(each, Part::mirror, code::mirrorNotMutual,
                       "The mirror " + quoted(each.mirrorName) + " does not point back to " + quoted(each.name) + ".");
        }
    }
    forEachPair(table, [&](Driven const& first, Driven const& second) {
        if (first.mirrorKind == second.mirrorKind) {
            checkLimits(facts, first, second);
        } else {
            facts.warn(second, Part::mirror, code::mirrorKindsDiffer,
                       "Of " + namesOf(first, second) + " only one says that their mirror is reflected.");
        }
    });
}

/// A joint that points at the other without being pointed back to has a finding of its own.
void checkParents(Facts& facts, ActuatorConfig const& first, ActuatorConfig const& second)
{
    auto const& joints = facts.records->joints;
    auto const* const one = joints.find(first.parentJoint);
    auto const* const other = joints.find(second.parentJoint);
    if (one == nullptr || other == nullptr || one == other) {
        return;
    }
    if (mirrorOf(joints, *one) != other && mirrorOf(joints, *other) != one) {
        facts.warn(second, Part::parent, code::actuatorsNotPaired,
                   "The actuators " + namesOf(first, second) +
                       " mirror each other, but the joints that they are attached to, " + namesOf(*one, *other) +
                       ", do not.");
    }
}

}  // namespace

void checkMirrors(Facts& facts)
{
    checkTable(facts, facts.records->joints);
    checkTable(facts, facts.records->actuators);
    forEachPair(facts.records->actuators,
                [&](ActuatorConfig const& first, ActuatorConfig const& second) { checkParents(facts, first, second); });
}

}  // namespace Tool::Rules
