#include "support/finding_text.hpp"

#include <unistd.h>

#include "support/terminal.hpp"
#include "support/visible_text.hpp"

namespace Tool {

namespace {

using Varo::Model::Finding;
using Varo::Model::Severity;

Ink inkOf(Severity severity)
{
    switch (severity) {
    case Severity::note: return Ink::note;
    case Severity::warning: return Ink::warning;
    case Severity::error: break;
    }
    return Ink::error;
}

std::string placeOf(std::string const& file, Finding const& finding)
{
    if (finding.line == 0) {
        return visibleName(file) + ": ";
    }
    return visibleName(file) + ":" + std::to_string(finding.line) + ":" + std::to_string(finding.column) + ": ";
}

}  // namespace

char const* nameOf(Severity severity)
{
    switch (severity) {
    case Severity::note: return "note";
    case Severity::warning: return "warning";
    case Severity::error: break;
    }
    return "error";
}

void printFindings(std::ostream& out, std::string const& file, Varo::Model::Findings const& findings)
{
    Palette const palette(STDERR_FILENO);
    for (Finding const& finding : findings) {
        std::string const severity = std::string(nameOf(finding.severity)) + ":";
        out << palette.paint(Ink::heading, placeOf(file, finding)) << palette.paint(inkOf(finding.severity), severity)
            << ' ' << visible(finding.message) << palette.paint(Ink::faint, " [" + finding.code + "]") << '\n';
        if (!finding.hint.empty()) {
            out << "    " << visible(finding.hint) << '\n';
        }
    }
}

}  // namespace Tool
