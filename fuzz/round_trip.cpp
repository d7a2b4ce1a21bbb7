// What is written of a robot, in either dialect, is read as a robot that holds the same, and written as the same text.
#include <algorithm>

#include "fuzzing.hpp"
#include "record_text.hpp"
#include "varo/model/model_utils.hpp"
#include "varo/model/records.hpp"

namespace {

using namespace Varo::Model;

std::string recordTextOf(Robot const& robot)
{
    return Fuzz::textOf(*recordsOf(robot));
}

/// Shows the first line that differs.
void demandEqual(std::string const& original, std::string const& again, char const* what)
{
    if (original != again) {
        auto const [first, second] = std::mismatch(original.begin(), original.end(), again.begin(), again.end());
        auto const lineAt = [](std::string const& text, std::string::const_iterator at) {
            auto const offset = static_cast<std::size_t>(at - text.begin());
            std::size_t const start = offset == 0 ? 0 : text.rfind('\n', offset - 1) + 1;
            return text.substr(start, text.find('\n', offset) - start);
        };
        std::fprintf(stderr, "was: %s\nis:  %s\n", lineAt(original, first).c_str(), lineAt(again, second).c_str());
        Fuzz::demand(false, what);
    }
}

void demandSameThroughNative(Robot const& robot)
{
    std::string const written = ModelUtils::toXml(robot);
    auto const again = ModelUtils::read(written);
    Fuzz::demand(again.robot != nullptr, "a native text that was written is accepted");
    demandEqual(recordTextOf(robot), recordTextOf(*again.robot), "the native text says all that the robot holds");
    demandEqual(written, ModelUtils::toXml(*again.robot), "the native text is written again");
}

void demandSameThroughUrdf(Robot const& robot)
{
    Findings findings;
    std::string const written = ModelUtils::toUrdf(robot, findings);
    auto const isError = [](Finding const& finding) { return finding.severity == Severity::error; };
    if (std::any_of(findings.begin(), findings.end(), isError)) {
        return;
    }
    auto const again = ModelUtils::read(written);
    Fuzz::demand(again.robot != nullptr, "a URDF that was written is accepted");
    demandEqual(recordTextOf(robot), recordTextOf(*again.robot), "the URDF says all that the robot holds");
    demandEqual(written, ModelUtils::toUrdf(*again.robot), "the URDF is written again");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    auto const reading = ModelUtils::read(Fuzz::textOf(data, size));
    if (reading.robot != nullptr) {
        demandSameThroughNative(*reading.robot);
        demandSameThroughUrdf(*reading.robot);
    }
    return 0;
}
