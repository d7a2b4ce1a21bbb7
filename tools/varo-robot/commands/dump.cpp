#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>

#include "commands/commands.hpp"
#include "support/description.hpp"
#include "support/robot_json.hpp"

namespace Tool {

namespace {

struct Options {
    std::string file;
    Varo::Model::ModelUtils::ReadOptions reading;
};

int dump(Options const& options)
{
    Robot const robot = loadRobot(options.file, options.reading);
    printRobot(std::cout, robot.model);
    std::cout << '\n';
    return exitStatus::fine;
}

std::function<int()> declare(CLI::App& app)
{
    auto const options = std::make_shared<Options>();
    declareFile(app, options->file);
    declareReading(app, options->reading);
    return [options] { return dump(*options); };
}

}  // namespace

Command const dumpCommand = {"dump", "Print the whole model as JSON",
                             R"(Prints one JSON object with everything that the model holds: formatVersion,
name, prettyName, version, rootLink, and the arrays links, joints,
jointSymmetries, jointGroups, actuators, actuatorGroups and sensors, each in the
order in which loading made its elements, then transmissions and extensions
(what the description has for other programs, as text) in the order of the
records.

A sensor's settings are null when the description states none: updateRate (Hz),
camera (rad, pixels, m), horizontalScan and verticalScan (rad), range (m) and
noises, in the unit of the values; null is what is not stated or unlimited.

The visuals and collisions of a link each have a name, a pose and a geometry:
its type (mesh, box, cylinder, sphere or capsule), the uri and scale of a mesh,
the size of a box, the radius and length of the others. A visual also has a
material or null: name, rgba (0 to 1, or null) and texture.

Poses (localPosition, in the parent frame; globalPosition, in the root frame;
meshTransform and those of shapes, in the link frame) are the 16 numbers of the
homogeneous matrix, row by row, lengths in metres. Numbers are in SI units and
the shortest that read back as the same single-precision value; an infinite one,
such as the limit of a joint that turns without end, is null. Elements refer to
each other by name, with null for none. What the description itself calls a
link, as URDF does, is its descriptionName.

Examples:
  varo-robot dump robots/humanoid.xml
  varo-robot dump robot.urdf | jq -r '.joints[].name')",
                             declare};

}  // namespace Tool
