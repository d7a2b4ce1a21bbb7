#include <algorithm>
#include <iostream>
#include <map>
#include <memory>

#include <CLI/CLI.hpp>
#include <unistd.h>

#include "commands/commands.hpp"
#include "sim/link.hpp"
#include "sim/mass_data.hpp"
#include "support/description.hpp"
#include "support/device_kinds.hpp"
#include "support/finding_text.hpp"
#include "support/joint_words.hpp"
#include "support/kinds.hpp"
#include "support/meshes.hpp"
#include "support/numbers.hpp"
#include "support/shape_json.hpp"
#include "support/terminal.hpp"
#include "support/visible_text.hpp"

namespace Tool {

namespace {

using Varo::Model::Finding;
using Varo::Model::Findings;

/// Prints facts under each other, their labels in a column of their own.
class Sheet {
public:
    void add(std::string const& label, std::string const& fact)
    {
        std::string const padding(label.size() < width ? width - label.size() : 0, ' ');
        std::cout << _palette.paint(Ink::heading, label) << padding << visible(fact) << '\n';
    }

    /// Several lines under one label.
    void add(std::string const& label, std::vector<std::string> const& facts)
    {
        for (std::size_t i = 0; i < facts.size(); ++i) {
            add(i == 0 ? label : "", facts[i]);
        }
    }

private:
    static constexpr std::size_t width = 14;

    Palette _palette = Palette(STDOUT_FILENO);
};

double totalMass(Sim::Model const& model)
{
    double sum = 0.0;
    for (Sim::Link const* link : model.links()) {
        sum += link->mass() == nullptr ? 0.0 : static_cast<double>(link->mass()->mass());
    }
    return sum;
}

std::size_t wheelCount(Sim::Model const& model)
{
    std::vector<Sim::Link const*> const links = model.links();
    return static_cast<std::size_t>(std::count_if(
        links.begin(), links.end(), [](Sim::Link const* link) { return link->type() == Sim::Link::Wheel; }));
}

std::string linkCount(Sim::Model const& model)
{
    std::size_t const wheels = wheelCount(model);
    return std::to_string(model.links().size()) + (wheels > 0 ? ", of them wheels " + std::to_string(wheels) : "");
}

/// "12: 9 actuated, 3 fixed"
std::string jointCount(Sim::Model const& model)
{
    JointWords const words(model);
    std::map<std::string, std::size_t> counts;
    for (Sim::Joint const* joint : model.joints()) {
        ++counts[words.of(*joint)];
    }
    std::string text = std::to_string(model.joints().size());
    char const* separator = ": ";
    for (auto const& [word, count] : counts) {
        text += separator + std::to_string(count) + " " + word;
        separator = ", ";
    }
    return text;
}

/// How many there are of each kind that there is.
template <class Device, class Kinds>
std::vector<std::pair<std::string, std::size_t>> countByKind(std::vector<Device const*> const& devices,
                                                             Kinds const& kinds)
{
    std::map<typename Device::Type, std::size_t> counts;
    for (Device const* device : devices) {
        ++counts[device->type()];
    }
    std::vector<std::pair<std::string, std::size_t>> named;
    for (auto const& [type, count] : counts) {
        named.emplace_back(nameOfType(kinds, type), count);
    }
    return named;
}

/// "5: 2 Angle, 3 LED"
template <class Device, class Kinds>
std::string countText(std::vector<Device const*> const& devices, Kinds const& kinds)
{
    std::string text = std::to_string(devices.size());
    char const* separator = ": ";
    for (auto const& [kind, count] : countByKind(devices, kinds)) {
        text += separator + std::to_string(count) + " " + kind;
        separator = ", ";
    }
    return text;
}

template <class Device, class Kinds>
Json countJson(std::vector<Device const*> const& devices, Kinds const& kinds)
{
    Json counts = Json::object();
    for (auto const& [kind, count] : countByKind(devices, kinds)) {
        counts[kind] = count;
    }
    return counts;
}

/// How many shapes there are of each kind that there is.
using ShapeCounts = std::map<Varo::Model::GeometryType, std::size_t>;

template <auto shapes>
ShapeCounts shapeCounts(Sim::Model const& model)
{
    ShapeCounts counts;
    for (Sim::Link const* link : model.links()) {
        for (Sim::Shape const& shape : (link->*shapes)()) {
            ++counts[shape.geometry.type];
        }
    }
    return counts;
}

/// "5: 2 mesh, 3 box"; empty for none.
std::string countText(ShapeCounts const& counts)
{
    std::size_t sum = 0;
    std::string text;
    for (auto const& [type, count] : counts) {
        sum += count;
        text += (text.empty() ? ": " : ", ") + std::to_string(count) + " " + nameOf(type);
    }
    return text.empty() ? "" : std::to_string(sum) + text;
}

Json countJson(ShapeCounts const& counts)
{
    Json json = Json::object();
    for (auto const& [type, count] : counts) {
        json[nameOf(type)] = count;
    }
    return json;
}

std::string prettyNames(Varo::Model::Robot const& robot)
{
    std::string text;
    for (auto const& [index, name] : robot.prettyNames()) {
        text += (text.empty() ? "" : " | ") + name;
    }
    return text;
}

/// More chains than this are counted only: the sheet is to stay on one screen.
constexpr std::size_t maximumChains = 16;

std::vector<std::string> chains(Varo::Model::Robot const& robot)
{
    std::vector<std::string> names;
    Varo::Model::ChainTable table;
    robot.listChains(names, table);
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < std::min(names.size(), maximumChains); ++i) {
        Varo::Model::ChainConfig const& chain = table.at(names[i]);
        std::string const& parent = chain.parentJoint;
        lines.push_back(names[i] + ": joints " + std::to_string(chain.jointNames.size()) +
                        (parent.empty() ? "" : ", on " + parent));
    }
    if (names.size() > maximumChains) {
        lines.push_back("and " + std::to_string(names.size() - maximumChains) + " more");
    }
    return lines;
}

/// "7, of them not found 2"; empty for none.
std::string meshText(MeshCount const& count)
{
    std::size_t const total = count.found + count.notFound;
    return total == 0 ? ""
                      : std::to_string(total) +
                            (count.notFound > 0 ? ", of them not found " + std::to_string(count.notFound) : "");
}

std::string postures(Varo::Model::Robot const& robot)
{
    std::string text;
    for (Varo::Model::PostureConfig const& posture : robot.postures()) {
        text += (text.empty() ? "" : ", ") + posture.name;
    }
    return text;
}

/// The findings of one code: how many there are, and the first of them.
struct Summary {
    std::string code;
    std::size_t count = 0;
    Finding const* first = nullptr;
};

std::vector<Summary> summarised(Findings const& findings)
{
    std::map<std::string, Summary> byCode;
    for (Finding const& finding : findings) {
        Summary& summary = byCode.try_emplace(finding.code, Summary{finding.code, 0, &finding}).first->second;
        ++summary.count;
    }
    std::vector<Summary> summaries;
    for (auto const& [code, summary] : byCode) {
        summaries.push_back(summary);
    }
    return summaries;
}

std::vector<std::string> findingLines(Findings const& findings)
{
    std::vector<std::string> lines;
    for (auto const& [code, count, first] : summarised(findings)) {
        lines.push_back(std::to_string(count) + " " + nameOf(first->severity) + (count > 1 ? "s" : "") + " " + code +
                        (count > 1 ? ", first line " : ", line ") + std::to_string(first->line) + ": " +
                        first->message);
    }
    return lines;
}

Json findingJson(Findings const& findings)
{
    Json array = Json::array();
    for (auto const& [code, count, first] : summarised(findings)) {
        array.push_back({{"code", code},
                         {"severity", nameOf(first->severity)},
                         {"count", count},
                         {"line", first->line},
                         {"message", first->message}});
    }
    return array;
}

void printForEyes(Sim::Model const& model, Findings const& findings, MeshCount const& meshes)
{
    Varo::Model::Robot const& robot = model.robot();
    Sheet sheet;
    auto const addIfAny = [&](std::string const& label, std::string const& fact) {
        if (!fact.empty()) {
            sheet.add(label, fact);
        }
    };
    sheet.add("name", model.name());
    addIfAny("pretty name", prettyNames(robot));
    addIfAny("version", robot.version());
    sheet.add("dialect", robot.dialect());
    sheet.add("root link", model.rootLink()->descriptionName());
    sheet.add("links", linkCount(model));
    sheet.add("joints", jointCount(model));
    sheet.add("total mass", rounded(totalMass(model)) + " kg");
    addIfAny("visuals", countText(shapeCounts<&Sim::Link::visuals>(model)));
    addIfAny("collisions", countText(shapeCounts<&Sim::Link::collisions>(model)));
    sheet.add("actuators", countText(model.actuators(), Sim::actuatorKinds));
    sheet.add("sensors", countText(model.sensors(), Sim::sensorKinds));
    sheet.add("symmetries", std::to_string(model.jointSymmetries().size()));
    sheet.add("joint groups", std::to_string(model.jointGroups().size()));
    sheet.add("chains", chains(robot));
    addIfAny("postures", postures(robot));
    addIfAny("meshes", meshText(meshes));
    sheet.add("findings", findingLines(findings));
}

void printForPrograms(Sim::Model const& model, Findings const& findings, MeshCount const& meshes)
{
    Varo::Model::Robot const& robot = model.robot();
    Json prettyNames = Json::object();
    for (auto const& [index, name] : robot.prettyNames()) {
        prettyNames[std::to_string(index)] = name;
    }
    Json postures = Json::array();
    for (Varo::Model::PostureConfig const& posture : model.postures()) {
        postures.push_back(posture.name);
    }
    Json const data = {
        {"name", model.name()},
        {"prettyNames", prettyNames},
        {"version", robot.version()},
        {"dialect", robot.dialect()},
        {"rootLink", model.rootLink()->name()},
        {"links", model.links().size()},
        {"wheels", wheelCount(model)},
        {"joints", model.joints().size()},
        {"mass", static_cast<float>(totalMass(model))},
        {"visuals", countJson(shapeCounts<&Sim::Link::visuals>(model))},
        {"collisions", countJson(shapeCounts<&Sim::Link::collisions>(model))},
        {"actuators", countJson(model.actuators(), Sim::actuatorKinds)},
        {"sensors", countJson(model.sensors(), Sim::sensorKinds)},
        {"symmetries", model.jointSymmetries().size()},
        {"jointGroups", model.jointGroups().size()},
        {"chains", findKind("chains")->elements(model)},
        {"postures", postures},
        {"meshes", {{"found", meshes.found}, {"notFound", meshes.notFound}}},
        {"findings", findingJson(findings)},
    };
    printJson(std::cout, data);
    std::cout << '\n';
}

struct Options {
    std::string file;
    Varo::Model::MeshFolders meshFolders;
    bool json = false;
};

int info(Options const& options)
{
    Robot const robot = loadRobot(options.file);
    Findings const findings = robot.model.findings();
    MeshCount const meshes = countMeshes(robot.records(), besideFile(options.meshFolders, options.file));
    options.json ? printForPrograms(robot.model, findings, meshes) : printForEyes(robot.model, findings, meshes);
    return exitStatus::fine;
}

std::function<int()> declare(CLI::App& app)
{
    auto const options = std::make_shared<Options>();
    declareFile(app, options->file);
    declareMeshFolders(app, options->meshFolders);
    declareJson(app, options->json, "the same and the joints of the chains");
    return [options] { return info(*options); };
}

}  // namespace

Command const infoCommand = {"info", "Say on one screen what robot this is",
                             R"(Prints the robot's names and version, the dialect of its description, how many
links, joints, actuators and sensors of each kind it has (joints are actuated,
coupled to others by an actuator, mimics of others, passive, or do not move),
the sum of its masses, how many meshes, boxes, cylinders, spheres and capsules
are shown of it and collided with, its chains, how many files of meshes it names
and how many of them are not found (docs/meshes.md), and what the reader had to
remark, one line for each kind of finding; of a URDF description that is what
could not be carried over. `varo-robot check` lists the findings one by one.

Example:
  varo-robot info robots/humanoid.xml)",
                             declare};

}  // namespace Tool
