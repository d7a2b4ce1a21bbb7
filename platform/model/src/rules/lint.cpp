#include "varo/model/lint.hpp"

#include <algorithm>
#include <stdexcept>

#include "range.hpp"
#include "rules/rules.hpp"

namespace Varo::Model {

namespace {

struct Rule {
    LintRule about;
    void (*look)(Rules::Facts const& facts, Rules::Report const& report);
};

/// In the order of the documentation, whose table is written from it.
constexpr Rule table[] = {
    {{{"negative-mass", Severity::warning, "A mass is below zero."}, "bodies", {}}, Rules::findNegativeMass},
    {{{"inertia-not-symmetric", Severity::warning, "An inertia matrix is not symmetric."}, "bodies", "inertia"},
     Rules::findInertiaNotSymmetric},
    {{{"inertia-not-positive", Severity::warning, "An inertia has a negative principal moment."}, "bodies", "inertia"},
     Rules::findInertiaNotPositive},
    {{{"inertia-not-possible", Severity::warning,
       "One principal moment of an inertia is greater than the two others together, which no distribution of mass "
       "gives."},
      "bodies",
      "inertia"},
     Rules::findInertiaNotPossible},
    {{{"zero-inertia", Severity::warning, "A body that a joint moves has a mass, but no inertia."}, "bodies", {}},
     Rules::findZeroInertia},
    {{{"inertia-unlike-shapes", Severity::warning,
       "An inertia is far too large or too small for the mass and the shapes of its body: its radius of gyration is "
       "more than three times, or less than a fiftieth, of how far boxes, cylinders, spheres and capsules reach from "
       "the centre of mass. Bodies with none of these, or denser than any matter, are not judged."},
      "bodies",
      {}},
     Rules::findInertiaUnlikeShapes},
    {{{"mass-unlike-others", Severity::warning,
       "A mass is more than 10000 times the median of the robot's masses or, of a body that a joint moves, less than a "
       "10000th of it."},
      "bodies",
      {}},
     Rules::findMassUnlikeOthers},
    {{{"speed-not-positive", Severity::warning,
       "The greatest speed of something that can move is stated as zero or less."},
      "joints, actuators and wheels",
      {}},
     Rules::findSpeedNotPositive},
    {{{"effort-not-positive", Severity::warning,
       "The greatest effort of something that can move is stated as zero or less."},
      "joints, actuators and wheels",
      {}},
     Rules::findEffortNotPositive},
    {{{"limits-in-degrees", Severity::warning,
       "A limit of a revolute joint is beyond two turns, and a whole or half number such as degrees are."},
      "joints",
      {}},
     Rules::findLimitsInDegrees},
    {{{"negative-damping", Severity::warning, "The damping of a joint is below zero."}, "joints", {}},
     Rules::findNegativeDamping},
    {{{"negative-friction", Severity::warning, "The friction of a joint is below zero."}, "joints", {}},
     Rules::findNegativeFriction},
    {{{"start-outside-limits", Severity::warning,
       "The angle in the posture `StandInit`, or 0 where it states none, is outside the limits. Native dialect only."},
      "postures",
      "limit"},
     Rules::findStartOutsideLimits},
    {{{"posture-outside-limits", Severity::warning, "The angle that another posture states is outside the limits."},
      "postures",
      "limit"},
     Rules::findPostureOutsideLimits},
    {{{"mirror-not-mutual", Severity::warning, "A mirror has another mirror than the element that names it, or none."},
      "joints and actuators",
      {}},
     Rules::findMirrorNotMutual},
    {{{"mirror-kinds-differ", Severity::warning,
       "Only one of two that mirror each other says that the mirror is reflected."},
      "joints and actuators",
      {}},
     Rules::findMirrorKindsDiffer},
    {{{"sides-not-mirrored", Severity::note,
       "Left and right are named, but the places of most that are do not mirror each other at zero, so that they are "
       "not compared."},
      "joints",
      "places"},
     Rules::findSidesNotMirrored},
    {{{"place-not-mirrored", Severity::warning,
       "The places of two counterparts are not each other's reflection. What they carry along is not told again."},
      "joints",
      "places"},
     Rules::findPlaceNotMirrored},
    {{{"axis-not-mirrored", Severity::warning,
       "The axes of two counterparts are not each other's reflection, in either direction."},
      "joints",
      "places"},
     Rules::findAxisNotMirrored},
    {{{"axis-direction-not-mirrored", Severity::warning,
       "Of a limb of five pairs or more, the axes of one pair are opposite in the frames of their links, those of all "
       "others "
       "alike; or the reverse."},
      "joints",
      "places"},
     Rules::findAxisDirectionNotMirrored},
    {{{"type-not-mirrored", Severity::warning,
       "Two counterparts are of different types: one moves and the other does not, say."},
      "joints",
      ""},
     Rules::findTypeNotMirrored},
    {{{"no-counterpart", Severity::warning, "One side has something that moves and that the other side lacks."},
      "joints",
      ""},
     Rules::findNoCounterpart},
    {{{"mass-not-mirrored", Severity::warning, "The masses of a mirror pair differ."}, "bodies", "mass"},
     Rules::findMassNotMirrored},
    {{{"com-not-mirrored", Severity::warning, "The centres of mass of a mirror pair are not each other's reflection."},
      "bodies",
      "com"},
     Rules::findComNotMirrored},
    {{{"inertia-not-mirrored", Severity::warning, "The inertias of a mirror pair are not each other's reflection."},
      "bodies",
      "inertia"},
     Rules::findInertiaNotMirrored},
    {{{"limits-not-mirrored", Severity::warning,
       "The limits of a mirror pair differ or, if the pair is reflected, are not each other's opposites."},
      "joints and actuators",
      "limit"},
     Rules::findLimitsNotMirrored},
    {{{"effort-not-mirrored", Severity::warning, "The greatest efforts of two counterparts differ."}, "joints", "mass"},
     Rules::findEffortNotMirrored},
    {{{"velocity-not-mirrored", Severity::warning, "The greatest velocities of two counterparts differ."},
      "joints",
      "mass"},
     Rules::findVelocityNotMirrored},
    {{{"damping-not-mirrored", Severity::warning, "The dampings of two counterparts differ."}, "joints", "mass"},
     Rules::findDampingNotMirrored},
    {{{"friction-not-mirrored", Severity::warning, "The frictions of two counterparts differ."}, "joints", "mass"},
     Rules::findFrictionNotMirrored},
    {{{"mimic-not-mirrored", Severity::warning,
       "Two counterparts follow other joints in different ratios, or with other signs than their axes ask for, or only "
       "one of them does."},
      "joints",
      "mass"},
     Rules::findMimicNotMirrored},
    {{{"shapes-not-mirrored", Severity::warning,
       "The boxes, cylinders, spheres and capsules of a mirror pair are not each other's reflections."},
      "bodies",
      "com"},
     Rules::findShapesNotMirrored},
    {{{"mesh-of-other-side", Severity::warning,
       "The mesh of a body is named for the other side, on a robot whose sides have their own meshes."},
      "bodies",
      {}},
     Rules::findMeshOfOtherSide},
    {{{"sensor-not-mirrored", Severity::warning,
       "The places of two sensors that are named for the two sides are not each other's reflection, or they are turned "
       "otherwise."},
      "sensors",
      "places"},
     Rules::findSensorNotMirrored},
    {{{"sensor-set-otherwise", Severity::warning,
       "Two sensors that are named for the two sides are of different kinds, or set differently."},
      "sensors",
      {}},
     Rules::findSensorSetOtherwise},
    {{{"wheel-not-mirrored", Severity::warning,
       "Two wheels that are named for the two sides differ in mass, effort or velocity, or are not in the places of "
       "reflections."},
      "wheels",
      "mass, places"},
     Rules::findWheelNotMirrored},
    {{{"actuator-not-mirrored", Severity::warning,
       "Two actuators of the two sides differ in effort or speed, or in number, ratios or places of their sub-joints."},
      "actuators",
      "mass, places"},
     Rules::findActuatorNotMirrored},
    {{{"tip-not-mirrored", Severity::warning,
       "The tips of two chains that are named for the two sides are not each other's reflection."},
      "chains",
      "places"},
     Rules::findTipNotMirrored},
    {{{"start-not-mirrored", Severity::warning,
       "The start angles of a mirror pair are equal where they should be opposite, or the reverse."},
      "postures",
      "limit"},
     Rules::findStartNotMirrored},
    {{{"actuators-not-paired", Severity::warning,
       "Two actuators mirror each other, but the joints that they are attached to do not."},
      "actuators",
      {}},
     Rules::findActuatorsNotPaired},
    {{{"actuator-not-reached", Severity::warning,
       "An actuator is attached to another actuator, where no model contains it."},
      "actuators",
      {}},
     Rules::findActuatorNotReached},
    {{{"idle-actuator", Severity::warning, "An actuator moves no joint."}, "actuators", {}}, Rules::findIdleActuator},
    {{{"empty-chain", Severity::warning, "A chain has no joints."}, "chains", {}}, Rules::findEmptyChain},
    {{{"unknown-material", Severity::warning, "No coefficient of friction is known for the material of a body."},
      "bodies",
      {}},
     Rules::findUnknownMaterial},
};

bool contains(std::vector<std::string> const& codes, std::string_view code)
{
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

void checkKnown(std::vector<std::string> const& codes)
{
    for (std::string const& code : codes) {
        auto const isIt = [&code](Rule const& rule) { return rule.about.code.name == code; };
        if (std::none_of(std::begin(table), std::end(table), isIt)) {
            throw std::invalid_argument("There is no rule with the code " + quoted(code) + ".");
        }
    }
}

bool applies(Rule const& rule, LintOptions const& options)
{
    std::string_view const code = rule.about.code.name;
    return (options.only.empty() || contains(options.only, code)) && !contains(options.without, code);
}

}  // namespace

std::vector<LintRule> lintRules()
{
    std::vector<LintRule> rules;
    for (Rule const& rule : table) {
        rules.push_back(rule.about);
    }
    return rules;
}

Findings lint(Robot const& robot, LintOptions const& options)
{
    checkKnown(options.only);
    checkKnown(options.without);
    Rules::Facts const facts(robot, options.tolerances);
    Diagnostics diagnostics(robot.source());
    for (Rule const& rule : table) {
        if (applies(rule, options)) {
            rule.look(facts, Rules::Report(robot, rule.about.code, diagnostics));
        }
    }
    return diagnostics.findings();
}

}  // namespace Varo::Model
