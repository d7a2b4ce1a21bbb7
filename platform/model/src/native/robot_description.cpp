#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "native/elements.hpp"
#include "native/sensor_needs.hpp"
#include "native/strict_reader.hpp"
#include "schema/children.hpp"

namespace Varo::Model::Native {

namespace {

using PrettyName = std::pair<std::int32_t, std::string>;
constexpr Attribute<PrettyName> prettyNameAttributes[] = {
    optional<&PrettyName::first>("index", "0", "", "which of the robot's pretty names it is")
        .with(names::indexOfPrettyName),
};
constexpr Attribute<PrettyName> prettyNameText = required<&PrettyName::second, Line>("", "", "the name");
constexpr Element<PrettyName> prettyNameElement{
    "prettyName", "a name of the robot for people", prettyNameAttributes, {}, {}, &prettyNameText};

void readRoot(ElementReader& reader, pugi::xml_node node, Records& robot)
{
    reader.read(rootElement, node, robot.root);
    robot.root.textOffset = robot.root.bodyOffset = at(node);
}

void writeRoot(ElementWriter& writer, Records const& robot)
{
    writer.write(rootElement, robot.root);
}

void readJoint(ElementReader& reader, pugi::xml_node node, Records& robot)
{
    JointReading joint;
    reader.read(jointElement, node, joint);
    joint.textOffset = joint.bodyOffset = at(node);
    if (joint.reflectionForced) {
        robot.reflectionForced.push_back(joint.name);
    }
    robot.joints.add(static_cast<JointConfig&&>(joint));
}

void writeJoints(ElementWriter& writer, Records const& robot)
{
    std::set<std::string_view> const forced(robot.reflectionForced.begin(), robot.reflectionForced.end());
    for (JointConfig const& config : robot.joints) {
        writer.write(jointElement, {config, forced.find(config.name) != forced.end()});
    }
}

void readSensor(ElementReader& reader, pugi::xml_node node, Records& robot)
{
    SensorConfig sensor;
    reader.read(sensorElement, node, sensor);
    sensor.textOffset = at(node);
    bool const isWhole = !static_cast<StrictReader&>(reader).names().isAnyLost() && sensor.attributes.count({}) == 0;
    if (isWhole) {
        checkNeeds(sensor, node, reader.diagnostics());
    }
    robot.sensors.add(std::move(sensor));
}

void readExtension(ElementReader& reader, pugi::xml_node node, Records& robot)
{
    ExtensionReading extension;
    reader.read(extensionElement, node, extension);
    extension.owner = !extension.link.empty()     ? ExtensionOwner::link
                      : !extension.joint.empty()  ? ExtensionOwner::joint
                      : !extension.sensor.empty() ? ExtensionOwner::sensor
                                                  : ExtensionOwner::robot;
    extension.ownerName = extension.link + extension.joint + extension.sensor;
    extension.textOffset = at(node);
    robot.extensions.push_back(static_cast<ExtensionConfig&&>(extension));
}

void writeExtensions(ElementWriter& writer, Records const& robot)
{
    for (ExtensionConfig const& config : robot.extensions) {
        ExtensionReading extension{config, {}, {}, {}};
        switch (config.owner) {
        case ExtensionOwner::link: extension.link = config.ownerName; break;
        case ExtensionOwner::joint: extension.joint = config.ownerName; break;
        case ExtensionOwner::sensor: extension.sensor = config.ownerName; break;
        case ExtensionOwner::robot: break;
        }
        writer.write(extensionElement, extension);
    }
}

constexpr Attribute<Records> attributes[] = {
    required<&Records::name, Name>("name", "", "what the robot is called"),
    optional<&Records::version>("version", "", "", "the description's own version"),
};
constexpr Child<Records> children[] = {
    childrenOf<&Records::prettyNames, prettyNameElement>(),
    {{&rootElement, Occurrence::once}, readRoot, writeRoot},
    {{&jointElement, Occurrence::any}, readJoint, writeJoints},
    childrenOf<&Records::chains, chainElement>(),
    childrenOf<&Records::actuators, actuatorElement>(),
    childrenOf<&Records::wheels, wheelElement>(),
    {{&sensorElement, Occurrence::any}, readSensor, childrenOf<&Records::sensors, sensorElement>().write},
    childrenOf<&Records::postures, postureElement>(),
    childrenOf<&Records::transmissions, transmissionElement>(),
    {{&extensionElement, Occurrence::any}, readExtension, writeExtensions},
};

}  // namespace

constexpr Element<Records> robotDescriptionElement{"robotDescription", "the whole of a description", attributes,
                                                   children};

}  // namespace Varo::Model::Native
