#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>

#include "commands/commands.hpp"
#include "sim/link.hpp"
#include "support/description.hpp"
#include "support/json_parts.hpp"
#include "support/moved_robot.hpp"
#include "support/numbers.hpp"
#include "support/table.hpp"

namespace Tool {

namespace {

struct Options {
    std::string file;
    std::vector<std::string> names;
    MotionOptions motion;
    bool json = false;
    bool wide = false;
};

struct NamedPose {
    std::string name;
    Varo::Math::Transform pose;
};

/// Of what is asked for, or of all links.
std::vector<NamedPose> posesOf(Options const& options, Sim::Model const& model, MovedRobot const& moved)
{
    std::vector<std::string> const& names = options.names;
    std::vector<NamedPose> poses;
    poses.reserve(names.size());
    for (std::string const& name : names) {
        poses.push_back({name, moved.poseOf(name)});
    }
    if (names.empty()) {
        std::vector<Varo::Math::Transform> const linkPoses = moved.linkPoses();
        poses.reserve(linkPoses.size());
        for (Sim::Link const* const link : model.links()) {
            poses.push_back({options.json ? link->name() : link->descriptionName(), linkPoses[poses.size()]});
        }
    }
    return poses;
}

void printForEyes(std::vector<NamedPose> const& poses, Options const& options)
{
    std::vector<Row> rows = {{"NAME", "POSE"}};
    for (auto const& [name, pose] : poses) {
        rows.push_back({name, poseText(pose, options.motion.degrees)});
    }
    printTable(std::move(rows), options.wide);
}

Json poseJson(std::vector<NamedPose> const& poses)
{
    Json array = Json::array();
    for (auto const& [name, pose] : poses) {
        array.push_back({{"name", name}, {"pose", matrixOf(pose)}});
    }
    return array;
}

int pose(Options options)
{
    if (!options.names.empty()) {
        putFileLast(options.names.front(), options.file);
    }
    Robot const robot = loadRobot(options.file);
    MovedRobot const moved(robot.model, options.motion, robot.file);
    std::vector<NamedPose> const poses = posesOf(options, robot.model, moved);
    if (options.json) {
        std::string const& reference = options.motion.relativeTo;
        Json const data = {
            {"configuration", moved.configurationJson()},
            {"relativeTo", reference.empty() ? robot.model.rootLink()->name() : reference},
            {"poses", poseJson(poses)},
        };
        printJson(std::cout, data);
        std::cout << '\n';
    } else {
        printForEyes(poses, options);
    }
    return exitStatus::fine;
}

std::function<int()> declare(CLI::App& app)
{
    auto const options = std::make_shared<Options>();
    declareFile(app, options->file);
    app.add_option("FRAME", options->names, "Links, joints, sensors or actuators; all links when none is named")
        ->type_name("");
    declareMotion(app, options->motion);
    declareReference(app, options->motion);
    declareWide(app, options->wide);
    declareJson(app, options->json, "the configuration and the poses");
    return [options] { return pose(*options); };
}

}  // namespace

Command const poseCommand = {"pose", "Say where links are when the joints have moved",
                             R"(Prints the poses of links, or of joints, sensors and actuators, in the root's
frame or another one, for any joint values: the origin (m), then roll, pitch and
yaw about fixed axes (rad). All joint values are 0 unless a posture or --joint
says otherwise; joints that follow an actuator or another joint then stand at
their offset. Limits do not matter.

A FRAME is the name of a link or, when none has it, of a joint, sensor or
actuator.
The frame of a joint belongs to the link before it.

With --json: an object with the configuration (rad, m), the name of the frame
that the poses are in, and the poses, each with a name and the 16 numbers of the
homogeneous matrix, row by row.

Examples:
  varo-robot pose --posture Crouch robots/humanoid.xml FaceCamera
  varo-robot pose --joint LElbowBend=-60 --degrees robots/humanoid.xml
  varo-robot pose --relative-to LWristTwistLink robots/humanoid.xml LThumb2Link)",
                             declare};

}  // namespace Tool
