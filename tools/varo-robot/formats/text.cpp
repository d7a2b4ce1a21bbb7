#include <algorithm>
#include <iostream>
#include <map>
#include <utility>

#include "formats/formats.hpp"
#include "support/finding_text.hpp"
#include "support/visible_text.hpp"

namespace Tool {

namespace {

using Varo::Model::Finding;
using Varo::Model::Findings;
using Varo::Model::Severity;

/// More of one kind than this stand together.
constexpr std::size_t mostApart = 3;
constexpr std::size_t widestLine = 100;

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

/// Lines of the places of all but the first.
void printOtherPlaces(Findings const& kind)
{
    std::string line = "    and " + std::to_string(kind.size() - 1) + " more, at";
    for (std::size_t i = 1; i < kind.size(); ++i) {
        std::string const place = " " + std::to_string(kind[i].line) + ":" + std::to_string(kind[i].column) +
                                  (i + 1 < kind.size() ? "," : "");
        if (line.size() + place.size() > widestLine) {
            std::cerr << line << '\n';
            line = "       ";
        }
        line += place;
    }
    std::cerr << line << '\n';
}

void printFile(CheckedFile const& file, bool all)
{
    for (Findings const& kind : byKind(file.findings)) {
        bool const isFolded = !all && kind.size() > mostApart && kind.front().line != 0;
        printFindings(std::cerr, file.name, isFolded ? Findings{kind.front()} : kind);
        if (isFolded) {
            printOtherPlaces(kind);
        }
    }
    std::cout << visibleName(file.name) << ": " << summary(file.findings) << std::endl;  // in step with the findings
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
    return hasFindings
               ? "Fix what is not meant; --silence CODE leaves out what is. docs/checking.md explains the codes.\n"
               : "";
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
