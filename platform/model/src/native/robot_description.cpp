#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "native/elements.hpp"
#include "native/sensor_needs.hpp"
#include "native/shapes.hpp"
#include "native/strict_reader.hpp"
#include "schema/children.hpp"
#include "xml/document.hpp"

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

void readRoot(ElementReader& reader, XmlNode node, Records& robot)
{
    reader.read(rootElement, node, robot.root);
    robot.root.textOffset = robot.root.bodyOffset = at(node);
}

void writeRoot(ElementWriter& writer, Records const& robot)
{
    writer.write(rootElement, robot.root);
}

void readJoint(ElementReader& reader, XmlNode node, Records& robot)
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

void readSensor(ElementReader& reader, XmlNode node, Records& robot)
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

void readExtension(ElementReader& reader, XmlNode node, Records& robot)
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

/// The record that an amendment is of; null, and reported, where there is none.
template <class Config>
Config* findAmended(Table<Config>& table, XmlNode node, Diagnostics& diagnostics)
{
    std::string_view const name = node.attribute("name").value();
    if (Config const* const found = table.find(name)) {
        return &table[static_cast<std::size_t>(found - &table[0])];
    }
    diagnostics.report(at(node, "name"), codes::danglingReference,
                       "There is no " + std::string(node.name()) + " " + quoted(name) + ", of which this says more.");
    return nullptr;
}

template <class Body>
void amendBody(ElementReader& reader, Element<Body> const& element, XmlNode node, Body& body)
{
    if (node.attribute("mesh")) {
        forgetImpliedMesh(body);
    }
    static_cast<StrictReader&>(reader).amend(element, node, body);
}

void amendRoot(ElementReader& reader, XmlNode node, Records& robot)
{
    amendBody(reader, rootElement, node, robot.root);
}

void amendJoint(ElementReader& reader, XmlNode node, Records& robot)
{
    JointConfig* const config = findAmended(robot.joints, node, reader.diagnostics());
    if (config == nullptr) {
        return;
    }
    JointReading joint{std::move(*config), false};
    amendBody(reader, jointElement, node, joint);
    if (joint.reflectionForced) {
        robot.reflectionForced.push_back(joint.name);
    }
    *config = static_cast<JointConfig&&>(joint);
}

void amendSensor(ElementReader& reader, XmlNode node, Records& robot)
{
    auto& strict = static_cast<StrictReader&>(reader);
    SensorConfig* const sensor = findAmended(robot.sensors, node, reader.diagnostics());
    if (sensor != nullptr) {
        strict.amend(sensorElement, node, *sensor);
        if (!strict.names().isAnyLost() && sensor->attributes.count({}) == 0) {
            checkNeeds(*sensor, node, reader.diagnostics());
        }
    }
}

void clearActuators(Records& robot)
{
    robot.actuators = {};
    robot.subActuators = {};
}

bool storeComplete(std::string_view text, Records& robot)
{
    bool isComplete = false;
    bool const isRight = Boolean::parse(text, isComplete);
    if (isComplete) {
        declareComplete(robot);
    }
    return isRight;
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
    {{&extensionElement, Occurrence::any},
     readExtension,
     writeExtensions,
     [](Records& robot) { robot.extensions.clear(); }},
};

constexpr Attribute<Records> amendmentAttributes[] = {
    {{"complete",
      &Boolean::type,
      "",
      "whether the description states its mirrors, couplings and postures, of which nothing is inferred then, and "
      "names "
      "no link that is called like its joint with `Link` appended, or like the root",
      false,
      "false",
      nullptr,
      nullptr,
      {}},
     storeComplete,
     [](Records const& robot) { return Boolean::print(robot.statesMirrors); }},
    attributes[1],
};
constexpr auto actuatorsChild = childrenOf<&Records::actuators, actuatorElement>();
constexpr Child<Records> amendmentChildren[] = {
    children[0],
    {{&rootElement, Occurrence::optional}, amendRoot, nullptr},
    {{&jointElement, Occurrence::any}, amendJoint, nullptr},
    children[3],
    {{&actuatorElement, Occurrence::any}, actuatorsChild.read, actuatorsChild.write, clearActuators},
    children[5],
    {{&sensorElement, Occurrence::any}, amendSensor, nullptr},
    children[7],
    children[8],
    children[9],
};

}  // namespace

constexpr Element<Records> robotDescriptionElement{"robotDescription", "the whole of a description", attributes,
                                                   children};
constexpr Element<Records> amendmentElement{"description", "what a description says beyond what another text says",
                                            amendmentAttributes, amendmentChildren};

void declareComplete(Records& robot)
{
    robot.statesMirrors = robot.statesActuators = robot.statesPostures = true;
    auto const forget = [](JointConfig& body, std::string const& usual) {
        if (body.linkName == usual) {
            body.linkName.clear();
        }
    };
    forget(robot.root, robot.root.name);
    for (std::size_t i = 0; i < robot.joints.size(); ++i) {
        forget(robot.joints[i], robot.joints[i].name + "Link");
    }
}

}  // namespace Varo::Model::Native
