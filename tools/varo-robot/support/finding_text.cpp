#include "support/finding_text.hpp"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include <unistd.h>

#include "support/terminal.hpp"
#include "support/visible_text.hpp"

namespace Tool {

namespace {

using Varo::Model::Finding;
using Varo::Model::Findings;
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

/// More of one kind than this stand together.
constexpr std::size_t mostApart = 3;
constexpr std::size_t widestLine = 80;
/// More places of one kind than this are cut short.
constexpr std::size_t mostPlaces = 6;

/// What is the same fault again and again.
using Kind = std::pair<Severity, std::string>;

/// Errors first, of what is alike in that those of one kind together.
std::vector<Findings> kindsOf(Findings const& findings)
{
    std::vector<Findings> kinds;
    std::map<Kind, std::size_t> indices;
    for (Finding const& finding : findings) {
        auto const [known, isNew] = indices.try_emplace({finding.severity, finding.code}, kinds.size());
        if (isNew) {
            kinds.emplace_back();
        }
        kinds[known->second].push_back(finding);
    }
    std::stable_sort(kinds.begin(), kinds.end(),
                     [](Findings const& a, Findings const& b) { return a.front().severity > b.front().severity; });
    return kinds;
}

/// The first of many, with what to do about it where that is the same for all.
Findings firstOf(Findings const& kind)
{
    Finding first = kind.front();
    bool const isSame =
        std::all_of(kind.begin(), kind.end(), [&](Finding const& finding) { return finding.hint == first.hint; });
    first.hint = isSame ? first.hint : std::string();
    return {first};
}

/// Lines of the places of all but the first, or of the next few of many.
void printOtherPlaces(std::ostream& out, Findings const& kind)
{
    std::string line = "    and " + std::to_string(kind.size() - 1) + " more, at";
    std::size_t const end = std::min(kind.size(), mostPlaces + 1);
    for (std::size_t i = 1; i < end; ++i) {
        std::string const after = i + 1 < end ? "," : kind.size() > end ? ", ..." : "";
        std::string const place = " " + std::to_string(kind[i].line) + ":" + std::to_string(kind[i].column) + after;
        if (line.size() + place.size() > widestLine) {
            out << line << '\n';
            line = "       ";
        }
        line += place;
    }
    out << line << '\n';
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

Findings byKind(Findings const& findings)
{
    Findings all;
    for (Findings const& kind : kindsOf(findings)) {
        all.insert(all.end(), kind.begin(), kind.end());
    }
    return all;
}

void printFolded(std::ostream& out, std::string const& file, Findings const& findings)
{
    for (Findings const& kind : kindsOf(findings)) {
        bool const isFolded = kind.size() > mostApart && kind.front().line != 0;
        printFindings(out, file, isFolded ? firstOf(kind) : kind);
        if (isFolded) {
            printOtherPlaces(out, kind);
        }
    }
}

}  // namespace Tool
