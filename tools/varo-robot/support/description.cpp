#include "support/description.hpp"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <memory>
#include <utility>
#include <vector>

#include "support/finding_text.hpp"
#include "varo/model/placed_findings.hpp"
#include "zu/log.hpp"

namespace Tool {

namespace {

using Varo::Model::Finding;
using Varo::Model::Findings;
using Varo::Model::Severity;

using FilePtr = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

FilePtr open(std::string const& file)
{
    if (file == "-") {
        return {stdin, [](std::FILE*) { return 0; }};
    }
    return {std::fopen(file.c_str(), "rb"), std::fclose};
}

/// The reason why nothing came of the file, or 0. Reads a little more than the reader accepts at most: a device file
/// may never end.
int readText(std::string const& file, std::string& text)
{
    FilePtr const stream = open(file);
    if (stream == nullptr) {
        return errno;
    }
    std::array<char, 65536> block;
    while (text.size() <= Varo::Model::ModelUtils::maxTextSize) {
        std::size_t const count = std::fread(block.data(), 1, block.size(), stream.get());
        text.append(block.data(), count);
        if (count < block.size()) {
            break;
        }
    }
    return std::ferror(stream.get()) != 0 ? errno : 0;
}

std::string withoutLineEnd(std::string text)
{
    while (!text.empty() && text.back() == '\n') {
        text.pop_back();
    }
    return text;
}

/// Hears what the library logs, as long as it lives.
class LogListener {
public:
    explicit LogListener(std::vector<std::string>& messages)
    {
        zu::log::setSink([&messages](zu::log::Record const& record) { messages.emplace_back(record.message); });
    }
    LogListener(LogListener const&) = delete;
    LogListener& operator=(LogListener const&) = delete;
    ~LogListener() { zu::log::setSink({}); }
};

/// Findings of the model, which does not know the text: they stand at the root element.
Findings findingsAtRoot(std::string const& text, Severity severity, char const* code,
                        std::vector<std::string> const& messages)
{
    Varo::Model::PlacedFindings placed(text);
    for (std::string const& message : messages) {
        placed.add({}, severity, code, message);
    }
    return placed.take();
}

}  // namespace

Finding fileFinding(Severity severity, std::string code, std::string message, std::string hint)
{
    Finding finding;
    finding.severity = severity;
    finding.code = std::move(code);
    finding.message = std::move(message);
    finding.hint = std::move(hint);
    return finding;
}

Description readDescription(std::string const& file)
{
    Description description;
    description.file = file == "-" ? "<stdin>" : file;
    int const error = readText(file, description.text);
    Findings& findings = description.reading.findings;
    if (error != 0) {
        std::string const reason = std::strerror(error);
        findings.push_back(fileFinding(Severity::error, codes::unreadableFile, "It cannot be read: " + reason + "."));
    } else if (description.text.empty()) {
        findings.push_back(fileFinding(Severity::error, codes::emptyFile, "There is nothing in it.",
                                       "A description begins with <robotDescription> or, in URDF, with <robot>."));
    } else {
        description.reading = Varo::Model::ModelUtils::read(description.text);
    }
    return description;
}

Description readAccepted(std::string const& file)
{
    Description description = readDescription(file);
    if (description.reading.robot == nullptr) {
        throw Refused(description.file, std::move(description.reading.findings));
    }
    return description;
}

Sim::Model buildModel(Description const& description, Findings& findings)
{
    std::vector<std::string> heard;
    LogListener const listener(heard);
    try {
        Sim::Model model(description.text);
        if (!heard.empty()) {
            auto const more = findingsAtRoot(description.text, Severity::warning, codes::modelIncomplete, heard);
            findings.insert(findings.end(), more.begin(), more.end());
        }
        return model;
    } catch (std::exception const& reason) {
        std::string const message = "No model can be built from it: " + withoutLineEnd(reason.what());
        throw Refused(description.file,
                      findingsAtRoot(description.text, Severity::error, codes::modelNotBuilt, {message}));
    }
}

Robot loadRobot(std::string const& file)
{
    Description description = readAccepted(file);
    Findings heard;
    Sim::Model model = buildModel(description, heard);
    printFindings(std::cerr, description.file, heard);
    return {std::move(description), std::move(model)};
}

}  // namespace Tool
