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
#include "support/progress.hpp"
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

Description readDescription(std::string const& file, Varo::Model::ModelUtils::ReadOptions const& options)
{
    Description description;
    description.file = file == "-" ? "<stdin>" : file;
    Progress const progress("Reading " + description.file);
    std::string text;
    int const error = readText(file, text);
    Findings& findings = description.reading.findings;
    if (error != 0) {
        std::string const reason = std::strerror(error);
        findings.push_back(fileFinding(Severity::error, codes::unreadableFile, "It cannot be read: " + reason + "."));
    } else if (text.empty()) {
        findings.push_back(fileFinding(Severity::error, codes::emptyFile, "There is nothing in it.",
                                       "A description begins with <robotDescription> or, in URDF, with <robot>."));
    } else {
        description.reading = Varo::Model::ModelUtils::read(std::move(text), options);
    }
    return description;
}

Description readAccepted(std::string const& file, Varo::Model::ModelUtils::ReadOptions const& options)
{
    Description description = readDescription(file, options);
    if (description.reading.robot == nullptr) {
        throw Refused(description.file, std::move(description.reading.findings));
    }
    return description;
}

namespace {

Sim::Model modelOf(Description&& description)
{
    Progress const progress("Building the model of " + description.file);
    return Sim::Model(std::move(description.reading));
}

}  // namespace

Robot loadRobot(std::string const& file, Varo::Model::ModelUtils::ReadOptions const& options)
{
    Description description = readAccepted(file, options);
    try {
        Robot robot = {description.file, modelOf(std::move(description))};
        Findings findings = robot.model.findings();
        auto const isOther = [](Finding const& finding) { return finding.code != codes::modelIncomplete; };
        findings.erase(std::remove_if(findings.begin(), findings.end(), isOther), findings.end());
        printFindings(std::cerr, robot.file, findings);
        return robot;
    } catch (Varo::Model::WithFindings const& reason) {
        throw Refused(description.file, reason.findings());
    }
}

}  // namespace Tool
