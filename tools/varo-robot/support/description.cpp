#include "support/description.hpp"

#include <algorithm>
#include <iostream>
#include <utility>

#include <unistd.h>

#include "support/finding_text.hpp"
#include "support/progress.hpp"
#include "support/visible_text.hpp"
#include "varo/model/text_file.hpp"

namespace Tool {

namespace {

using Varo::Model::Finding;
using Varo::Model::Findings;
using Varo::Model::readTextFile;
using Varo::Model::Severity;
using Varo::Model::TextFile;

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
    Progress const progress("Reading " + visibleName(description.file));
    TextFile text = file == "-" ? readTextFile(STDIN_FILENO) : readTextFile(file);
    if (text.obstacle.empty() && text.text.empty()) {
        description.reading.findings = {
            fileFinding(Severity::error, codes::emptyFile, "There is nothing in it.",
                        "A description begins with <robotDescription> or, in URDF, with <robot>.")};
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
