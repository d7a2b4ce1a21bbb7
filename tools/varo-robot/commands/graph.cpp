#include <iostream>
#include <map>
#include <memory>

#include <CLI/CLI.hpp>

#include "commands/commands.hpp"
#include "sim/coupled_actuator.hpp"
#include "sim/joint.hpp"
#include "sim/joint_symmetry.hpp"
#include "sim/link.hpp"
#include "support/chain_colours.hpp"
#include "support/description.hpp"
#include "support/device_kinds.hpp"
#include "support/link_carriers.hpp"
#include "support/numbers.hpp"
#include "support/visible_text.hpp"

namespace Tool {

namespace {

struct Options {
    std::string file;
    bool sensors = false;
    bool actuators = false;
};

/// Text as it stands between the quotes of DOT.
std::string inQuotes(std::string const& text)
{
    std::string result;
    for (char const c : visible(text)) {
        if (c == '"' || c == '\\') {
            result += '\\';
        }
        result += c;
    }
    return result;
}

std::string quoted(std::string const& text)
{
    return "\"" + inQuotes(text) + "\"";
}

void printLegend(ChainColours const& colours)
{
    std::cout << "  subgraph cluster_legend {\n    label=\"chains\"; color=gray80; fontsize=11;\n";
    for (std::size_t i = colours.chains().size(); i-- > 0;) {  // drawn from right to left
        std::cout << "    " << quoted("chain " + colours.chains()[i]) << " [label=" << quoted(colours.chains()[i])
                  << ", shape=box, fillcolor=" << quoted(colours.fillOf(i)) << "];\n";
    }
    std::cout << "  }\n";
}

void printLinks(Sim::Model const& model, ChainColours const& colours)
{
    for (Sim::Link const* link : model.links()) {
        std::cout << "  " << quoted(link->name()) << " [fillcolor=" << quoted(colours.fillOf(*link))
                  << (link->descriptionName() == link->name() ? "" : ", label=" + quoted(link->descriptionName()))
                  << (link->type() == Sim::Link::Wheel ? ", shape=ellipse" : "") << "];\n";
    }
}

/// What moves the joints of coupled actuators, as an arrow says it between quotes.
using Couplings = std::map<Sim::Joint const*, std::string>;

Couplings couplings(Sim::Model const& model)
{
    Couplings labels;
    for (Sim::CoupledActuator const* actuator : model.coupledActuators()) {
        for (auto const& [joint, ratio] : actuator->controlledJointAndRatios()) {
            labels[joint] += "\\n" + inQuotes(actuator->name()) + " x " + shortest(ratio);
        }
    }
    return labels;
}

void printJoints(Sim::Model const& model, ChainColours const& colours, Couplings const& couplings)
{
    for (Sim::Joint const* joint : model.joints()) {
        if (joint->parentLink() == nullptr || joint->childLink() == nullptr) {
            continue;
        }
        auto const coupling = couplings.find(joint);
        std::string const label = inQuotes(joint->name()) + (coupling == couplings.end() ? "" : coupling->second);
        std::cout << "  " << quoted(joint->parentLink()->name()) << " -> " << quoted(joint->childLink()->name())
                  << " [label=\"" << label << "\", color=" << quoted(colours.strokeOf(*joint->childLink())) << "];\n";
    }
}

/// Between the links that mirrored joints move; joints whose values are opposite in the mirror have filled ends.
void printMirrors(Sim::Model const& model)
{
    for (Sim::JointSymmetry const* symmetry : model.jointSymmetries()) {
        auto const [first, second] = symmetry->symmetricJoints();
        if (first == nullptr || second == nullptr || first->childLink() == nullptr || second->childLink() == nullptr) {
            continue;
        }
        bool const reversed = symmetry->symmetryType() == Sim::JointSymmetry::ReflectedSymmetricReversed;
        std::cout << "  " << quoted(first->childLink()->name()) << " -> " << quoted(second->childLink()->name())
                  << " [dir=both, style=dashed, color=gray55, constraint=false, arrowsize=0.6, "
                  << (reversed ? "arrowhead=dot, arrowtail=dot" : "arrowhead=odot, arrowtail=odot") << "];\n";
    }
}

/// One note beside each link that carries devices, a line for each of them.
template <class Device>
void printNotes(std::string const& prefix, char const* fill, std::vector<Device const*> const& devices,
                Sim::Model const& model)
{
    LinkCarriers const carriers(model);
    std::map<Sim::Link const*, std::string> labels;
    for (Device const* device : devices) {
        std::string const line = std::string(typeName(*device)) + " " + device->name();
        labels[carriers.of(device->frame())] += inQuotes(line) + "\\l";
    }
    for (Sim::Link const* link : model.links()) {
        auto const found = labels.find(link);
        if (found != labels.end()) {
            std::string const note = quoted(prefix + link->name());
            std::cout << "  " << note << " [shape=note, fontsize=9, fillcolor=" << fill << ", label=\"" << found->second
                      << "\"];\n  " << quoted(link->name()) << " -> " << note << " [style=dotted, arrowhead=none];\n";
        }
    }
}

int graph(Options const& options)
{
    Robot const robot = loadRobot(options.file);
    Sim::Model const& model = robot.model;
    ChainColours const colours(model);
    std::cout << "digraph " << quoted(model.name()) << " {\n"
              << "  node [shape=box, style=\"filled,rounded\", fontname=\"Helvetica\", fontsize=11];\n"
              << "  edge [fontname=\"Helvetica\", fontsize=9];\n";
    printLinks(model, colours);
    printJoints(model, colours, options.actuators ? couplings(model) : Couplings());
    printMirrors(model);
    if (options.sensors) {
        printNotes("sensors of ", "lightyellow", model.sensors(), model);
    }
    if (options.actuators) {
        printNotes("actuators of ", "white", model.actuators(), model);
    }
    printLegend(colours);
    std::cout << "}\n";
    return exitStatus::fine;
}

std::function<int()> declare(CLI::App& app)
{
    auto const options = std::make_shared<Options>();
    declareFile(app, options->file);
    app.add_flag("--sensors", options->sensors, "Add the sensors, as notes beside the links that carry them");
    app.add_flag("--actuators", options->actuators, "Add the actuators likewise, and what the coupled ones move");
    return [options] { return graph(*options); };
}

}  // namespace

Command const graphCommand = {"graph", "Draw the robot with Graphviz",
                              R"(Prints the kinematic tree in the DOT language: links are boxes (wheels
ellipses), joints are arrows, both in the colour of their chain. Dashed lines
join the links of mirrored joints; their ends are filled when opposite values of
the two joints mirror each other, and hollow when equal ones do.

Examples:
  varo-robot graph robots/humanoid.xml | dot -Tsvg > humanoid.svg
  varo-robot graph --sensors robots/rover.xml | dot -Tpng > rover.png)",
                              declare};

}  // namespace Tool
