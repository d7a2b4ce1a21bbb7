#include <algorithm>
#include <iostream>
#include <map>
#include <utility>

#include "formats/formats.hpp"
#include "support/finding_text.hpp"

namespace Tool {

namespace {

using Varo::Model::Finding;
using Varo::Model::Findings;
using Varo::Model::Severity;

/// More of one kind than this stand together.
constexpr std::size_t mostApart = 3;
constexpr std::size_t widestLine = 80;
/// More places of one kind than this are cut short.
constexpr std::size_t mostPlaces = 8;

/// What is the same fault again and again.
using Kind = std::pair<Severity, std::string>;

/// "2 errors, 1 warning", or "fine".
std::string summary(Findings const& findings)
{
    std::string text;
    for (Severity const severity : {Severity::error, Severity::warning, Severity::note}) {
        auto const count = std::count_if(findings.begin(), findings.end(),
                                         [&](Finding const& finding) { return finding.severity == severity; });
        if (count > 0) {
            text +=
                (text.empty() ? "" : ", ") + std::to_string(count) + " " + nameOf(severity) + (count > 1 ? "s" : "");
        }
    }
    return text.empty() ? "fine" : text;
}

/// Errors first, of what is alike in that those of one kind together.
std::vector<Findings> byKind(Findings const& findings)
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

/// Lines of the places of all but the first, or of the next few of many.
void printOtherPlaces(Findings const& kind)
{
    std::string line = "    and " + std::to_string(kind.size() - 1) + " more, at";
    std::size_t const end = std::min(kind.size(), mostPlaces + 1);
    for (std::size_t i = 1; i < end; ++i) {
        bool const isLast = i + 1 == end;
        std::string const place = " " + std::to_string(kind[i].line) + ":" + std::to_string(kind[i].column) +
                                  (!isLast             ? ","
                                   : kind.size() > end ? ", ..."
                                                       : "");
        if (line.size() + place.size() > widestLine) {
            std::cerr << line << '\n';
            line = "       ";
        }
        line += place;
    }
    std::cerr << line << '\n';
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

void printFile(CheckedFile const& file, bool all)
{
    for (Findings const& kind : byKind(file.findings)) {
        bool const isFolded = !all && kind.size() > mostApart && kind.front().line != 0;
        printFindings(std::cerr, file.name, isFolded ? firstOf(kind) : kind);
        if (isFolded) {
            printOtherPlaces(kind);
        }
    }
    std::cout << file.name << ": " << summary(file.findings) << std::endl;  // in step with the findings
}

/// What to do next; nothing when there is nothing to do.
std::string advice(std::vector<CheckedFile> const& files)
{
    bool hasFindings = false;
    for (CheckedFile const& file : files) {
        for (Finding const& finding : file.findings) {
            if (finding.severity == Severity::error) {
                return "Fix the errors first: a description with errors is refused.\n";
            }
            hasFindings = true;
        }
    }
    return hasFindings ? "--silence CODE leaves out what is meant; docs/checking.md explains the codes.\n" : "";
}

}  // namespace

void printAsText(std::vector<CheckedFile> const& files, bool all)
{
    for (CheckedFile const& file : files) {
        printFile(file, all);
    }
    std::cerr << advice(files);
}

}  // namespace Tool
