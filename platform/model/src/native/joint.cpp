#include <memory>
#include <utility>

#include "native/body.hpp"
#include "native/elements.hpp"
#include "native/pose.hpp"

namespace Varo::Model::Native {

namespace {

struct JointTypes : OneOf<JointTypes> {
    static constexpr Word words[] = {{"revolute", revolute}, {"prismatic", prismatic}, {"fixed", fixed}};
    static constexpr ValueType type{"jointType", "a type of joint", words};
};

template <class Record>
constexpr Attribute<Record> nameRow(NameRule const& rule)
{
    return named<&JointConfig::name, Record>("name", rule, "what the element is called");
}
template <class Record>
constexpr auto meshRow = optional<&JointConfig::meshName, Text, Record>("mesh", "", "", "mesh file of the body");
template <class Record>
constexpr auto linkRow = optional<&JointConfig::linkName, Text, Record>(
    "link", "", "",
    "what the body (link) is called in a text that names links, such as a URDF; models go by the joint");
template <class Record>
constexpr auto meshXyzRow = optional<&JointConfig::meshPosition, Vector3, Record>(
    "meshXyz", "0 0 0", "m", "origin of the mesh, in the link frame; carried");
template <class Record>
constexpr auto meshRpyRow = optional<&JointConfig::meshOrientation, Vector3, Record>(
    "meshRpy", "0 0 0", "rad", "roll, pitch and yaw of the mesh, in the link frame; carried");

/// A number that a joint need not state.
template <auto member>
constexpr Attribute<JointReading> numberRow(std::string_view name, std::string_view unit, std::string_view meaning)
{
    return optional<member, Number, JointReading>(name, "0", unit, meaning);
}

constexpr Attribute<JointReading> jointAttributes[] = {
    nameRow<JointReading>(names::ofJoint),
    linkRow<JointReading>,
    meshRow<JointReading>,
    meshXyzRow<JointReading>,
    meshRpyRow<JointReading>,
    required<&JointConfig::minAngle, LowerLimit, JointReading>("min", "rad (m)",
                                                               "smallest joint value, or `unlimited`"),
    required<&JointConfig::maxAngle, UpperLimit, JointReading>("max", "rad (m)",
                                                               "greatest joint value, or `unlimited`"),
    numberRow<&JointConfig::maxAngularSpeed>("maxSpeed", "rad/s (m/s)", "greatest speed; 0 when not stated"),
    numberRow<&JointConfig::maxTorque>("maxTorque", "N*m (N)", "greatest torque (force); 0 when not stated; carried"),
    numberRow<&JointConfig::damping>("damping", "N*m*s/rad (N*s/m)", "viscous damping; carried"),
    numberRow<&JointConfig::friction>("friction", "N*m (N)", "Coulomb friction; carried"),
    optional<&JointConfig::jointType, JointTypes, JointReading>("type", "revolute", "", "how the joint moves"),
    optional<&JointConfig::hasMotor, DefaultType<&JointConfig::hasMotor>, JointReading>(
        "motor", "true", "",
        "whether a motor of its own drives the joint; one without has no angle actuator and no place in postures"),
    optional<&JointReading::reflectionForced>("reflectionForced", "false", "",
                                              "whether a symmetric motion reflects the joint whatever its mirror says"),
};

constexpr Attribute<MimicConfig> mimicAttributes[] = {
    named<&MimicConfig::joint>("joint", names::mimicLeader, "the joint that this one follows"),
    optional<&MimicConfig::multiplier>("multiplier", "1", "", "joint value per value of the other"),
    optional<&MimicConfig::offset>("offset", "0", "rad (m)",
                                   "joint value where the other stands at 0; the zero pose of the model leaves it out"),
};
constexpr Element<MimicConfig> mimicElement{
    "mimic", "that the joint follows another one, unless a group of an actuator holds it", mimicAttributes};

void readMimic(ElementReader& reader, pugi::xml_node node, JointReading& joint)
{
    MimicConfig mimic;
    reader.read(mimicElement, node, mimic);
    mimic.textOffset = at(node);
    joint.mimic = std::make_shared<MimicConfig const>(std::move(mimic));
}
void writeMimic(ElementWriter& writer, JointReading const& joint)
{
    if (joint.mimic != nullptr) {
        writer.write(mimicElement, *joint.mimic);
    }
}

constexpr Child<JointReading> jointChildren[] = {
    poseChild<&JointConfig::placement, jointPlacementElement, JointReading>(),
    poseChild<&JointConfig::endTransform, jointEndElement, JointReading>(),
    massChild<JointReading>,
    mirrorChild<JointReading, names::jointMirror>,
    {{&mimicElement, Occurrence::optional}, readMimic, writeMimic},
    freeAttributeChild<JointReading>,
};
constexpr Rule<JointReading> jointRules[] = {
    inOrder<&JointConfig::minAngle, &JointConfig::maxAngle, JointReading>("min")};

constexpr Attribute<JointConfig> rootAttributes[] = {nameRow<JointConfig>(names::ofRoot), linkRow<JointConfig>,
                                                     meshRow<JointConfig>, meshXyzRow<JointConfig>,
                                                     meshRpyRow<JointConfig>};
constexpr Child<JointConfig> rootChildren[] = {massChild<JointConfig>, freeAttributeChild<JointConfig>};

}  // namespace

constexpr Element<JointConfig> rootElement{"root", "the body that the tree of joints begins with", rootAttributes,
                                           rootChildren};
constexpr Element<JointReading> jointElement{"joint", "a joint together with the body (link) that it moves",
                                             jointAttributes, jointChildren, jointRules};

}  // namespace Varo::Model::Native
