#include <string>
#include <utility>
#include <vector>

#include "native/body.hpp"
#include "native/elements.hpp"
#include "native/pose.hpp"
#include "native/shapes.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

namespace {

using Group = std::vector<std::string>;

constexpr auto ratioRow = required<&SubActuatorConfig::ratio>("ratio", "", "joint value per value of the actuator");
constexpr auto offsetRow = optional<&SubActuatorConfig::offset>(
    "offset", "0", "rad", "joint value where the actuator stands at 0; the zero pose of the model leaves it out");

constexpr Attribute<SubActuatorConfig> subJointAttributes[] = {
    named<&SubActuatorConfig::name>("name", names::ofSubJoint, "what the sub-joint is called"),
    meshRow<SubActuatorConfig>,
    ratioRow,
    offsetRow,
};
constexpr Child<SubActuatorConfig> subJointChildren[] = {
    poseChild<&SubActuatorConfig::placement, subJointPlacementElement>(),
    visualChild<SubActuatorConfig>,
    collisionChild<SubActuatorConfig>,
};
constexpr Element<SubActuatorConfig> subJointElement{
    "subJoint", "a joint of its own without a motor, the next of the group outward", subJointAttributes,
    subJointChildren};

constexpr Attribute<SubActuatorConfig> followerAttributes[] = {
    named<&SubActuatorConfig::name>("name", names::groupJoint, "a joint of the description that follows the actuator"),
    ratioRow,
    offsetRow,
};
constexpr Element<SubActuatorConfig> followerElement{
    "jointRef", "a joint that is defined elsewhere as the next of the group", followerAttributes};

template <auto const& element>
void readMember(ElementReader& reader, XmlNode node, Group& group)
{
    SubActuatorConfig subJoint;
    reader.read(element, node, subJoint);
    subJoint.textOffset = at(node);
    group.push_back(subJoint.name);
    reader.robot().subActuators.add(std::move(subJoint));
}

/// Whether a reference to the joint of that name says it all.
bool isFollower(SubActuatorConfig const& subJoint, Records const& robot)
{
    return robot.joints.contains(subJoint.name) && subJoint.meshName.empty() && subJoint.shapes.visuals.empty() &&
           subJoint.shapes.collisions.empty() && subJoint.placement == Transform();
}

/// Both kinds of a group's members, because they stand in one order.
void writeMembers(ElementWriter& writer, Group const& group)
{
    for (std::string const& name : group) {
        SubActuatorConfig const& subJoint = *writer.robot().subActuators.find(name);
        writer.write(isFollower(subJoint, writer.robot()) ? followerElement : subJointElement, subJoint);
    }
}

constexpr Child<Group> groupChildren[] = {
    {{&subJointElement, Occurrence::any}, readMember<subJointElement>, writeMembers},
    {{&followerElement, Occurrence::any}, readMember<followerElement>, nullptr},
};
constexpr Element<Group> groupElement{
    "group", "joints that move together, from the actuator's parent outward", {}, groupChildren};

constexpr Attribute<ActuatorConfig> attributes[] = {
    named<&ActuatorConfig::name>("name", names::ofActuator, "what the actuator is called"),
    named<&ActuatorConfig::parentJoint>("parent", names::actuatorParent,
                                        "the joint, or the actuator, that it is attached to"),
    required<&ActuatorConfig::minAngle, LowerLimit>("min", "rad", "smallest value, or `unlimited`"),
    required<&ActuatorConfig::maxAngle, UpperLimit>("max", "rad", "greatest value, or `unlimited`"),
    optional<&ActuatorConfig::maxAngularSpeed, UpperLimit>("maxSpeed", "0", "rad/s",
                                                           "greatest speed, or `unlimited`; 0 when not stated"),
    optional<&ActuatorConfig::maxTorque, UpperLimit>("maxTorque", "0", "N*m",
                                                     "greatest torque, or `unlimited`; 0 when not stated; carried"),
};
constexpr Child<ActuatorConfig> children[] = {
    poseChild<&ActuatorConfig::placement, devicePlacementElement>(),
    mirrorChild<ActuatorConfig, names::actuatorMirror>,
    childrenOf<&ActuatorConfig::jointGroups, groupElement>(),
};
constexpr Rule<ActuatorConfig> rules[] = {inOrder<&ActuatorConfig::minAngle, &ActuatorConfig::maxAngle>("min")};

}  // namespace

constexpr Element<ActuatorConfig> actuatorElement{
    "actuator", "a motor that drives several joints together, such as those of a hand", attributes, children, rules};

}  // namespace Varo::Model::Native
