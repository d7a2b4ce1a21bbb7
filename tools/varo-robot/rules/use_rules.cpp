#include <algorithm>
#include <string_view>

#include "rules/facts.hpp"
#include "rules/rule_codes.hpp"
#include "varo/model/friction.hpp"

namespace Tool::Rules {

namespace {

using Varo::Model::ActuatorConfig;

bool movesNothing(ActuatorConfig const& actuator)
{
    return std::all_of(actuator.jointGroups.begin(), actuator.jointGroups.end(),
                       [](auto const& group) { return group.empty(); });
}

/// What hangs on joints that the tree lacks needs no rule: the reader reports those joints.
void checkActuator(Facts& facts, ActuatorConfig const& actuator)
{
    bool const isOnActuator =
        facts.joints.count(actuator.parentJoint) == 0 && facts.actuators.count(actuator.parentJoint) != 0;
    if (isOnActuator) {
        facts.warn({"actuator", actuator.name, "@parent"}, code::actuatorNotReached,
                   "The actuator " + quoted(actuator.name) + " hangs on another actuator, where no model reaches it.",
                   "Hang it on a joint.");
    } else if (movesNothing(actuator)) {
        facts.warn({"actuator", actuator.name}, code::idleActuator,
                   "The actuator " + quoted(actuator.name) + " moves no joint.");
    }
}

}  // namespace

void checkUse(Facts& facts)
{
    for (std::string const& name : facts.actuatorNames) {
        checkActuator(facts, facts.actuators.at(name));
    }
    for (std::string const& name : facts.chainNames) {
        if (facts.chains.at(name).jointNames.empty()) {
            facts.warn({"chain", name}, code::emptyChain, "The chain " + quoted(name) + " has no joints.");
        }
    }
    forEachBody(facts, [&](std::string_view element, auto const& body) {
        auto const material = body.attributes.find("material");
        if (material != body.attributes.end() && !Varo::Model::isFrictionMaterial(material->second)) {
            facts.warn({element, body.name, "attribute[@name='material']/@value"}, code::unknownMaterial,
                       "There is no coefficient of friction for the material " + quoted(material->second) + ".");
        }
    });
}

}  // namespace Tool::Rules
