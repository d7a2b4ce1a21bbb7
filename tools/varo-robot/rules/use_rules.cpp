#include <algorithm>

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

/// What is attached to joints that the tree lacks needs no rule: the reader reports those joints.
void checkActuator(Facts& facts, ActuatorConfig const& actuator)
{
    bool const isOnActuator = !facts.records->joints.contains(actuator.parentJoint) &&
                              facts.records->actuators.contains(actuator.parentJoint);
    if (isOnActuator) {
        facts.warn(
            actuator, Part::parent, code::actuatorNotReached,
            "The actuator " + quoted(actuator.name) + " is attached to another actuator, where no model reaches it.",
            "Attach it to a joint.");
    } else if (movesNothing(actuator)) {
        facts.warn(actuator, Part::whole, code::idleActuator,
                   "The actuator " + quoted(actuator.name) + " moves no joint.");
    }
}

}  // namespace

void checkUse(Facts& facts)
{
    for (ActuatorConfig const& actuator : facts.records->actuators) {
        checkActuator(facts, actuator);
    }
    for (Varo::Model::ChainConfig const& chain : facts.records->chains) {
        if (chain.jointNames.empty()) {
            facts.warn(chain, Part::whole, code::emptyChain, "The chain " + quoted(chain.name) + " has no joints.");
        }
    }
    forEachBody(facts, [&](auto const& body) {
        auto const material = body.attributes.find("material");
        if (material != body.attributes.end() && !Varo::Model::isFrictionMaterial(material->second)) {
            facts.warn(body, Part::material, code::unknownMaterial,
                       "There is no coefficient of friction for the material " + quoted(material->second) + ".");
        }
    });
}

}  // namespace Tool::Rules
