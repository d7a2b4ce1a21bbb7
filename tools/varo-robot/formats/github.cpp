#include <iostream>
#include <string_view>

#include "formats/formats.hpp"
#include "support/visible_text.hpp"

namespace Tool {

namespace {

using Varo::Model::Finding;
using Varo::Model::Severity;

/// What would end a message, or begin another command, is written as its code.
std::string escaped(std::string_view text, std::string_view special)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string result;
    for (char const c : text) {
        auto const byte = static_cast<unsigned char>(c);
        result += special.find(c) == std::string_view::npos ? std::string(1, c)
                                                            : std::string{'%', digits[byte / 16], digits[byte % 16]};
    }
    return result;
}

std::string message(std::string const& text)
{
    return escaped(text, "%\r\n");
}

std::string property(std::string const& text)
{
    return escaped(text, "%\r\n:,");
}

char const* commandOf(Severity severity)
{
    switch (severity) {
    case Severity::note: return "notice";
    case Severity::warning: return "warning";
    case Severity::error: break;
    }
    return "error";
}

std::string placeOf(Finding const& finding)
{
    return finding.line == 0 ? "" : ",line=" + std::to_string(finding.line) + ",col=" + std::to_string(finding.column);
}

}  // namespace

void printAsGithub(std::vector<CheckedFile> const& files)
{
    for (CheckedFile const& file : files) {
        for (Finding const& finding : file.findings) {
            std::string const hint = finding.hint.empty() ? "" : "\n" + visible(finding.hint);
            std::cout << "::" << commandOf(finding.severity) << " file=" << property(visible(file.name))
                      << placeOf(finding) << ",title=" << property(finding.code)
                      << "::" << message(visible(finding.message) + hint) << '\n';
        }
    }
}

}  // namespace Tool
