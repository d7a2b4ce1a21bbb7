#include <cmath>

#include "rules/mirrors.hpp"
#include "rules/rule_codes.hpp"

namespace Tool::Rules {

namespace {

using Varo::Model::ActuatorConfig;

/// Whether the mirror that `config` names has another mirror than `config`, or none. That of a mirror whose own
/// reference leads nowhere is not known.
template <class Config>
bool isOneSided(std::map<std::string, Config> const& table, Config const& config)
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
bool isToBlame(std::map<std::string, Config> const& table, Config const& config)
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
void checkLimits(Facts& facts, char const* element, Driven const& first, Driven const& second)
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
        facts.warn({element, second.name, minAgrees ? "@max" : "@min"}, code::limitsNotMirrored,
                   "The limits of " + namesOf(first, second) + ", " + rangeText(first.minAngle, first.maxAngle) +
                       " and " + rangeText(second.minAngle, second.maxAngle) +
                       (isReflected ? ", are not each other's opposites." : ", do not agree."),
                   isReflected ? "A reflected pair has opposite limits."
                               : "A pair that is not reflected has the same limits.");
    }
}

template <class Driven>
void checkTable(Facts& facts, char const* element, std::vector<std::string> const& names,
                std::map<std::string, Driven> const& table)
{
    for (std::string const& name : names) {
        Driven const& each = table.at(name);
        if (isToBlame(table, each)) {
            facts.warn({element, name, "mirror"}, code::mirrorNotMutual,
                       "The mirror " + quoted(each.mirrorName) + " does not point back to " + quoted(name) + ".");
        }
    }
    forEachPair(names, table, [&](Driven const& first, Driven const& second) {
        if (first.mirrorKind == second.mirrorKind) {
            checkLimits(facts, element, first, second);
        } else {
            facts.warn({element, second.name, "mirror"}, code::mirrorKindsDiffer,
                       "Of " + namesOf(first, second) + " only one says that their mirror is reflected.");
        }
    });
}

/// A joint that points at the other without being pointed back to has a finding of its own.
void checkParents(Facts& facts, ActuatorConfig const& first, ActuatorConfig const& second)
{
    auto const one = facts.joints.find(first.parentJoint);
    auto const other = facts.joints.find(second.parentJoint);
    if (one == facts.joints.end() || other == facts.joints.end() || one == other) {
        return;
    }
    if (mirrorOf(facts.joints, one->second) != &other->second &&
        mirrorOf(facts.joints, other->second) != &one->second) {
        facts.warn({"actuator", second.name, "@parent"}, code::actuatorsNotPaired,
                   "The actuators " + namesOf(first, second) +
                       " mirror each other, but the joints that they hang on, " + namesOf(one->second, other->second) +
                       ", do not.");
    }
}

}  // namespace

void checkMirrors(Facts& facts)
{
    checkTable(facts, "joint", facts.jointNames, facts.joints);
    checkTable(facts, "actuator", facts.actuatorNames, facts.actuators);
    forEachPair(facts.actuatorNames, facts.actuators,
                [&](ActuatorConfig const& first, ActuatorConfig const& second) { checkParents(facts, first, second); });
}

}  // namespace Tool::Rules
