#include "rules/rules.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

#include "rules/facts.hpp"
#include "rules/rule_codes.hpp"

namespace Tool::Rules {

Varo::Model::Findings apply(Varo::Model::Robot const& robot, Tolerances const& tolerances)
{
    Facts facts(robot, tolerances);
    checkBodies(facts);
    checkMotions(facts);
    checkMirrors(facts);
    checkUse(facts);
    return facts.diagnostics.findings();
}

Varo::Model::Findings applyToPoses(Sim::Model const& model, Tolerances const& tolerances)
{
    Facts facts(model.robot(), tolerances);
    checkMirroredBodies(facts, model);
    return facts.diagnostics.findings();
}

Varo::Model::Findings findingsOf(Sim::Model const& model, Tolerances const& tolerances)
{
    Varo::Model::Findings findings = apply(model.robot(), tolerances);
    for (Varo::Model::Findings const& more : {model.findings(), applyToPoses(model, tolerances)}) {
        findings.insert(findings.end(), more.begin(), more.end());
    }
    sort(findings);
    return findings;
}

void sort(Varo::Model::Findings& findings)
{
    std::stable_sort(findings.begin(), findings.end(), [](auto const& a, auto const& b) {
        return std::pair(a.line, a.column) < std::pair(b.line, b.column);
    });
}

std::vector<std::string> codes()
{
    return {std::begin(code::all), std::end(code::all)};
}

}  // namespace Tool::Rules
