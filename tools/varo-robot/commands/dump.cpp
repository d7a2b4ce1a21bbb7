#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>

#include "commands/commands.hpp"
#include "formats/formats.hpp"
#include "sim/link.hpp"
#include "support/description.hpp"
#include "support/element_json.hpp"

namespace Tool {

namespace {

struct Options {
    std::string file;
    Varo::Model::ModelUtils::ReadOptions reading;
};

template <class Element>
void addElements(JsonStream& dump, ElementJson& json, char const* key, std::vector<Element const*> const& elements)
{
    dump.next(key);
    JsonStream array(std::cout, '[', 2);
    for (Element const* element : elements) {
        array.add(json.of(*element));
    }
}

int dump(Options const& options)
{
    Robot const robot = loadRobot(options.file, options.reading);
    Sim::Model const& model = robot.model;
    ElementJson json;
    {
        JsonStream dump(std::cout, '{');
        dump.add("formatVersion", formatVersion);
        dump.add("name", model.name());
        dump.add("prettyName", model.prettyName(0));
        dump.add("version", robot.records().version());
        dump.add("rootLink", model.rootLink()->name());
        addElements(dump, json, "links", model.links());
        addElements(dump, json, "joints", model.joints());
        addElements(dump, json, "jointSymmetries", model.jointSymmetries());
        addElements(dump, json, "jointGroups", model.jointGroups());
        addElements(dump, json, "actuators", model.actuators());
        addElements(dump, json, "actuatorGroups", model.actuatorGroups());
        addElements(dump, json, "sensors", model.sensors());
    }
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
                             R"(Prints one JSON object with everything that the model holds: formatVersion, name,
prettyName, version, rootLink, and the arrays links, joints, jointSymmetries, jointGroups,
actuators, actuatorGroups and sensors, each in the order in which loading made
its elements.

Poses (localPosition, in the parent frame; globalPosition, in the root frame;
meshTransform, in the link frame) are the 16 numbers of the homogeneous matrix,
row by row, lengths in metres. Numbers are in SI units and the shortest that
read back as the same single-precision value; an infinite one, such as the
limit of a joint that turns without end, is null. Elements refer to each other
by name, with null for none.

Examples:
  varo-robot dump robots/humanoid.xml
  varo-robot dump robot.urdf | jq -r '.joints[].name')",
                             declare};

}  // namespace Tool
