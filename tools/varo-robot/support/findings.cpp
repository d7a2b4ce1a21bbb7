#include "support/findings.hpp"

#include <algorithm>
#include <utility>

#include "varo/model/lint.hpp"

namespace Tool {

Varo::Model::Findings findingsOf(Sim::Model const& model)
{
    Varo::Model::Findings findings = Varo::Model::lint(model.robot());
    for (Varo::Model::Finding const& finding : model.findings()) {
        findings.push_back(finding);
    }
    sortByPlace(findings);
    return findings;
}

void sortByPlace(Varo::Model::Findings& findings)
{
    std::stable_sort(findings.begin(), findings.end(), [](auto const& a, auto const& b) {
        return std::pair(a.line, a.column) < std::pair(b.line, b.column);
    });
}

}  // namespace Tool
