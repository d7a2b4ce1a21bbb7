#include <memory>
#include <utility>

#include "native/body.hpp"
#include "native/elements.hpp"
#include "native/pose.hpp"
#include "native/shapes.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

namespace {

struct JointTypes : OneOf<JointTypes> {
    static constexpr Word words[] = {
        {"revolute", revolute}, {"continuous", continuous}, {"prismatic", prismatic},
        {"fixed", fixed},       {"planar", planar},         {"floating", floating},
    };
    static constexpr ValueType type{"jointType", "a type of joint", words};
};

template <class Record>
constexpr Attribute<Record> nameRow(NameRule const& rule)
{
    return named<&JointConfig::name, Record>("name", rule, "what the element is called");
}
template <class Record>
constexpr auto linkRow = optional<&JointConfig::linkName, Text, Record>(
    "link", "", "",
    "what the body (link) is called in a text that names links, such as a URDF; models go by the joint");
template <class Record>
constexpr auto meshXyzRow = ofMesh<&JointConfig::meshPosition, Vector3, Record>(
    "meshXyz", "0 0 0", "m", "origin of the mesh of `mesh`, in the link frame");
template <class Record>
constexpr auto meshRpyRow = ofMesh<&JointConfig::meshOrientation, Vector3, Record>(
    "meshRpy", "0 0 0", "rad", "roll, pitch and yaw of the mesh of `mesh`, in the link frame");

template <class Record>
bool placesNoMesh(Record const& body, XmlNode node)
{
    bool const placesMesh = node.attribute("meshXyz") || node.attribute("meshRpy");
    bool const hasMesh = !node.attribute("mesh").value().empty();
    return placesMesh && !hasMesh && firstMeshOf(body.shapes) != nullptr;
}
template <class Record>
constexpr Rule<Record> meshRule{
    "",
    placesNoMesh<Record>,
    {&codes::conflictingAttributes,
     "The attributes meshXyz and meshRpy place the mesh of the attribute mesh, which is not there.",
     "Write the place of a visual into its placement."}};

constexpr Attribute<MimicConfig> mimicAttributes[] = {
    named<&MimicConfig::joint>("joint", names::mimicLeader, "the joint that this one follows"),
    optional<&MimicConfig::multiplier>("multiplier", "1", "", "joint value per value of the other"),
    optional<&MimicConfig::offset>("offset", "0", "rad (m)",
                                   "joint value where the other stands at 0; the zero pose of the model leaves it out"),
};
constexpr Element<MimicConfig> mimicElement{
    "mimic", "that the joint follows another one, unless a group of an actuator holds it", mimicAttributes};

constexpr Attribute<SafetyConfig> safetyAttributes[] = {
    optional<&SafetyConfig::lowerLimit, LowerLimit>(
        "lower", "0", "rad (m)", "where the controller begins to limit the position, or `unlimited`"),
    optional<&SafetyConfig::upperLimit, UpperLimit>("upper", "0", "rad (m)", "the same on the other side"),
    optional<&SafetyConfig::positionGain>("positionGain", "0", "1/s", "from position to bounds of velocity"),
    optional<&SafetyConfig::velocityGain>("velocityGain", "0", "N*m*s/rad (N*s/m)",
                                          "from velocity to bounds of effort"),
};
constexpr Element<SafetyConfig> safetyElement{
    "safety", "bounds that the joint's controller keeps inside of its limits; carried", safetyAttributes};

constexpr Attribute<CalibrationConfig> calibrationAttributes[] = {
    withoutDefault<&CalibrationConfig::rising>("rising", "rad (m)", "where the switch changes on the way up"),
    withoutDefault<&CalibrationConfig::falling>("falling", "rad (m)", "where the switch changes on the way down"),
};
constexpr Element<CalibrationConfig> calibrationElement{
    "calibration", "positions at which the joint's reference switch changes; carried", calibrationAttributes};

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
    optional<&JointConfig::maxAngularSpeed, UpperLimit, JointReading>(
        "maxSpeed", "0", "rad/s (m/s)", "greatest speed, or `unlimited`; 0 when not stated"),
    optional<&JointConfig::maxTorque, UpperLimit, JointReading>(
        "maxTorque", "0", "N*m (N)", "greatest torque (force), or `unlimited`; 0 when not stated; carried"),
    numberRow<&JointConfig::damping>("damping", "N*m*s/rad (N*s/m)", "viscous damping; carried"),
    numberRow<&JointConfig::friction>("friction", "N*m (N)", "Coulomb friction; carried"),
    optional<&JointConfig::jointType, JointTypes, JointReading>("type", "revolute", "", "how the joint moves"),
    optional<&JointConfig::hasMotor, Boolean, JointReading>(
        "motor", "true", "",
        "whether a motor of its own drives the joint; one without has no angle actuator and no place in postures"),
    optional<&JointReading::reflectionForced>("reflectionForced", "false", "",
                                              "whether a symmetric motion reflects the joint whatever its mirror says"),
};

constexpr Child<JointReading> jointChildren[] = {
    poseChild<&JointConfig::placement, jointPlacementElement, JointReading>(),
    poseChild<&JointConfig::endTransform, jointEndElement, JointReading>(),
    massChild<JointReading>,
    visualChild<JointReading>,
    collisionChild<JointReading>,
    mirrorChild<JointReading, names::jointMirror>,
    pointedTo<&JointConfig::mimic, mimicElement, JointReading>(),
    pointedTo<&JointConfig::safety, safetyElement, JointReading>(),
    pointedTo<&JointConfig::calibration, calibrationElement, JointReading>(),
    freeAttributeChild<JointReading>,
};
constexpr Rule<JointReading> jointRules[] = {
    inOrder<&JointConfig::minAngle, &JointConfig::maxAngle, JointReading>("min"), meshRule<JointReading>};

constexpr Attribute<JointConfig> rootAttributes[] = {nameRow<JointConfig>(names::ofRoot), linkRow<JointConfig>,
                                                     meshRow<JointConfig>, meshXyzRow<JointConfig>,
                                                     meshRpyRow<JointConfig>};
constexpr Child<JointConfig> rootChildren[] = {massChild<JointConfig>, visualChild<JointConfig>,
                                               collisionChild<JointConfig>, freeAttributeChild<JointConfig>};
constexpr Rule<JointConfig> rootRules[] = {meshRule<JointConfig>};

}  // namespace

constexpr Element<JointConfig> rootElement{"root", "the body that the tree of joints begins with", rootAttributes,
                                           rootChildren, rootRules};
constexpr Element<JointReading> jointElement{"joint", "a joint together with the body (link) that it moves",
                                             jointAttributes, jointChildren, jointRules};

}  // namespace Varo::Model::Native
