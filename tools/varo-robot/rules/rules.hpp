#ifndef TOOL_RULES_RULES_HPP
#define TOOL_RULES_RULES_HPP

#include <string>
#include <vector>

#include "varo/model/finding.hpp"
#include "varo/model/robot.hpp"

/// What `check` looks for beyond the reader's own findings: data that reads well and cannot be true.
namespace Tool::Rules {

/// The findings of all rules about an accepted description, with their places in `text`, from which `robot` was read.
Varo::Model::Findings apply(std::string const& text, Varo::Model::Robot const& robot);

/// The codes that these findings bear.
std::vector<std::string> codes();

}  // namespace Tool::Rules

#endif
