#include "rules/rules.hpp"

#include <iterator>

#include "rules/facts.hpp"
#include "rules/rule_codes.hpp"

namespace Tool::Rules {

Varo::Model::Findings apply(std::string const& text, Varo::Model::Robot const& robot, Sim::Model const* model,
                            Tolerances const& tolerances)
{
    Facts facts(text, robot, tolerances);
    checkBodies(facts);
    checkMotions(facts);
    checkMirrors(facts);
    checkUse(facts);
    if (model != nullptr) {
        checkMirroredBodies(facts, *model);
    }
    return facts.findings.take();
}

std::vector<std::string> codes()
{
    return {std::begin(code::all), std::end(code::all)};
}

}  // namespace Tool::Rules
