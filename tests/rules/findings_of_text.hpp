#ifndef TESTS_RULES_FINDINGS_OF_TEXT_HPP
#define TESTS_RULES_FINDINGS_OF_TEXT_HPP

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "texts.hpp"
#include "varo/model/lint.hpp"
#include "varo/model/model_utils.hpp"

namespace RulesTest {

using namespace Varo::Model;
using Strings = std::vector<std::string>;

/// All that the reader and the rules give, in the order of the text.
inline Findings findingsOf(std::string const& text, LintOptions const& options = {})
{
    ModelUtils::Reading const reading = ModelUtils::read(text);
    Findings findings = reading.findings;
    Findings const more = reading.robot == nullptr ? Findings() : lint(*reading.robot, options);
    findings.insert(findings.end(), more.begin(), more.end());
    std::stable_sort(findings.begin(), findings.end(), [](auto const& a, auto const& b) {
        return std::pair(a.line, a.column) < std::pair(b.line, b.column);
    });
    return findings;
}

/// "LINE CODE" of each.
inline Strings linesAndCodes(std::string const& text, LintOptions const& options = {})
{
    return Tests::textsOf(findingsOf(text, options),
                          [](Finding const& finding) { return std::to_string(finding.line) + " " + finding.code; });
}

}  // namespace RulesTest

#endif
