#ifndef VARO_MODEL_CONFIGS_HPP
#define VARO_MODEL_CONFIGS_HPP

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "varo/math/position3d.hpp"
#include "varo/math/transform.hpp"
#include "varo/model/place.hpp"
#include "varo/model/sensor_settings.hpp"
#include "varo/model/shapes.hpp"

/// The records of a robot description: what the file says of each element, converted to nothing.
///
/// SI units throughout (m, rad, kg, kg*m^2, N*m, rad/s). A joint turns about, or slides along, the z axis of its own
/// frame. Plain data: copy them freely; reading from several threads is safe.
namespace Varo::Model {

using Math::Transform;

/// Free texts by their names.
using Attributes = std::map<std::string, std::string>;

/// Values of the mirror kind of joints and actuators.
enum MirrorKind : std::int32_t { noMirror = 0, plainMirror = 1, reflectedMirror = 2 };

/// Values of JointConfig::jointType.
enum JointType : std::int32_t { revolute = 0, prismatic = 1, fixed = 2, continuous = 3, planar = 4, floating = 5 };

/// Whether joints of that type move; planar and floating ones are held at zero.
constexpr bool isMoving(std::int32_t jointType)
{
    return jointType == revolute || jointType == prismatic || jointType == continuous;
}

/// Values of SensorConfig::type. The last three, like `unknownSensor`, are kinds that the object model has no class
/// for.
enum SensorType : std::int32_t {
    unknownSensor = 0,
    led = 1,
    tactile = 2,
    camera = 3,
    depthCamera = 4,
    bumper = 5,
    microphone = 6,
    arrayDepth = 7,
    sonar = 8,
    fsr = 9,
    inertial = 10,
    battery = 11,
    temperature = 12,
    button = 13,
};

/// The word that descriptions use for a value of a record.
struct ValueWord {
    std::string_view word;  ///< as descriptions spell it
    std::int32_t value;  ///< as records hold it
};

/// The words for all values of SensorType.
inline constexpr ValueWord sensorTypeWords[] = {
    {"led", led},       {"tactile", tactile},       {"camera", camera},         {"depthCamera", depthCamera},
    {"bumper", bumper}, {"microphone", microphone}, {"arrayDepth", arrayDepth}, {"sonar", sonar},
    {"fsr", fsr},       {"inertial", inertial},     {"battery", battery},       {"temperature", temperature},
    {"button", button}, {"unknown", unknownSensor},
};

/// That a joint follows another: its value is multiplier * the other's value + offset.
struct MimicConfig {
    std::string joint;  ///< the other
    float multiplier = 1.0F;  ///< 1 when not stated
    float offset = 0.0F;  ///< rad (m)
    TextOffset textOffset = {};  ///< of its element
};

/// Bounds that a joint's controller keeps inside of its limits.
struct SafetyConfig {
    float lowerLimit = 0.0F;  ///< rad (m), where the controller begins to limit the position
    float upperLimit = 0.0F;  ///< rad (m)
    float positionGain = 0.0F;  ///< 1/s, from position to bounds of velocity
    float velocityGain = 0.0F;  ///< N*m*s/rad (N*s/m), from velocity to bounds of effort
};

/// Positions at which a joint's reference switch changes.
struct CalibrationConfig {
    std::optional<float> rising;  ///< rad (m), on the way up
    std::optional<float> falling;  ///< rad (m), on the way down
};

/// A joint together with the body (link) that it moves; the robot's root is one too, of which only name, mesh, mass
/// and attributes mean something.
struct JointConfig {
    std::string name;  ///< under which the table holds the record
    std::string meshName;  ///< mesh file, as the description states it: its own, or else that of the first mesh among
                           ///< the visuals, with its place
    float minAngle = 0.0F;  ///< rad (m for prismatic joints); minus infinity when unlimited
    float maxAngle = 0.0F;  ///< rad (m for prismatic joints); infinity when unlimited
    float maxTorque = 0.0F;  ///< N*m (N for prismatic joints); 0 when not stated, infinity when unlimited
    float maxAngularSpeed = 0.0F;  ///< rad/s (m/s for prismatic joints); as maxTorque
    float mass = 0.0F;  ///< kg, of the body
    std::vector<float> inertiaMatrix = std::vector<float>(9, 0.0F);  ///< kg*m^2, 3x3 row by row, about the body's
                                                                     ///< centre of mass, in the axes of the link frame
    Position3D centerOfMass;  ///< m, in the link frame
    Position3D meshPosition;  ///< m, origin of the mesh in the link frame; VisualData leaves it out
    Transform placement;  ///< the joint frame at zero position, in the frame of the joint (or root) before it
    Transform endTransform;  ///< the link frame in the joint frame
    Position3D meshOrientation;  ///< rad, roll, pitch and yaw of the mesh in the link frame; as meshPosition
    std::int32_t mirrorKind = noMirror;  ///< a MirrorKind
    std::string mirrorName;  ///< the symmetric joint, when mirrorKind is not noMirror
    std::int32_t jointType = revolute;  ///< a JointType
    bool hasMotor = true;  ///< whether a motor of its own drives the joint
    float damping = 0.0F;  ///< N*m*s/rad (N*s/m)
    float friction = 0.0F;  ///< N*m (N), Coulomb friction of the joint
    Attributes attributes;  ///< free texts; "material" names the body's surface
    BodyShapes shapes;  ///< of the body
    std::shared_ptr<MimicConfig const> mimic;  ///< null for a joint that follows no other
    std::shared_ptr<SafetyConfig const> safety;  ///< null when not stated
    std::shared_ptr<CalibrationConfig const> calibration;  ///< null when not stated
    std::string linkName;  ///< what the text itself calls the link that models call after its joint; empty if nothing
    TextOffset textOffset = {};  ///< of the joint's element, or the root's
    TextOffset bodyOffset = {};  ///< of the element of the body, which is another one in URDF
};

/// A motor that drives the sub-joints of its groups together (a hand's fingers, say).
struct ActuatorConfig {
    std::string name;  ///< under which the table holds the record
    float minAngle = 0.0F;  ///< rad
    float maxAngle = 0.0F;  ///< rad
    float maxTorque = 0.0F;  ///< N*m; 0 when not stated
    float maxAngularSpeed = 0.0F;  ///< rad/s
    std::string parentJoint;  ///< the joint that it is attached to
    Transform placement;  ///< in the frame of the parent joint
    std::vector<std::vector<std::string>> jointGroups;  ///< names of sub-joints, each group from the parent outward
    std::int32_t mirrorKind = noMirror;  ///< a MirrorKind
    std::string mirrorName;  ///< the symmetric actuator, when mirrorKind is not noMirror
    TextOffset textOffset = {};  ///< of its element
};

/// A device on the robot that measures, or a light.
struct SensorConfig {
    std::string name;  ///< under which the table holds the record
    std::string parent;  ///< the joint or link that carries it
    std::int32_t type = unknownSensor;  ///< a SensorType
    Transform placement;  ///< in the frame of the link that the parent joint moves (of the root link otherwise)
    Attributes attributes;  ///< free texts; what each kind reads of them stands at MotionModel's queries of devices
    std::vector<std::string> keys;  ///< device keys
    std::shared_ptr<SensorSettings const> settings;  ///< null when the description states none
    TextOffset textOffset = {};  ///< of its element
};

/// A driven wheel.
struct WheelConfig {
    std::string name;  ///< under which the table holds the record
    std::string meshName;  ///< as JointConfig::meshName
    float maxTorque = 0.0F;  ///< N*m
    float maxVelocity = 0.0F;  ///< rad/s
    float mass = 0.0F;  ///< kg
    std::vector<float> inertiaMatrix = std::vector<float>(9, 0.0F);  ///< as JointConfig::inertiaMatrix
    Position3D centerOfMass;  ///< m, in the wheel's link frame
    std::string parentJoint;  ///< the joint that it is attached to
    Transform placement;  ///< in the frame of the parent joint
    Attributes attributes;  ///< as JointConfig::attributes
    BodyShapes shapes;  ///< of its link
    TextOffset textOffset = {};  ///< of its element
};

/// A joint that has no motor of its own and follows its actuator.
struct SubActuatorConfig {
    std::string name;  ///< under which the table holds the record
    std::string meshName;  ///< as JointConfig::meshName
    float offset = 0.0F;  ///< rad (m), the sub-joint's value when the actuator stands at 0
    float ratio = 0.0F;  ///< sub-joint angle per actuator angle
    Transform placement;  ///< in the frame of the element before it
    BodyShapes shapes;  ///< of its link
    TextOffset textOffset = {};  ///< of its element
};

/// A serial chain of joints.
struct ChainConfig {
    std::string name;  ///< under which the table holds the record
    std::string parentJoint;  ///< the joint, or the root, that the chain is attached to
    std::vector<std::string> jointNames;  ///< from the parent outward
    Transform placement;  ///< the chain's base frame in the frame of the parent joint
    Transform tipTransform;  ///< the chain's tool frame in the link frame of its last joint; carried
    std::string tipName;  ///< carried
    TextOffset textOffset = {};  ///< of its element
    std::vector<TextOffset> jointOffsets = {};  ///< of the elements that name its joints, one for one; may be empty
};

/// The value of one joint or actuator in a posture.
struct PostureAngle {
    std::string name;  ///< of the joint or actuator
    float value = 0.0F;  ///< rad (m)
    TextOffset textOffset = {};  ///< of its element
};

/// Joint values of one named posture, in the order of the description.
struct PostureConfig {
    std::string name;  ///< "StandInit" gives the start values of the actuators
    std::vector<PostureAngle> angles = {};  ///< each joint or actuator once
    TextOffset textOffset = {};  ///< of its element
};

/// Where a transmission was stated.
enum class TransmissionSource { transmission, ros2Control };

/// Which actuator drives which joint, and how.
struct TransmissionConfig {
    std::string name;  ///< of the transmission, or of the control system that states the joint
    std::string type;  ///< as stated; may be empty
    std::string joint;  ///< the joint that is driven
    std::string actuator;  ///< what drives it; may be empty
    float reduction = 1.0F;  ///< turns of the actuator for one of the joint
    std::vector<std::string> interfaces;  ///< to command the joint, as stated: "position" or "EffortJointInterface"
    std::vector<std::string> stateInterfaces;  ///< to read the joint's state, where the text tells them apart
    TransmissionSource source = TransmissionSource::transmission;  ///< which element stated it
    TextOffset textOffset = {};  ///< of its element
};

/// What an extension stands in.
enum class ExtensionOwner { robot, link, joint, sensor };

/// What a description has for other programs, kept as it stands in the text: an element, or an attribute (`a="b"`).
struct ExtensionConfig {
    ExtensionOwner owner = ExtensionOwner::robot;  ///< what kind of element it stands in
    std::string ownerName;  ///< joint, sensor, or the joint that moves the link (or the root); empty for the robot
    std::string within;  ///< the elements between the owner's and it, as "visual[2]/geometry"; empty for none
    std::string text;  ///< the whole element or attribute, markup and all
    TextOffset textOffset = {};  ///< of the element, or of the attribute's name
};

/// Where to look for what a text says of a part of a record.
template <class Config>
TextOffset offsetOf(Config const& record, Part /*part*/)
{
    return record.textOffset;
}
/// Of a joint or the root: what is said of the body may stand in another element.
inline TextOffset offsetOf(JointConfig const& joint, Part part)
{
    bool const isOfBody =
        part == Part::mass || part == Part::centerOfMass || part == Part::inertia || part == Part::material;
    return isOfBody ? joint.bodyOffset : joint.textOffset;
}

/// The mesh of a record, which alone is shown of a body without visuals, as a visual.
inline VisualConfig meshVisualOf(JointConfig const& body)
{
    VisualConfig visual;
    visual.position = body.meshPosition;
    visual.orientation = body.meshOrientation;
    visual.geometry.uri = body.meshName;
    visual.textOffset = body.bodyOffset;
    return visual;
}
/// Of a wheel or a sub-joint, whose mesh is at the link frame.
template <class Config>
VisualConfig meshVisualOf(Config const& body)
{
    VisualConfig visual;
    visual.geometry.uri = body.meshName;
    visual.textOffset = body.textOffset;
    return visual;
}

/// All that is shown of the body of a joint, the root, a wheel or a sub-joint: its visuals, or else the mesh of the
/// record alone, if there is one.
template <class Config>
std::vector<VisualConfig> visualsOf(Config const& body)
{
    bool const isMeshAlone = body.shapes.visuals.empty() && !body.meshName.empty();
    return isMeshAlone ? std::vector<VisualConfig>{meshVisualOf(body)} : body.shapes.visuals;
}

/// Joints by their names.
using JointTable = std::map<std::string, JointConfig>;
/// Coupled actuators by their names.
using ActuatorTable = std::map<std::string, ActuatorConfig>;
/// Sensors and lights by their names.
using SensorTable = std::map<std::string, SensorConfig>;
/// Wheels by their names.
using WheelTable = std::map<std::string, WheelConfig>;
/// Sub-joints by their names.
using SubActuatorTable = std::map<std::string, SubActuatorConfig>;
/// Chains by their names.
using ChainTable = std::map<std::string, ChainConfig>;

}  // namespace Varo::Model

#endif
