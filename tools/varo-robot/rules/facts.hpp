#ifndef TOOL_RULES_FACTS_HPP
#define TOOL_RULES_FACTS_HPP

#include <memory>
#include <string>
#include <utility>

#include "rules/rules.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/records.hpp"
#include "varo/model/robot.hpp"

namespace Tool::Rules {

using Varo::Model::Part;
using Varo::Model::quoted;

/// What the rules judge by, and where they say what they found.
struct Facts {
    Facts(Varo::Model::Robot const& judged, Tolerances const& allowed)
        : robot(judged), records(recordsOf(judged)), tolerances(allowed), diagnostics(judged.source())
    {}

    /// At the part of the record or, where the text does not state it, at the nearest element around it.
    template <class Config>
    void warn(Config const& record, Part part, char const* code, std::string message, std::string hint = {})
    {
        Varo::Model::FindingCode const kind = {code, Varo::Model::Severity::warning, {}};
        diagnostics.report(robot.statement(record, part).offset, kind, std::move(message), std::move(hint));
    }

    Varo::Model::Robot const& robot;
    std::shared_ptr<Varo::Model::Records const> records;
    Tolerances tolerances;
    Varo::Model::Diagnostics diagnostics;
};

// The families of rules, each for the whole robot.
void checkBodies(Facts& facts);
void checkMotions(Facts& facts);
void checkMirrors(Facts& facts);
void checkMirroredBodies(Facts& facts, Sim::Model const& model);
void checkUse(Facts& facts);

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

}  // namespace Tool::Rules

#endif
