#include <algorithm>

#include "rules/rules.hpp"
#include "varo/model/friction.hpp"

namespace Varo::Model::Rules {

namespace {

/// What is attached to joints that the tree lacks needs no rule: the reader reports those joints.
bool isOnActuator(Facts const& facts, ActuatorConfig const& actuator)
{
    return !facts.records->joints.contains(actuator.parentJoint) &&
           facts.records->actuators.contains(actuator.parentJoint);
}

bool movesNothing(ActuatorConfig const& actuator)
{
    return std::all_of(actuator.jointGroups.begin(), actuator.jointGroups.end(),
                       [](auto const& group) { return group.empty(); });
}

}  // namespace

void findActuatorNotReached(Facts const& facts, Report const& report)
{
    for (ActuatorConfig const& actuator : facts.records->actuators) {
        if (isOnActuator(facts, actuator)) {
            report.at(actuator, Part::parent,
                      "The actuator " + quoted(actuator.name) +
                          " is attached to another actuator, where no model reaches it.",
                      "Attach it to a joint.");
        }
    }
}

void findIdleActuator(Facts const& facts, Report const& report)
{
    for (ActuatorConfig const& actuator : facts.records->actuators) {
        if (!isOnActuator(facts, actuator) && movesNothing(actuator)) {
            report.at(actuator, Part::whole, "The actuator " + quoted(actuator.name) + " moves no joint.");
        }
    }
}

void findEmptyChain(Facts const& facts, Report const& report)
{
    for (ChainConfig const& chain : facts.records->chains) {
        if (chain.jointNames.empty()) {
            report.at(chain, Part::whole, "The chain " + quoted(chain.name) + " has no joints.");
        }
    }
}

void findUnknownMaterial(Facts const& facts, Report const& report)
{
    forEachBody(facts, [&](auto const& body) {
        auto const material = body.attributes.find("material");
        if (material != body.attributes.end() && !isFrictionMaterial(material->second)) {
            report.at(body, Part::material,
                      "There is no coefficient of friction for the material " + quoted(material->second) + ".");
        }
    });
}

}  // namespace Varo::Model::Rules
