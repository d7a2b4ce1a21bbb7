#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>
#include <set>

#include <CLI/CLI.hpp>

#include "commands/commands.hpp"
#include "formats/formats.hpp"
#include "support/description.hpp"
#include "support/findings.hpp"
#include "support/meshes.hpp"
#include "support/progress.hpp"
#include "support/visible_text.hpp"
#include "varo/model/lint.hpp"

namespace Tool {

namespace {

using Varo::Model::Finding;
using Varo::Model::Findings;
using Varo::Model::Severity;

struct Options {
    std::vector<std::string> files;
    std::vector<std::string> silenced;
    Varo::Model::ModelUtils::ReadOptions reading;
    Varo::Model::LintOptions lint;
    Varo::Model::MeshFolders meshFolders;
    std::string format = "text";
    bool meshes = false;
    bool strict = false;
    bool json = false;
    bool all = false;
};

void append(Findings& findings, Findings const& more)
{
    findings.insert(findings.end(), more.begin(), more.end());
}

/// What the text, the rules and the building of the model have to say; of meshes, when folders to look in are given.
Findings findingsOf(Description description, Varo::Model::LintOptions const& options,
                    Varo::Model::MeshFolders const* meshFolders)
{
    if (description.reading.robot == nullptr) {
        return std::move(description.reading.findings);
    }
    Progress const progress("Checking " + description.file);
    Findings findings = Varo::Model::lint(*description.reading.robot, options);
    if (meshFolders != nullptr) {
        append(findings, missingMeshes(*description.reading.robot, *meshFolders));
    }
    try {
        Sim::Model const model(std::move(description.reading));
        append(findings, model.findings());
    } catch (Varo::Model::WithFindings const& reason) {
        append(findings, reason.findings());
    }
    sortByPlace(findings);
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

bool hasErrors(Findings const& findings)
{
    return std::any_of(findings.begin(), findings.end(),
                       [](Finding const& finding) { return finding.severity == Severity::error; });
}

std::set<std::string> ruleCodes()
{
    std::set<std::string> codes;
    for (Varo::Model::LintRule const& rule : Varo::Model::lintRules()) {
        codes.emplace(rule.code.name);
    }
    return codes;
}

/// The codes that can be silenced.
std::set<std::string> knownCodes()
{
    std::set<std::string> known = {codes::modelNotBuilt, codes::modelIncomplete, codes::sensorWithoutClass,
                                   codes::meshNotFound};
    for (std::string const& code : Varo::Model::ModelUtils::findingCodes()) {
        known.insert(code);
    }
    for (std::string const& code : ruleCodes()) {
        known.insert(code);
    }
    return known;
}

/// Whether all codes are known. Says which one is not, and those that are.
bool areKnown(std::vector<std::string> const& codes, std::set<std::string> const& known, char const* things)
{
    auto const isUnknown = [&known](std::string const& code) { return known.count(code) == 0; };
    auto const unknown = std::find_if(codes.begin(), codes.end(), isUnknown);
    if (unknown == codes.end()) {
        return true;
    }
    std::cerr << "There " << things << " with the code \"" << visible(*unknown) << "\". The codes are:\n";
    for (std::string const& code : known) {
        std::cerr << "  " << code << '\n';
    }
    return false;
}

void print(Options const& options, std::vector<CheckedFile> const& files)
{
    if (options.json) {
        printAsArray(files);
    } else if (options.format == "json") {
        printAsJson(files);
    } else if (options.format == "sarif") {
        printAsSarif(files);
    } else if (options.format == "github") {
        printAsGithub(files);
    } else {
        printAsText(files, options.all);
    }
}

int check(Options const& options)
{
    if (!areKnown(options.silenced, knownCodes(), "are no findings") ||
        !areKnown(options.lint.only, ruleCodes(), "is no rule") ||
        !areKnown(options.lint.without, ruleCodes(), "is no rule")) {
        return exitStatus::wrongUsage;
    }
    std::vector<CheckedFile> files;
    for (std::string const& file : options.files) {
        Description description = readDescription(file, options.reading);
        std::string const name = description.file;
        Varo::Model::MeshFolders const folders = besideFile(options.meshFolders, file);
        files.push_back({name, findingsOf(std::move(description), options.lint, options.meshes ? &folders : nullptr)});
        obey(options, files.back().findings);
    }
    print(options, files);
    bool const isBad =
        std::any_of(files.begin(), files.end(), [](CheckedFile const& file) { return hasErrors(file.findings); });
    return isBad ? exitStatus::bad : exitStatus::fine;
}

void declareTolerances(CLI::App& app, Varo::Model::LintTolerances& tolerances)
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
        declareTolerance(app, each.option, each.value, each.meaning);
    }
}

void declareCodes(CLI::App& app, char const* option, std::vector<std::string>& codes, char const* type,
                  char const* meaning)
{
    app.add_option(option, codes, meaning)->type_name(type)->allow_extra_args(false)->take_all();
}

std::function<int()> declare(CLI::App& app)
{
    auto const options = std::make_shared<Options>();
    app.add_option("FILE", options->files, "Descriptions to check; - reads standard input")->type_name("")->required();
    app.add_flag("--strict", options->strict, "Take warnings for errors");
    declareCodes(app, "--silence", options->silenced, "CODE",
                 "Leave out warnings and notes of this code; may be repeated");
    declareReading(app, options->reading);
    declareCodes(app, "--rule", options->lint.only, "RULE",
                 "Of the rules, apply only that of this code; may be repeated");
    declareCodes(app, "--no-rule", options->lint.without, "RULE",
                 "Do not apply the rule of this code; may be repeated");
    declareTolerances(app, options->lint.tolerances);
    CLI::Option* const meshes = app.add_flag("--meshes", options->meshes, "Look for the files of meshes, too");
    for (CLI::Option* const option : declareMeshFolders(app, options->meshFolders)) {
        option->needs(meshes);
    }
    app.add_flag("--all", options->all, "Print each finding, also where there are many of a kind");
    auto* const format =
        app.add_option("--format", options->format, "text, json, sarif (2.1.0) or github (annotations)")
            ->type_name("FORMAT")
            ->check(CLI::IsMember({"text", "json", "sarif", "github"}));
    app.add_flag("--json", options->json, "Print the findings on standard output, as a JSON array")->excludes(format);
    return [options] { return check(*options); };
}

}  // namespace

Command const checkCommand = {"check", "Report everything that is wrong or doubtful",
                              R"(Reads each description and, if it is free of errors, builds its model and
applies the rules to what it says. All findings of that are reported in one
run on standard error, errors first:

  FILE:LINE:COLUMN: error|warning|note: what is wrong [code]
      what to do about it

Of kinds that occur more than three times in a file the first is printed, with
the places of the next few, unless --all are wanted.

Errors refuse the description, warnings are about what loads but is hardly
meant, and notes say what the reader passed over. What came up while the model
was built stands at the root element; what concerns the file as a whole has
no line. The rules warn of bodies and motors that cannot be, of mirror pairs
that do not mirror, and of what has no effect; docs/checking.md lists them with
their codes and tolerances. With --meshes, each mesh is looked for by the rules
in docs/meshes.md, and one that is not found gets a warning.

Standard output gets a summary of each file or, for programs, all findings:
with --format json an object of formatVersion and findings, each of those an
object with file, severity, code, line, column, path, message and hint; with
--json the array of findings alone; with --format sarif a log of SARIF 2.1.0;
with --format github annotations for its workflows. Schemas of the JSON that
check and dump print are installed in share/varorobotmodel/schema.

The exit status is 1 when there is an error in any file, and 0 otherwise.

Examples:
  varo-robot check --strict robots/*.xml
  varo-robot check --silence frozen-mimic arm.urdf
  varo-robot check --format sarif arm.urdf > arm.sarif
  varo-robot check --no-rule idle-actuator robots/*.xml
  varo-robot check --tolerance-com 0.001 --tolerance-inertia 0.05 walker.xml
  varo-robot check --meshes --package arm_meshes=../meshes arm.urdf
  xmllint --noent robot.xml | varo-robot check -)",
                              declare};

}  // namespace Tool
