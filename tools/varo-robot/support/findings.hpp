#ifndef TOOL_SUPPORT_FINDINGS_HPP
#define TOOL_SUPPORT_FINDINGS_HPP

#include "sim/model.hpp"
#include "varo/model/finding.hpp"

namespace Tool {

/// All that is to say of a model: the findings of reading and building it, and those of all rules, by their places.
Varo::Model::Findings findingsOf(Sim::Model const& model);

/// By their places in the text.
void sortByPlace(Varo::Model::Findings& findings);

}  // namespace Tool

#endif
