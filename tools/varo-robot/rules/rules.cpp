#include "rules/rules.hpp"

#include <iterator>

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

std::vector<std::string> codes()
{
    return {std::begin(code::all), std::end(code::all)};
}

}  // namespace Tool::Rules
