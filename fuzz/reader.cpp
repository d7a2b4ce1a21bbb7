// The readers of both dialects: every text is accepted, or refused with a finding that has a place.
#include "fuzzing.hpp"
#include "varo/model/lint.hpp"
#include "varo/model/model_utils.hpp"

namespace {

using Varo::Model::Finding;
using Varo::Model::Severity;

void demandSense(Varo::Model::Findings const& findings)
{
    for (Finding const& finding : findings) {
        Fuzz::demand(!finding.code.empty() && !finding.message.empty(), "a finding says what it is about");
        Fuzz::demand(finding.message.size() < 4000, "a finding is no longer than its text");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string const text = Fuzz::textOf(data, size);
    auto const reading = Varo::Model::ModelUtils::read(text);
    demandSense(reading.findings);
    bool hasError = false;
    for (Finding const& finding : reading.findings) {
        hasError = hasError || finding.severity == Severity::error;
    }
    Fuzz::demand(hasError == (reading.robot == nullptr), "a text is refused when a finding is an error, and only then");
    Fuzz::demand(Varo::Model::ModelUtils::checkXml(text) == !hasError, "checkXml agrees with the reader");
    if (reading.robot != nullptr) {
        demandSense(lint(*reading.robot));
    }
    return 0;
}
