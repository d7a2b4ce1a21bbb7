#include <algorithm>
#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>

#include "commands/commands.hpp"
#include "rules/rules.hpp"
#include "support/description.hpp"
#include "support/finding_text.hpp"
#include "support/json.hpp"

namespace Tool {

namespace {

using Varo::Model::Finding;
using Varo::Model::Findings;
using Varo::Model::Severity;

struct Options {
    std::vector<std::string> files;
    std::vector<std::string> silenced;
    bool strict = false;
    bool json = false;
};

void append(Findings& findings, Findings const& more)
{
    findings.insert(findings.end(), more.begin(), more.end());
}

/// What the text, the building of the model and the rules have to say.
Findings findingsOf(Description const& description)
{
    Findings findings = description.reading.findings;
    if (description.reading.robot == nullptr) {
        return findings;
    }
    append(findings, Rules::apply(description.text, *description.reading.robot));
    try {
        Findings heard;
        buildModel(description, heard);
        append(findings, heard);
    } catch (Refused const& refused) {
        append(findings, refused.findings());
    }
    std::stable_sort(findings.begin(), findings.end(), [](Finding const& a, Finding const& b) {
        return std::pair(a.line, a.column) < std::pair(b.line, b.column);
    });
    return findings;
}

/// Errors cannot be silenced: the description is refused all the same.
void obey(Options const& options, Findings& findings)
{
    auto const isSilenced = [&](Finding const& finding) {
        auto const& codes = options.silenced;
        return finding.severity != Severity::error &&
               std::find(codes.begin(), codes.end(), finding.code) != codes.end();
    };
    findings.erase(std::remove_if(findings.begin(), findings.end(), isSilenced), findings.end());
    for (Finding& finding : findings) {
        if (options.strict && finding.severity == Severity::warning) {
            finding.severity = Severity::error;
        }
    }
}

Json toJson(std::string const& file, Finding const& finding)
{
    return {
        {"file", file},
        {"severity", nameOf(finding.severity)},
        {"code", finding.code},
        {"line", finding.line == 0 ? Json(nullptr) : Json(finding.line)},
        {"column", finding.line == 0 ? Json(nullptr) : Json(finding.column)},
        {"path", finding.path},
        {"message", finding.message},
        {"hint", finding.hint},
    };
}

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

bool isBad(Findings const& findings)
{
    return std::any_of(findings.begin(), findings.end(),
                       [](Finding const& finding) { return finding.severity == Severity::error; });
}

bool isCode(std::string const& word)
{
    std::vector<std::string> known = Varo::Model::ModelUtils::findingCodes();
    for (std::string const& code : Rules::codes()) {
        known.push_back(code);
    }
    known.emplace_back(codes::modelIncomplete);
    return std::find(known.begin(), known.end(), word) != known.end();
}

int check(Options const& options)
{
    for (std::string const& code : options.silenced) {
        if (!isCode(code)) {
            std::cerr << "There are no findings with the code \"" << code << "\".\n";
            return exitStatus::wrongUsage;
        }
    }
    bool bad = false;
    Json data = Json::array();
    for (std::string const& file : options.files) {
        Description const description = readDescription(file);
        Findings findings = findingsOf(description);
        obey(options, findings);
        bad = bad || isBad(findings);
        if (options.json) {
            for (Finding const& finding : findings) {
                data.push_back(toJson(description.file, finding));
            }
        } else {
            printFindings(std::cerr, description.file, findings);
            std::cout << description.file << ": " << summary(findings) << std::endl;  // in step with the findings
        }
    }
    if (options.json) {
        printJson(std::cout, data);
        std::cout << '\n';
    }
    return bad ? exitStatus::bad : exitStatus::fine;
}

std::function<int()> declare(CLI::App& app)
{
    auto const options = std::make_shared<Options>();
    app.add_option("FILE", options->files, "Descriptions to check; - reads standard input")->type_name("")->required();
    app.add_flag("--strict", options->strict, "Take warnings for errors");
    app.add_option("--silence", options->silenced, "Leave out warnings and notes of this code; may be repeated")
        ->type_name("CODE")
        ->expected(1)
        ->take_all();
    app.add_flag("--json", options->json, "Print the findings on standard output, as a JSON array");
    return [options] { return check(*options); };
}

}  // namespace

Command const checkCommand = {"check", "Report everything that is wrong or doubtful",
                              R"(Reads each description, builds its model, and reports in one run all that is
found, a line each on standard error:

  FILE:LINE:COLUMN: error|warning|note: what is wrong [code]
      what to do about it

Errors refuse the description, warnings are about what loads but is hardly
meant, and notes say what the reader passed over. What concerns the file as a
whole bears no line. Standard output gets a summary of each file or, with
--json, an array of all findings, each an object with file, severity, code,
line, column, path, message and hint.

The exit status is 1 when there is an error in any file, and 0 otherwise.

Examples:
  varo-robot check --strict robots/*.xml
  varo-robot check --silence not-carried pr2.urdf
  xmllint --noent robot.xml | varo-robot check -)",
                              declare};

}  // namespace Tool
