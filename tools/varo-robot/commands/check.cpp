#include <algorithm>
#include <charconv>
#include <cmath>
#include <iostream>
#include <memory>
#include <optional>
#include <set>

#include <CLI/CLI.hpp>

#include "commands/commands.hpp"
#include "rules/rules.hpp"
#include "support/description.hpp"
#include "support/finding_text.hpp"
#include "support/json.hpp"
#include "support/meshes.hpp"
#include "support/numbers.hpp"

namespace Tool {

namespace {

using Varo::Model::Finding;
using Varo::Model::Findings;
using Varo::Model::Severity;

struct Options {
    std::vector<std::string> files;
    std::vector<std::string> silenced;
    Rules::Tolerances tolerances;
    Varo::Model::MeshFolders meshFolders;
    bool meshes = false;
    bool strict = false;
    bool json = false;
};

void append(Findings& findings, Findings const& more)
{
    findings.insert(findings.end(), more.begin(), more.end());
}

/// What the text, the rules and the building of the model have to say; of meshes, when folders to look in are given.
Findings findingsOf(Description description, Rules::Tolerances const& tolerances,
                    Varo::Model::MeshFolders const* meshFolders)
{
    if (description.reading.robot == nullptr) {
        return std::move(description.reading.findings);
    }
    Findings findings = Rules::apply(*description.reading.robot, tolerances);
    if (meshFolders != nullptr) {
        append(findings, missingMeshes(*description.reading.robot, *meshFolders));
    }
    try {
        Sim::Model const model(std::move(description.reading));
        append(findings, model.findings());
        append(findings, Rules::applyToPoses(model, tolerances));
    } catch (Varo::Model::WithFindings const& reason) {
        append(findings, reason.findings());
    }
    Rules::sort(findings);
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

bool hasErrors(Findings const& findings)
{
    return std::any_of(findings.begin(), findings.end(),
                       [](Finding const& finding) { return finding.severity == Severity::error; });
}

/// The codes that can be silenced.
std::set<std::string> knownCodes()
{
    std::set<std::string> known = {codes::modelNotBuilt, codes::modelIncomplete, codes::sensorWithoutClass,
                                   codes::meshNotFound};
    for (auto const& more : {Varo::Model::ModelUtils::findingCodes(), Rules::codes()}) {
        known.insert(more.begin(), more.end());
    }
    return known;
}

/// Whether all codes are known. Says which one is not, and those that are.
bool areKnown(std::vector<std::string> const& codes)
{
    std::set<std::string> const known = knownCodes();
    auto const isUnknown = [&known](std::string const& code) { return known.count(code) == 0; };
    auto const unknown = std::find_if(codes.begin(), codes.end(), isUnknown);
    if (unknown == codes.end()) {
        return true;
    }
    std::cerr << "There are no findings with the code \"" << *unknown << "\". The codes are:\n";
    for (std::string const& code : known) {
        std::cerr << "  " << code << '\n';
    }
    return false;
}

int check(Options const& options)
{
    if (!areKnown(options.silenced)) {
        return exitStatus::wrongUsage;
    }
    bool bad = false;
    Json data = Json::array();
    for (std::string const& file : options.files) {
        Description description = readDescription(file);
        std::string const name = description.file;
        Varo::Model::MeshFolders const folders = besideFile(options.meshFolders, file);
        Findings findings = findingsOf(std::move(description), options.tolerances, options.meshes ? &folders : nullptr);
        obey(options, findings);
        bad = bad || hasErrors(findings);
        if (options.json) {
            for (Finding const& finding : findings) {
                data.push_back(toJson(name, finding));
            }
        } else {
            printFindings(std::cerr, name, findings);
            std::cout << name << ": " << summary(findings) << std::endl;  // in step with the findings
        }
    }
    if (options.json) {
        printJson(std::cout, data);
        std::cout << '\n';
    }
    return bad ? exitStatus::bad : exitStatus::fine;
}

bool parseTolerance(std::string const& text, double& tolerance)
{
    double value = 0.0;
    char const* const end = text.data() + text.size();
    auto const [stop, error] = std::from_chars(text.data(), end, value);
    bool const isTolerance = error == std::errc() && stop == end && std::isfinite(value) && value >= 0.0;
    tolerance = isTolerance ? value : tolerance;
    return isTolerance;
}

void declareTolerances(CLI::App& app, Rules::Tolerances& tolerances)
{
    struct Tolerance {
        char const* option;
        double& value;
        char const* meaning;
    };
    for (Tolerance const& each : {
             Tolerance{"--tolerance-mass", tolerances.mass, "How far masses may differ, as a part of the greater"},
             {"--tolerance-com", tolerances.centerOfMass, "How far a centre of mass may miss a reflection, in m"},
             {"--tolerance-inertia", tolerances.inertia,
              "How far inertias may be out, as a part of their greatest entry"},
             {"--tolerance-limit", tolerances.limit,
              "How far limits and the angles of postures may be out, in rad (m)"},
         }) {
        auto const read = [&value = each.value](std::string const& text) {
            if (!parseTolerance(text, value)) {
                throw CLI::ValidationError("A tolerance is a number that is not negative, not " + text);
            }
        };
        app.add_option_function<std::string>(each.option, read, each.meaning)
            ->type_name("NUMBER")
            ->default_str(rounded(each.value));
    }
}

std::function<int()> declare(CLI::App& app)
{
    auto const options = std::make_shared<Options>();
    app.add_option("FILE", options->files, "Descriptions to check; - reads standard input")->type_name("")->required();
    app.add_flag("--strict", options->strict, "Take warnings for errors");
    app.add_option("--silence", options->silenced, "Leave out warnings and notes of this code; may be repeated")
        ->type_name("CODE")
        ->allow_extra_args(false)
        ->take_all();
    declareTolerances(app, options->tolerances);
    CLI::Option* const meshes = app.add_flag("--meshes", options->meshes, "Look for the files of meshes, too");
    for (CLI::Option* const option : declareMeshFolders(app, options->meshFolders)) {
        option->needs(meshes);
    }
    app.add_flag("--json", options->json, "Print the findings on standard output, as a JSON array");
    return [options] { return check(*options); };
}

}  // namespace

Command const checkCommand = {"check", "Report everything that is wrong or doubtful",
                              R"(Reads each description and, if it is free of errors, builds its model and
applies the rules to what it says. All findings of that are reported in one
run, a line each on standard error:

  FILE:LINE:COLUMN: error|warning|note: what is wrong [code]
      what to do about it

Errors refuse the description, warnings are about what loads but is hardly
meant, and notes say what the reader passed over. What came up while the model
was built stands at the root element; what concerns the file as a whole has
no line. The rules warn of bodies and motors that cannot be, of mirror pairs
that do not mirror, and of what has no effect; docs/checking.md lists them with
their codes and tolerances. With --meshes, each mesh is looked for by the rules
in docs/meshes.md, and one that is not found gets a warning.

Standard output gets a summary of each file or, with --json, an array of all
findings, each an object with file, severity, code, line, column, path, message
and hint.

The exit status is 1 when there is an error in any file, and 0 otherwise.

Examples:
  varo-robot check --strict robots/*.xml
  varo-robot check --silence frozen-mimic arm.urdf
  varo-robot check --tolerance-com 0.001 --tolerance-inertia 0.05 walker.xml
  varo-robot check --meshes --package arm_meshes=../meshes arm.urdf
  xmllint --noent robot.xml | varo-robot check -)",
                              declare};

}  // namespace Tool
