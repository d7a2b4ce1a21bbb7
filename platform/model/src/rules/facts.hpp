#ifndef VARO_MODEL_RULES_FACTS_HPP
#define VARO_MODEL_RULES_FACTS_HPP

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "robot/zero_poses.hpp"
#include "rules/mirrors.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/lint.hpp"
#include "varo/model/records.hpp"
#include "varo/model/robot.hpp"

namespace Varo::Model::Rules {

/// What all rules judge by; worked out once for each robot.
struct Facts {
    Facts(Robot const& robot, LintTolerances const& allowed);

    /// Of a joint of the records.
    PlacedJoint const& placeOf(JointConfig const& joint) const
    {
        return places[static_cast<std::size_t>(&joint - &records->joints[0])];
    }

    std::shared_ptr<Records const> records;
    LintTolerances tolerances;
    std::vector<PlacedJoint> places;  ///< of the joints, one for one
    std::vector<Pair<JointConfig>> jointPairs;
    std::vector<Pair<ActuatorConfig>> actuatorPairs;
};

/// Where one rule says what it found.
class Report {
public:
    Report(Robot const& robot, FindingCode const& code, Diagnostics& diagnostics)
        : _robot(robot), _code(code), _diagnostics(diagnostics)
    {}

    /// At the part of the record or, where the text does not state it, at the nearest element around it.
    template <class Config>
    void at(Config const& record, Part part, std::string message, std::string hint = {}) const
    {
        _diagnostics.report(statement(record, part).offset, _code, std::move(message), std::move(hint));
    }

    /// What the text has there.
    template <class Config>
    Statement statement(Config const& record, Part part) const
    {
        return _robot.statement(record, part);
    }

private:
    Robot const& _robot;
    FindingCode const& _code;
    Diagnostics& _diagnostics;
};

/// "-1 to 0.5".
std::string rangeText(float min, float max);

/// Calls `visit` for the records of all bodies, which share the names of their fields.
template <class Visit>
void forEachBody(Facts const& facts, Visit const& visit)
{
    visit(facts.records->root);
    for (auto const& joint : facts.records->joints) {
        visit(joint);
    }
    for (auto const& wheel : facts.records->wheels) {
        visit(wheel);
    }
}

}  // namespace Varo::Model::Rules

#endif
