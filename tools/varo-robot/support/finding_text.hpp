#ifndef TOOL_SUPPORT_FINDING_TEXT_HPP
#define TOOL_SUPPORT_FINDING_TEXT_HPP

#include <ostream>
#include <string>

#include "varo/model/finding.hpp"

namespace Tool {

/// "error", "warning" or "note".
char const* nameOf(Varo::Model::Severity severity);

/// A line for each, `FILE:LINE:COLUMN: error: sentence [code]`, with its hint indented below. What concerns the whole
/// file has no line and column. Coloured when standard error is a terminal.
void printFindings(std::ostream& out, std::string const& file, Varo::Model::Findings const& findings);

/// Errors first, of what is alike in that those of one kind together.
Varo::Model::Findings byKind(Varo::Model::Findings const& findings);

/// The same, with no more than a line of places for all but the first where there are many of one kind.
void printFolded(std::ostream& out, std::string const& file, Varo::Model::Findings const& findings);

}  // namespace Tool

#endif
