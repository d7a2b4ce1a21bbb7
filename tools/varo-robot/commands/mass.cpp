#include <algorithm>
#include <cmath>
#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>

#include "commands/commands.hpp"
#include "sim/link.hpp"
#include "sim/mass_data.hpp"
#include "support/description.hpp"
#include "support/link_chains.hpp"
#include "support/moved_robot.hpp"
#include "support/numbers.hpp"
#include "support/table.hpp"

namespace Tool {

namespace {

struct Options {
    std::string file;
    MotionOptions motion;
    bool json = false;
    bool wide = false;
};

/// A link or a chain: what it weighs, and the sum of mass times place in the root's frame.
struct Part {
    std::string name;
    double mass = 0.0;
    Sim::Vector3 moment = {};

    void add(double moreMass, Sim::Vector3 const& place)
    {
        mass += moreMass;
        for (std::size_t i = 0; i < 3; ++i) {
            moment[i] += moreMass * place[i];
        }
    }

    /// Meaningless without mass.
    Sim::Vector3 centerOfMass() const { return {moment[0] / mass, moment[1] / mass, moment[2] / mass}; }
};

struct Masses {
    std::vector<Part> links;
    std::vector<Part> chains;
    Sim::MassProperties total;
};

Masses massesOf(Sim::Model const& model, MovedRobot const& moved, bool forEyes)
{
    Masses masses;
    masses.total = moved.kinematics().massProperties(moved.configuration());
    LinkChains const chains(model);
    for (std::string const& name : chains.names()) {
        masses.chains.push_back({name});
    }
    std::vector<Sim::Pose> const poses = moved.kinematics().linkPoses(moved.configuration());
    for (Sim::Link const* const link : model.links()) {
        Part& part = masses.links.emplace_back(Part{forEyes ? link->descriptionName() : link->name()});
        Sim::MassData const* const data = link->mass();
        if (data == nullptr) {
            continue;
        }
        auto const& com = data->CoM();
        double const mass = static_cast<double>(data->mass());
        Sim::Vector3 const inLink = {static_cast<double>(com.x), static_cast<double>(com.y),
                                     static_cast<double>(com.z)};
        Sim::Vector3 const place = poses[masses.links.size() - 1] * inLink;
        part.add(mass, place);
        if (auto const chain = chains.chainOf(*link)) {
            masses.chains[*chain].add(mass, place);
        }
    }
    return masses;
}

Row rowOf(std::string const& name, double mass, Sim::Vector3 const& centerOfMass)
{
    return {name, rounded(mass) + " kg", mass == 0.0 ? "-" : triple(centerOfMass)};
}

void printParts(char const* title, std::vector<Part> const& parts, bool wide)
{
    std::vector<Row> rows = {{title, "MASS", "CENTRE OF MASS"}};
    for (Part const& part : parts) {
        rows.push_back(rowOf(part.name, part.mass, part.centerOfMass()));
    }
    printTable(std::move(rows), wide);
    std::cout << '\n';
}

void printInertia(std::array<double, 9> const& inertia)
{
    // What rounding leaves of a zero says nothing to eyes.
    double const least = 1e-7 * std::max({inertia[0], inertia[4], inertia[8]});
    std::cout << "\ninertia about the centre of mass, in the root's axes (kg*m^2)\n";
    for (std::size_t i = 0; i < 9; ++i) {
        std::cout << (i % 3 == 0 ? "  " : " ") << rounded(std::abs(inertia[i]) <= least ? 0.0 : inertia[i])
                  << (i % 3 == 2 ? "\n" : "");
    }
}

void printForEyes(Masses const& masses, bool wide)
{
    printParts("LINK", masses.links, wide);
    if (!masses.chains.empty()) {
        printParts("CHAIN", masses.chains, wide);
    }
    auto const& [mass, centerOfMass, inertia] = masses.total;
    printTable({{"TOTAL", "MASS", "CENTRE OF MASS"}, rowOf("robot", mass, centerOfMass)}, wide);
    printInertia(inertia);
}

template <std::size_t size>
Json arrayOf(std::array<double, size> const& values)
{
    Json array = Json::array();
    for (double const value : values) {
        array.push_back(static_cast<float>(value));
    }
    return array;
}

Json partsJson(std::vector<Part> const& parts)
{
    Json array = Json::array();
    for (Part const& part : parts) {
        array.push_back({{"name", part.name},
                         {"mass", static_cast<float>(part.mass)},
                         {"com", part.mass == 0.0 ? Json(nullptr) : arrayOf(part.centerOfMass())}});
    }
    return array;
}

Json massJson(Masses const& masses, Json configuration)
{
    auto const& [mass, centerOfMass, inertia] = masses.total;
    return {
        {"configuration", std::move(configuration)},
        {"mass", static_cast<float>(mass)},
        {"com", mass == 0.0 ? Json(nullptr) : arrayOf(centerOfMass)},
        {"inertia", arrayOf(inertia)},
        {"links", partsJson(masses.links)},
        {"chains", partsJson(masses.chains)},
    };
}

int mass(Options const& options)
{
    Robot const robot = loadRobot(options.file);
    MovedRobot const moved(robot.model, options.motion, robot.file);
    Masses const masses = massesOf(robot.model, moved, !options.json);
    if (options.json) {
        printJson(std::cout, massJson(masses, moved.configurationJson()));
        std::cout << '\n';
    } else {
        printForEyes(masses, options.wide);
    }
    return exitStatus::fine;
}

std::function<int()> declare(CLI::App& app)
{
    auto const options = std::make_shared<Options>();
    declareFile(app, options->file);
    declareMotion(app, options->motion);
    declareWide(app, options->wide);
    declareJson(app, options->json, "the configuration and the masses");
    return [options] { return mass(*options); };
}

}  // namespace

Command const massCommand = {"mass", "Say what the robot weighs, and where",
                             R"(Prints the mass and the centre of mass of each link, of each chain and of the
whole robot, and its inertia about its centre of mass. Positions are in the
root's frame (m), for the joint values that a posture and --joint give, and for
0 otherwise; joints that follow then stand at their offset.

A link belongs to the chain of the joint before it or, when that is in none, to
the chain of the link before it: hands and wheels to that of the limb that
carries them. The root belongs to no chain.

With --json: an object with the configuration (rad, m), mass, com and inertia of
the robot, and the arrays links and chains, each entry with name, mass and com;
com is null for what has no mass.

Examples:
  varo-robot mass robots/humanoid.xml
  varo-robot mass --posture Crouch --joint WaistBend=0.2 robots/humanoid.xml)",
                             declare};

}  // namespace Tool
