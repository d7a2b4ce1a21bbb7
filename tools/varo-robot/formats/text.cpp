#include <algorithm>
#include <iostream>

#include "formats/formats.hpp"
#include "support/finding_text.hpp"
#include "support/visible_text.hpp"

namespace Tool {

namespace {

using Varo::Model::Finding;
using Varo::Model::Findings;
using Varo::Model::Severity;

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

void printFile(CheckedFile const& file, bool all)
{
    if (all) {
        printFindings(std::cerr, file.name, byKind(file.findings));
    } else {
        printFolded(std::cerr, file.name, file.findings);
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
