#include "rules/rules.hpp"

namespace Tool::Rules {

Varo::Model::Findings apply(std::string const&, Varo::Model::Robot const&)
{
    return {};
}

std::vector<std::string> codes()
{
    return {};
}

}  // namespace Tool::Rules
