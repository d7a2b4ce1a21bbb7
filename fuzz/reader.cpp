// The readers of both dialects: every text is accepted, or refused with a finding that has a place.
#include <algorithm>

#include "fuzzing.hpp"
#include "varo/model/lint.hpp"
#include "varo/model/model_utils.hpp"

namespace {

using Varo::Model::Finding;
using Varo::Model::Findings;
using Varo::Model::Severity;
namespace ModelUtils = Varo::Model::ModelUtils;

/// A finding quotes the text, cut, and may suggest a name.
constexpr std::size_t longestSentence = 4000;

bool isBefore(Finding const& a, Finding const& b)
{
    return a.line != b.line ? a.line < b.line : a.column < b.column;
}

void demandSense(Findings const& findings, std::string const& text)
{
    auto const lines = std::count(text.begin(), text.end(), '\n') + 1;
    for (Finding const& finding : findings) {
        Fuzz::demand(!finding.code.empty() && !finding.message.empty(), "a finding says what it is about");
        Fuzz::demand(finding.message.size() < longestSentence && finding.hint.size() < longestSentence,
                     "a finding is short, however long the text");
        Fuzz::demand(finding.line >= 0 && finding.line <= lines, "a finding stands in the text");
        Fuzz::demand((finding.line == 0) == (finding.column == 0), "a line has columns");
    }
    // The last one may tell of those that were left out, and has no place then.
    auto const end =
        std::find_if(findings.begin(), findings.end(), [](auto const& finding) { return finding.line == 0; });
    Fuzz::demand(std::is_sorted(findings.begin(), end, isBefore), "findings stand in the order of their places");
}

bool hasError(Findings const& findings)
{
    return std::any_of(findings.begin(), findings.end(),
                       [](Finding const& finding) { return finding.severity == Severity::error; });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string const text = Fuzz::textOf(data, size);
    auto const reading = ModelUtils::read(text);
    demandSense(reading.findings, text);
    bool const isRefused = hasError(reading.findings);
    Fuzz::demand(isRefused == (reading.robot == nullptr),
                 "a text is refused when a finding is an error, and only then");
    Fuzz::demand(ModelUtils::checkXml(text) == !isRefused, "checkXml agrees with the reader");
    Fuzz::demand(reading.text != nullptr && *reading.text == text, "a reading keeps the text");
    if (reading.robot != nullptr) {
        demandSense(lint(*reading.robot), text);
    }
    return 0;
}
