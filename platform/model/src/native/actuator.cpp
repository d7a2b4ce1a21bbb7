#include <utility>

#include "native/body.hpp"
#include "native/element_reader.hpp"
#include "native/element_writer.hpp"
#include "native/elements.hpp"
#include "native/pose.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Native {

namespace {

using Group = std::vector<std::string>;

constexpr Attribute ratioAttribute =
    required<&SubActuatorConfig::ratio>("ratio", "", "joint value per value of the actuator");
constexpr Attribute offsetAttribute =
    optional<&SubActuatorConfig::offset>("offset", "0", "rad", "joint value where the actuator stands at 0; carried");

constexpr Attribute subJointAttributes[] = {
    required<&SubActuatorConfig::name, Name>("name", "", "what the sub-joint is called"),
    optional<&SubActuatorConfig::meshName>("mesh", "", "", "mesh file of the sub-joint's body"),
    ratioAttribute,
    offsetAttribute,
};
constexpr Child subJointChildren[] = {poseChild<&SubActuatorConfig::placement>(subJointPlacementElement)};
constexpr Element subJointElement{"subJoint", "a joint of its own without a motor, the next of the group outward",
                                  subJointAttributes, subJointChildren};

constexpr Attribute followerAttributes[] = {
    required<&SubActuatorConfig::name, Name>("name", "", "a joint of the description that follows the actuator"),
    ratioAttribute,
    offsetAttribute,
};
constexpr Element followerElement{"jointRef", "a joint that is defined elsewhere as the next of the group",
                                  followerAttributes};

void readSubJoint(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    SubActuatorConfig subJoint;
    reader.read(element, node, &subJoint);
    std::string name = subJoint.name;
    auto const before = reader.robot().subActuators.size();
    reader.define(NameIndex::subJoint, reader.robot().subActuators, std::move(subJoint), node);
    if (reader.robot().subActuators.size() > before) {
        static_cast<Group*>(parent)->push_back(std::move(name));
    }
}

/// Whether a reference to the joint of that name says it all.
bool isFollower(SubActuatorConfig const& subJoint, Records const& robot)
{
    return robot.joints.contains(subJoint.name) && subJoint.meshName.empty() && subJoint.placement == Transform();
}

/// Both kinds of a group's members, because they stand in one order.
void writeMembers(ElementWriter& writer, Element const&, void const* parent)
{
    for (std::string const& name : *static_cast<Group const*>(parent)) {
        SubActuatorConfig const& subJoint = *writer.robot().subActuators.find(name);
        writer.write(isFollower(subJoint, writer.robot()) ? followerElement : subJointElement, &subJoint);
    }
}

constexpr Child groupChildren[] = {
    {&subJointElement, Occurrence::any, readSubJoint, writeMembers},
    {&followerElement, Occurrence::any, readSubJoint, writeNothing},
};
constexpr Element groupElement{
    "group", "joints that move together, from the actuator's parent outward", {}, groupChildren};

void readGroup(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    Group group;
    reader.read(element, node, &group);
    static_cast<ActuatorConfig*>(parent)->jointGroups.push_back(std::move(group));
}

void writeGroups(ElementWriter& writer, Element const& element, void const* parent)
{
    for (Group const& group : static_cast<ActuatorConfig const*>(parent)->jointGroups) {
        writer.write(element, &group);
    }
}

constexpr Attribute actuatorAttributes[] = {
    required<&ActuatorConfig::name, Name>("name", "", "what the actuator is called"),
    required<&ActuatorConfig::parentJoint, Name>("parent", "", "the joint, or the actuator, that it hangs on"),
    required<&ActuatorConfig::minAngle, LowerLimit>("min", "rad", "smallest value, or `unlimited`"),
    required<&ActuatorConfig::maxAngle, UpperLimit>("max", "rad", "greatest value, or `unlimited`"),
    optional<&ActuatorConfig::maxAngularSpeed>("maxSpeed", "0", "rad/s", "greatest speed; 0 when not stated"),
    optional<&ActuatorConfig::maxTorque>("maxTorque", "0", "N*m", "greatest torque; 0 when not stated; carried"),
};
constexpr Child actuatorChildren[] = {
    poseChild<&ActuatorConfig::placement>(devicePlacementElement),
    mirrorChild<ActuatorConfig>,
    {&groupElement, Occurrence::any, readGroup, writeGroups},
};
}  // namespace

Element const actuatorElement{"actuator", "a motor that drives several joints together, such as those of a hand",
                              actuatorAttributes, actuatorChildren};

void readActuator(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    ActuatorConfig actuator;
    reader.read(element, node, &actuator);
    if (actuator.minAngle > actuator.maxAngle) {
        reader.diagnostics().report(at(node, "min"), codes::reversedLimits, "The limit min is greater than max.");
    }
    reader.define(NameIndex::actuator, static_cast<Records*>(parent)->actuators, std::move(actuator), node);
}

}  // namespace Varo::Model::Native
