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
#include "support/numbers.hpp"
#include "support/terminal.hpp"

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
        std::cout << _palette.paint(Ink::heading, label) << padding << fact << '\n';
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

std::string linkCount(Sim::Model const& model)
{
    std::vector<Sim::Link const*> const links = model.links();
    auto const wheels = std::count_if(links.begin(), links.end(),
                                      [](Sim::Link const* link) { return link->type() == Sim::Link::Wheel; });
    return std::to_string(links.size()) + (wheels > 0 ? ", of them wheels " + std::to_string(wheels) : "");
}

/// "5: 2 Angle, 3 LED"
template <class Device, class Kinds>
std::string countByKind(std::vector<Device const*> const& devices, Kinds const& kinds)
{
    std::map<typename Device::Type, std::size_t> counts;
    for (Device const* device : devices) {
        ++counts[device->type()];
    }
    std::string text = std::to_string(devices.size());
    char const* separator = ": ";
    for (auto const& [type, count] : counts) {
        text += separator + std::to_string(count) + " " + nameOfType(kinds, type);
        separator = ", ";
    }
    return text;
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

std::string postures(Varo::Model::Robot const& robot)
{
    std::string text;
    for (Varo::Model::PostureConfig const& posture : robot.postures()) {
        text += (text.empty() ? "" : ", ") + posture.name;
    }
    return text;
}

/// A line for each code that findings have: how many there are, and the first of them.
std::vector<std::string> summarised(Findings const& findings)
{
    std::map<std::string, std::pair<std::size_t, Finding const*>> byCode;
    for (Finding const& finding : findings) {
        auto& [count, first] = byCode.try_emplace(finding.code, 0, &finding).first->second;
        ++count;
    }
    std::vector<std::string> lines;
    for (auto const& [code, group] : byCode) {
        auto const& [count, first] = group;
        lines.push_back(std::to_string(count) + " " + nameOf(first->severity) + (count > 1 ? "s" : "") + " " + code +
                        (count > 1 ? ", first line " : ", line ") + std::to_string(first->line) + ": " +
                        first->message);
    }
    return lines;
}

int info(std::string const& file)
{
    Robot const robot = loadRobot(file);
    Sim::Model const& model = robot.model;
    Varo::Model::Robot const& records = robot.records();
    Sheet sheet;
    auto const addIfAny = [&](std::string const& label, std::string const& fact) {
        if (!fact.empty()) {
            sheet.add(label, fact);
        }
    };
    sheet.add("name", model.name());
    addIfAny("pretty name", prettyNames(records));
    addIfAny("version", records.version());
    sheet.add("dialect", records.dialect());
    sheet.add("root link", model.rootLink()->name());
    sheet.add("links", linkCount(model));
    sheet.add("joints", std::to_string(model.joints().size()));
    sheet.add("total mass", rounded(totalMass(model)) + " kg");
    sheet.add("actuators", countByKind(model.actuators(), Sim::actuatorKinds));
    sheet.add("sensors", countByKind(model.sensors(), Sim::sensorKinds));
    sheet.add("symmetries", std::to_string(model.jointSymmetries().size()));
    sheet.add("joint groups", std::to_string(model.jointGroups().size()));
    sheet.add("chains", chains(records));
    addIfAny("postures", postures(records));
    sheet.add(recordsOf(records)->holdsAllStated ? "findings" : "not carried", summarised(model.findings()));
    return exitStatus::fine;
}

std::function<int()> declare(CLI::App& app)
{
    auto const file = std::make_shared<std::string>();
    declareFile(app, *file);
    return [file] { return info(*file); };
}

}  // namespace

Command const infoCommand = {"info", "Say on one screen what robot this is",
                             R"(Prints the robot's names and version, the dialect of its description, how many
links, joints, actuators and sensors of each kind it has, the sum of its masses,
its chains, and what the reader had to remark, one line for each kind of
finding; of a URDF description that is what could not be carried over.
`varo-robot check` lists the findings one by one.

Example:
  varo-robot info robots/humanoid.xml)",
                             declare};

}  // namespace Tool
