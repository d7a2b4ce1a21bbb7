#include <algorithm>
#include <cerrno>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <pybind11/stl.h>

#include "classes.hpp"
#include "element.hpp"
#include "findings.hpp"
#include "paths.hpp"
#include "sim/friction.hpp"
#include "varo/model/lint.hpp"
#include "varo/model/model_utils.hpp"
#include "varo/model/spelling.hpp"
#include "varo/model/text_file.hpp"

namespace Python {

namespace {

using Varo::Model::Findings;
using Varo::Model::LintOptions;
namespace ModelUtils = Varo::Model::ModelUtils;

/// A text, and what messages call it.
struct Source {
    std::string text;
    std::string file = "<string>";
    bool isFromFile = false;
};

/// Throws OSError, of the kind that says why.
Source readSource(py::object const& path)
{
    std::string name = fromPath(path);
    Varo::Model::TextFile file = [&name] {
        py::gil_scoped_release const release;
        return Varo::Model::readTextFile(name);
    }();
    if (file.error != 0) {
        errno = file.error;
        PyErr_SetFromErrnoWithFilenameObject(PyExc_OSError, path.ptr());
        throw py::error_already_set();
    }
    return {std::move(file.text), std::move(name), true};
}

[[noreturn]] void refuse(Findings const& findings, Source const& source)
{
    py::object const file = source.isFromFile ? py::object(textOf(source.file)) : py::none();
    raise(packageClass("DescriptionError")(findingsOf(findings, source.file), file));
}

/// All of the work is done without the interpreter's lock.
ModelPtr build(Source source, bool inferMirrors)
{
    Findings reasons;
    {
        py::gil_scoped_release const release;
        try {
            Sim::Model model(ModelUtils::read(std::move(source.text), {inferMirrors, false}));
            return std::make_shared<LoadedModel>(
                LoadedModel{std::move(model), std::move(source.file), source.isFromFile});
        } catch (Varo::Model::WithFindings const& error) {
            reasons = error.findings();
        }
    }
    refuse(reasons, source);
}

ModelPtr load(py::object const& path, bool inferMirrors)
{
    return build(readSource(path), inferMirrors);
}

/// Of str or bytes.
Source sourceOf(std::string text)
{
    Source source;
    source.text = std::move(text);
    return source;
}

ModelPtr loads(std::string text, bool inferMirrors)
{
    return build(sourceOf(std::move(text)), inferMirrors);
}

using Tolerances = std::map<std::string, double>;

LintOptions lintOptions(std::vector<std::string> only, std::vector<std::string> without, Tolerances const& tolerances)
{
    LintOptions options;
    options.only = std::move(only);
    options.without = std::move(without);
    Varo::Model::LintTolerances& to = options.tolerances;
    std::map<std::string, double*> const known = {
        {"mass", &to.mass}, {"center_of_mass", &to.centerOfMass}, {"inertia", &to.inertia}, {"limit", &to.limit}};
    for (auto const& [name, value] : tolerances) {
        auto const found = known.find(name);
        if (found == known.end()) {
            throw py::value_error("There is no tolerance \"" + name +
                                  "\": they are mass, center_of_mass, inertia and limit.");
        }
        *found->second = value;
    }
    return options;
}

/// What the text, the rules and the building of the model have to say.
Findings everythingOn(std::string text, bool inferMirrors, LintOptions const& options)
{
    ModelUtils::Reading reading = ModelUtils::read(std::move(text), {inferMirrors});
    if (reading.robot == nullptr) {
        return std::move(reading.findings);
    }
    Findings findings = Varo::Model::lint(*reading.robot, options);
    auto const add = [&findings](Findings const& more) { findings.insert(findings.end(), more.begin(), more.end()); };
    try {
        add(Sim::Model(std::move(reading)).findings());
    } catch (Varo::Model::WithFindings const& reason) {
        add(reason.findings());
    }
    std::stable_sort(findings.begin(), findings.end(), [](auto const& a, auto const& b) {
        return std::pair(a.line, a.column) < std::pair(b.line, b.column);
    });
    return findings;
}

py::list check(Source source, bool inferMirrors, LintOptions const& options)
{
    Findings findings;
    {
        py::gil_scoped_release const release;
        findings = everythingOn(std::move(source.text), inferMirrors, options);
    }
    return findingsOf(findings, source.file);
}

/// A description of either dialect in the one named. Where URDF cannot say it, `findings` has an error.
std::string writeAs(Varo::Model::Robot const& robot, std::string const& dialect, Findings& findings)
{
    return dialect == "urdf" ? ModelUtils::toUrdf(robot, findings) : ModelUtils::toXml(robot);
}

bool hasErrors(Findings const& findings)
{
    return std::any_of(findings.begin(), findings.end(), [](Varo::Model::Finding const& finding) {
        return finding.severity == Varo::Model::Severity::error;
    });
}

py::str convertFile(Source source, std::string const& dialect, bool inferMirrors)
{
    Findings findings;
    std::string converted;
    {
        py::gil_scoped_release const release;
        ModelUtils::Reading reading = ModelUtils::read(std::move(source.text), {inferMirrors, false});
        if (reading.robot == nullptr) {
            findings = std::move(reading.findings);
        } else {
            converted = writeAs(*reading.robot, dialect, findings);
        }
    }
    if (hasErrors(findings)) {
        refuse(findings, source);
    }
    return textOf(converted);
}

py::str convertModel(LoadedModel const& loaded, std::string const& dialect)
{
    Findings findings;
    std::string const converted = writeAs(loaded.model.robot(), dialect, findings);
    if (hasErrors(findings)) {
        refuse(findings, {{}, loaded.file, loaded.isFromFile});
    }
    return textOf(converted);
}

py::str convert(py::object const& source, std::string const& to, bool inferMirrors)
{
    if (to != "native" && to != "urdf") {
        throw py::value_error("There is no dialect \"" + to + "\": they are native and urdf.");
    }
    return py::isinstance<LoadedModel>(source) ? convertModel(source.cast<LoadedModel const&>(), to)
                                               : convertFile(readSource(source), to, inferMirrors);
}

std::optional<float> frictionCoefficient(std::string const& material1, std::string const& material2)
{
    float coefficient = 0.0F;
    bool const isKnown = Sim::frictionCoeff(material1, material2, coefficient);
    return isKnown ? std::optional(coefficient) : std::nullopt;
}

std::string closestWord(std::string const& written, std::vector<std::string> const& words)
{
    Varo::Model::ClosestWord closest(written);
    for (std::string const& word : words) {
        closest.offer(word);
    }
    return std::string(closest.word());
}

using Codes = std::vector<std::string>;

}  // namespace

void defineReading(py::module_& module)
{
    auto const inferMirrors = py::arg("infer_mirrors") = true;
    auto const only = py::arg("only") = py::tuple();
    auto const without = py::arg("without") = py::tuple();
    auto const tolerances = py::arg("tolerances") = py::dict();
    py::kw_only const keywords;

    define(
        module, "load(path, *, infer_mirrors=True)", load,
        "The model of the description, native or URDF, in a file.\n\n"
        "Raises OSError when the file cannot be read, and DescriptionError, whose findings say what is wrong where,\n"
        "when its text is refused or no model can be built of it. Other threads run meanwhile. infer_mirrors says\n"
        "whether left and right joints are paired where the dialect has no mirrors, as URDF has none.",
        py::arg("path"), keywords, inferMirrors);
    define(module, "loads(text, *, infer_mirrors=True)", loads, "As load, of a text: str, or bytes as files have them.",
           py::arg("text"), keywords, inferMirrors);
    define(
        module, "check(path, *, infer_mirrors=True, only=(), without=(), tolerances={})",
        [](py::object const& path, bool infer, Codes onlyCodes, Codes withoutCodes, Tolerances const& limits) {
            return check(readSource(path), infer, lintOptions(std::move(onlyCodes), std::move(withoutCodes), limits));
        },
        "All that is to say of the description in a file, in the order of the places: the findings of reading it, of\n"
        "building its model, and of the rules (see lint). Raises OSError when the file cannot be read.",
        py::arg("path"), keywords, inferMirrors, only, without, tolerances);
    define(
        module, "checks(text, *, infer_mirrors=True, only=(), without=(), tolerances={})",
        [](std::string text, bool infer, Codes onlyCodes, Codes withoutCodes, Tolerances const& limits) {
            return check(sourceOf(std::move(text)), infer,
                         lintOptions(std::move(onlyCodes), std::move(withoutCodes), limits));
        },
        "As check, of a text.", py::arg("text"), keywords, inferMirrors, only, without, tolerances);
    define(
        module, "lint(model, *, only=(), without=(), tolerances={})",
        [](LoadedModel const& loaded, Codes onlyCodes, Codes withoutCodes, Tolerances const& limits) {
            LintOptions const options = lintOptions(std::move(onlyCodes), std::move(withoutCodes), limits);
            return findingsOf(Varo::Model::lint(loaded.model.robot(), options), loaded.file);
        },
        "What the rules find in a model: what reads well and cannot be true, or is hardly meant.\n\n"
        "only and without are codes of rules to apply, and to leave out. tolerances may have mass (part of the "
        "greater\n"
        "one), center_of_mass (m), inertia (part of the greatest entry) and limit (rad, m). Raises ValueError for a\n"
        "code that no rule has.",
        py::arg("model"), keywords, only, without, tolerances);
    define(
        module, "convert(source, to=\"native\", *, infer_mirrors=True)", convert,
        "The description in a file, or that of a model, as a text in the dialect \"native\" or \"urdf\".\n\n"
        "What URDF has no words for stands in an element of our own, which other programs pass over: converting back\n"
        "gives the same description. Raises as load does.",
        py::arg("source"), py::arg("to") = "native", keywords, inferMirrors);
    define(module, "friction_coefficient(material1, material2)", frictionCoefficient,
           "The static friction coefficient between two materials as links name them; None for an unknown pair.",
           py::arg("material1"), py::arg("material2"));
    define(module, "closest_word(written, words)", closestWord,
           "The one of the words that was probably meant; empty when none is close.", py::arg("written"),
           py::arg("words"));
}

}  // namespace Python
