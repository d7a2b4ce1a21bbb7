#include <algorithm>
#include <iostream>
#include <memory>
#include <set>

#include <CLI/CLI.hpp>
#include <unistd.h>

#include "commands/commands.hpp"
#include "sim/actuator.hpp"
#include "sim/actuator_group.hpp"
#include "sim/joint.hpp"
#include "sim/joint_group.hpp"
#include "sim/joint_symmetry.hpp"
#include "sim/link.hpp"
#include "sim/sensor.hpp"
#include "support/description.hpp"
#include "support/element_json.hpp"
#include "support/json_parts.hpp"
#include "support/json_text.hpp"
#include "support/kinds.hpp"
#include "support/link_names.hpp"
#include "support/terminal.hpp"
#include "support/visible_text.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/spelling.hpp"

namespace Tool {

namespace {

struct Options {
    std::string name;
    std::string file;
    bool json = false;
};

/// An element that has the name.
struct Sighting {
    std::string kind;
    std::string name;
    Json facts;
};

/// Collects what has a name.
class Search {
public:
    Search(Sim::Model const& model, std::string name) : _model(model), _name(std::move(name)) {}

    std::vector<Sighting> run();

private:
    template <class Element>
    void addNamed(char const* kind, std::vector<Element const*> const& elements)
    {
        for (Element const* element : elements) {
            if (element->name() == _name) {
                _found.push_back({kind, _name, _json.of(*element)});
            }
        }
    }
    void addRecords(char const* kind);
    void addLinks();
    void addJoints();
    void addSymmetries();

    Sim::Model const& _model;
    std::string _name;
    ElementJson _json;
    std::vector<Sighting> _found;
};

std::vector<Sighting> Search::run()
{
    addLinks();
    addJoints();
    addSymmetries();
    addRecords("chain");
    addNamed("joint group", _model.jointGroups());
    addNamed("actuator", _model.actuators());
    addNamed("actuator group", _model.actuatorGroups());
    addNamed("sensor", _model.sensors());
    addRecords("transmission");
    addRecords("posture");
    return std::move(_found);
}

/// Of the kinds that the model has no elements of.
void Search::addRecords(char const* kind)
{
    for (Json& record : findKind(kind)->elements(_model)) {
        if (record["name"] == _name) {
            _found.push_back({kind, _name, std::move(record)});
        }
    }
}

/// By the model's name or the one in the description.
void Search::addLinks()
{
    for (Sim::Link const* link : _model.links()) {
        if (link->name() == _name || link->descriptionName() == _name) {
            _found.push_back({"link", link->descriptionName(), _json.of(*link)});
            if (_model.robot().dialect() == "urdf") {
                _found.back().facts["urdfName"] = link->descriptionName();
            }
        }
    }
}

void Search::addJoints()
{
    for (Sim::Joint const* joint : _model.joints()) {
        if (joint->name() == _name) {
            Json facts = _json.of(*joint);
            facts["jointGroups"] = namesOf(_model.jointGroupsOfJoint(_name));
            facts["actuatorGroups"] = namesOf(_model.actuatorGroupsOfJoint(_name));
            _found.push_back({"joint", _name, std::move(facts)});
        }
    }
}

void Search::addSymmetries()
{
    auto const isNamed = [this](Sim::Joint const* joint) { return joint != nullptr && joint->name() == _name; };
    for (Sim::JointSymmetry const* symmetry : _model.jointSymmetries()) {
        auto const [first, second] = symmetry->symmetricJoints();
        if (isNamed(first) || isNamed(second)) {
            _found.push_back({"symmetry of", _name, _json.of(*symmetry)});
        }
    }
}

void printFact(std::string const& key, std::string const& text)
{
    constexpr std::size_t width = 28;
    std::cout << "  " << key << std::string(key.size() < width ? width - key.size() : 1, ' ') << visible(text) << '\n';
}

/// One line for each part of the settings that is stated.
void printSettings(Json const& settings)
{
    for (auto const& [part, stated] : settings.items()) {
        if (!stated.is_null() && !(stated.is_array() && stated.empty())) {
            printFact(part, readable(stated));
        }
    }
}

/// One line for each fact and each object of a list; the facts of an object within stand among the others.
void printFacts(Sighting const& sighting, Json const& facts, LinkNames const& names)
{
    for (auto const& [key, value] : facts.items()) {
        if (key == "settings" && value.is_object()) {
            printSettings(value);
        } else if (value.is_object() && !value.empty()) {
            printFacts(sighting, value, names);
        } else if (value.is_array() && !value.empty() && value[0].is_object()) {
            for (Json const& entry : value) {
                printFact(&entry == &value[0] ? key : "", readable(entry));
            }
        } else if (value != sighting.name || (key != "name" && key != "descriptionName" && key != "urdfName")) {
            bool const isOfLink = key == "parentLink" || key == "childLink";
            printFact(key, isOfLink ? names.of(readable(value)) : readable(value));
        }
    }
}

void printForEyes(std::vector<Sighting> const& found, LinkNames const& names)
{
    Palette const palette(STDOUT_FILENO);
    for (Sighting const& sighting : found) {
        std::string const heading = sighting.kind + " " + visible(sighting.name);
        std::cout << (&sighting == &found.front() ? "" : "\n") << palette.paint(Ink::heading, heading) << '\n';
        printFacts(sighting, sighting.facts, names);
    }
}

/// The facts as they are, each with the kind of its element before them.
void printForPrograms(std::vector<Sighting> const& found)
{
    {
        JsonStream array(std::cout, '[');
        for (Sighting const& sighting : found) {
            Json element = {{"kind", sighting.kind == "symmetry of" ? "symmetry" : sighting.kind}};
            element.update(sighting.facts);
            array.add(element);
        }
    }
    std::cout << '\n';
}

/// Names that hold the one that was not found, whatever the case, as a hint.
std::string similarNames(Sim::Model const& model, std::string const& name)
{
    constexpr std::size_t maximum = 5;
    std::vector<std::string> similar;
    std::set<std::string> candidates;  // which the closest word refers to
    Varo::Model::ClosestWord closest(name);
    auto const offer = [&](std::string const& candidate) {
        closest.offer(*candidates.insert(candidate).first);
        auto const sameLetter = [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); };
        bool const holds =
            std::search(candidate.begin(), candidate.end(), name.begin(), name.end(), sameLetter) != candidate.end();
        bool const isNew = std::find(similar.begin(), similar.end(), candidate) == similar.end();
        if (holds && isNew && similar.size() < maximum) {
            similar.push_back(candidate);
        }
    };
    auto const offerAll = [&](auto const& elements) {
        for (auto const* const element : elements) {
            offer(element->name());
        }
    };
    offerAll(model.joints());
    for (Sim::Link const* link : model.links()) {
        offer(link->descriptionName());
    }
    offerAll(model.jointGroups());
    offerAll(model.actuators());
    offerAll(model.sensors());
    offerAll(model.links());
    std::string text;
    for (std::string const& candidate : similar) {
        text += (text.empty() ? "Similar names: " : ", ") + candidate;
    }
    if (text.empty() && !closest.word().empty()) {
        return "Did you mean " + Varo::Model::quoted(closest.word()) + "?";
    }
    return text.empty() ? "" : text + ".";
}

int show(Options options)
{
    putFileLast(options.name, options.file);
    Robot const robot = loadRobot(options.file);
    Sim::Model const& model = robot.model;
    std::vector<Sighting> const found = Search(model, options.name).run();
    if (found.empty()) {
        throw Refused(robot.file, {fileFinding(Varo::Model::Severity::error, codes::nameNotFound,
                                               "Nothing in it is called \"" + options.name + "\".",
                                               similarNames(model, options.name))});
    }
    options.json ? printForPrograms(found) : printForEyes(found, LinkNames(model));
    return exitStatus::fine;
}

std::function<int()> declare(CLI::App& app)
{
    auto const options = std::make_shared<Options>();
    app.add_option("NAME", options->name, "The exact name of what to show")->type_name("")->required();
    declareFile(app, options->file);
    declareJson(app, options->json, "an array of what was found");
    return [options] { return show(*options); };
}

}  // namespace

Command const showCommand = {"show", "Show everything of a name",
                             R"(Prints all that the model knows under the name, whatever its kind: links, joints
with their groups and symmetries, chains, groups, actuators, sensors with their
settings, transmissions and postures, one after the other when several have it.
A link is found by the name that the description gives it, as URDF does, and by
the model's, which is that of its joint with Link appended. FILE may stand
before NAME, too.

With --json: an array of objects, each with its kind (link, joint, symmetry,
chain, joint group, actuator, actuator group, sensor, transmission or posture)
and then as `dump` and `list` print it.

Poses read as origin (m) and roll, pitch and yaw (rad); "-" stands for none.
The exit status is 1 when nothing has the name.

Examples:
  varo-robot show NeckTurn robots/humanoid.xml
  varo-robot show forearm_link arm.urdf)",
                             declare};

}  // namespace Tool
