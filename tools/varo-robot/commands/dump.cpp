#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>

#include "commands/commands.hpp"
#include "formats/formats.hpp"
#include "sim/link.hpp"
#include "support/description.hpp"
#include "support/element_json.hpp"
#include "support/kinds.hpp"

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

/// What the model has no elements of, but its records do.
void addRecords(JsonStream& dump, char const* key, std::vector<Json> const& records)
{
    dump.next(key);
    JsonStream array(std::cout, '[', 2);
    for (Json const& record : records) {
        array.add(record);
    }
}

char const* wordFor(Varo::Model::ExtensionOwner owner)
{
    switch (owner) {
    case Varo::Model::ExtensionOwner::link: return "link";
    case Varo::Model::ExtensionOwner::joint: return "joint";
    case Varo::Model::ExtensionOwner::sensor: return "sensor";
    case Varo::Model::ExtensionOwner::robot: break;
    }
    return "robot";
}

std::vector<Json> extensions(Sim::Model const& model)
{
    std::vector<Json> data;
    auto const records = Varo::Model::recordsOf(model.robot());
    for (Varo::Model::ExtensionConfig const& extension : records->extensions) {
        data.push_back({{"owner", wordFor(extension.owner)},
                        {"name", extension.ownerName},
                        {"within", extension.within},
                        {"text", extension.text}});
    }
    return data;
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
        addRecords(dump, "transmissions", findKind("transmissions")->elements(model));
        addRecords(dump, "extensions", extensions(model));
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
its elements, then transmissions and extensions (what the description has for
other programs, as text) in the order of the description.

A sensor's settings are null when the description states none: updateRate (Hz),
camera (rad, pixels, m), horizontalScan and verticalScan (rad), range (m) and
noises, in the unit of the values; null is what is not stated or unlimited.

The visuals and collisions of a link each have a name, a pose and a geometry: its
type (mesh, box, cylinder, sphere or capsule), the uri and scale of a mesh, the
size of a box, the radius and length of the others. A visual also has a material
or null: name, rgba (0 to 1, or null) and texture.

Poses (localPosition, in the parent frame; globalPosition, in the root frame;
meshTransform and those of shapes, in the link frame) are the 16 numbers of the homogeneous matrix,
row by row, lengths in metres. Numbers are in SI units and the shortest that
read back as the same single-precision value; an infinite one, such as the
limit of a joint that turns without end, is null. Elements refer to each other
by name, with null for none. What the description itself calls a link, as URDF
does, is its descriptionName.

Examples:
  varo-robot dump robots/humanoid.xml
  varo-robot dump robot.urdf | jq -r '.joints[].name')",
                             declare};

}  // namespace Tool
