#ifndef TOOL_RULES_FACTS_HPP
#define TOOL_RULES_FACTS_HPP

#include <string>
#include <vector>

#include "rules/rules.hpp"
#include "varo/model/placed_findings.hpp"

namespace Tool::Rules {

using Subject = Varo::Model::PlacedFindings::Subject;

/// What the rules judge by, and where they say what they found.
struct Facts {
    Facts(std::string const& text, Varo::Model::Robot const& robot, Tolerances const& allowed);

    void warn(Subject const& subject, char const* code, std::string message, std::string hint = {});

    Tolerances tolerances;
    bool isNative;
    Varo::Model::JointConfig root;
    Varo::Model::JointTable joints;
    Varo::Model::ActuatorTable actuators;
    Varo::Model::WheelTable wheels;
    Varo::Model::ChainTable chains;
    // In the description's order.
    std::vector<std::string> jointNames;
    std::vector<std::string> actuatorNames;
    std::vector<std::string> wheelNames;
    std::vector<std::string> chainNames;
    std::vector<Varo::Model::PostureConfig> postures;
    Varo::Model::PlacedFindings findings;
};

// The families of rules, each for the whole robot.
void checkBodies(Facts& facts);
void checkMotions(Facts& facts);
void checkMirrors(Facts& facts);
void checkMirroredBodies(Facts& facts, Sim::Model const& model);
void checkUse(Facts& facts);

/// Names of the description enter messages through this.
std::string quoted(std::string const& name);
/// "-1 to 0.5".
std::string rangeText(float min, float max);

/// Calls `visit(element, body)` for the records of all bodies, which share the names of their fields.
template <class Visit>
void forEachBody(Facts const& facts, Visit const& visit)
{
    visit("root", facts.root);
    for (std::string const& name : facts.jointNames) {
        visit("joint", facts.joints.at(name));
    }
    for (std::string const& name : facts.wheelNames) {
        visit("wheel", facts.wheels.at(name));
    }
}

}  // namespace Tool::Rules

#endif
