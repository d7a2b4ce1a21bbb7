#ifndef VARO_MODEL_URDF_CODES_HPP
#define VARO_MODEL_URDF_CODES_HPP

#include "robot/link_tree_codes.hpp"

/// The kinds of findings that only URDF texts give, and those of the layer below that its reader makes too.
namespace Varo::Model::Urdf::codes {

using Model::codes::notANumber;
using Model::codes::unattachedJoint;

inline constexpr FindingCode missingName{"missing-name", Severity::error, "A link or joint has no name."};
inline constexpr FindingCode nameTooLong{"name-too-long", Severity::error, "A name has more than 1000 bytes."};
inline constexpr FindingCode unknownJointType{"unknown-joint-type", Severity::error,
                                              "A joint has no type, or one that URDF does not know."};
inline constexpr FindingCode zeroAxis{"zero-axis", Severity::error, "The axis of a moving joint has no direction."};

inline constexpr FindingCode unnamedRobot{"unnamed-robot", Severity::warning, "The robot has no name."};
inline constexpr FindingCode wrongCount{"wrong-count", Severity::warning,
                                        "A list of numbers is longer or shorter than it should be."};
inline constexpr FindingCode surplusElement{"surplus-element", Severity::warning,
                                            "An element that may stand once stands again; the first one counts."};
inline constexpr FindingCode unknownAttribute{
    "unknown-attribute", Severity::warning, "An attribute is named nearly like one that URDF defines for its element."};
inline constexpr FindingCode unknownElement{"unknown-element", Severity::warning,
                                            "An element is named nearly like one that URDF defines where it stands."};
inline constexpr FindingCode misplacedElement{"misplaced-element", Severity::warning,
                                              "An element stands where URDF defines none of that name."};
inline constexpr FindingCode unexpectedText{"unexpected-text", Severity::warning,
                                            "A text stands where URDF has an attribute; it is left out."};
inline constexpr FindingCode jointFrozen{"joint-frozen", Severity::note,
                                         "Planar and floating joints are held in their zero positions."};
inline constexpr FindingCode missingLimit{"missing-limit", Severity::warning,
                                          "A revolute or prismatic joint without lower and upper limits cannot move."};
inline constexpr FindingCode reversedLimits{"reversed-limits", Severity::warning,
                                            "The lower limit of a joint is above the upper one."};
inline constexpr FindingCode incompleteInertial{
    "incomplete-inertial", Severity::warning, "An inertial states no mass or no inertia; what is missing counts as 0."};
inline constexpr FindingCode incompleteShape{
    "incomplete-shape", Severity::warning, "A visual or collision says no solid, or a mesh no file, and is left out."};
inline constexpr FindingCode negativeLength{"negative-length", Severity::warning,
                                            "A length or radius is negative; its magnitude is taken."};
inline constexpr FindingCode colorRange{"color-range", Severity::warning,
                                        "A number of a colour is not between 0 and 1; what is beyond is cut."};
inline constexpr FindingCode unknownMaterial{"unknown-material", Severity::warning,
                                             "A visual names a material that nothing in the text says more of."};
inline constexpr FindingCode duplicateMaterial{"duplicate-material", Severity::warning,
                                               "Two materials of the robot have the same name; the first one counts."};
inline constexpr FindingCode missingAttribute{"missing-attribute", Severity::warning,
                                              "An element lacks an attribute that it needs; a number counts as 0."};
inline constexpr FindingCode sensorLost{"sensor-lost", Severity::warning,
                                        "A sensor is in no model, because no link of the robot carries it."};
inline constexpr FindingCode sensorFrame{
    "sensor-frame", Severity::warning,
    "The pose of a sensor names another frame than that of its link, which it is taken to be in."};
inline constexpr FindingCode sensorSize{
    "sensor-size", Severity::warning,
    "A camera or scanner states no usable number of pixels or points; the usual one is assumed."};
inline constexpr FindingCode badSetting{"bad-setting", Severity::warning,
                                        "A setting of a sensor is none that it can have."};
inline constexpr FindingCode badReduction{"bad-reduction", Severity::warning,
                                          "The reduction of a transmission is no number other than 0; 1 is assumed."};
inline constexpr FindingCode unknownDrivenJoint{"unknown-driven-joint", Severity::warning,
                                                "A transmission or control system drives a joint that does not exist."};
inline constexpr FindingCode unknownReference{
    "unknown-reference", Severity::warning,
    "What is said of a link or joint for other programs names none, but nearly one that there is."};
inline constexpr FindingCode sensorKind{"sensor-kind", Severity::note,
                                        "Sensors of a kind that models have no class for."};

inline constexpr FindingCode foreignAttribute{"foreign-attribute", Severity::note,
                                              "Attributes that URDF does not define are kept as text."};

// What becomes of robots that are written as URDF. The element that they name is one that other programs pass over.
inline constexpr FindingCode notUrdf{"not-urdf", Severity::error,
                                     "The robot cannot be written as a URDF that can be read."};
inline constexpr FindingCode beyondRoot{"beyond-urdf-root", Severity::note,
                                        "What URDF cannot say of the root link is written into `varo:description`."};
inline constexpr FindingCode beyondJoint{
    "beyond-urdf-joint", Severity::note,
    "What URDF cannot say of a joint or its link is written into `varo:description`."};
inline constexpr FindingCode beyondSensor{
    "beyond-urdf-sensor", Severity::note,
    "What URDF cannot say of a sensor or light is written into `varo:description`."};
inline constexpr FindingCode beyondPrettyName{"beyond-urdf-pretty-name", Severity::note,
                                              "Display names are written into `varo:description`."};
inline constexpr FindingCode beyondChain{
    "beyond-urdf-chain", Severity::note,
    "Chains that do not follow from URDF's tree are written into `varo:description`."};
inline constexpr FindingCode beyondActuator{
    "beyond-urdf-actuator", Severity::note,
    "Coupled actuators that do not follow from URDF's mimics are written into `varo:description`."};
inline constexpr FindingCode beyondWheel{"beyond-urdf-wheel", Severity::note,
                                         "Wheels are written into `varo:description`."};
inline constexpr FindingCode beyondPosture{"beyond-urdf-posture", Severity::note,
                                           "Postures are written into `varo:description`."};
inline constexpr FindingCode beyondTransmission{
    "beyond-urdf-transmission", Severity::note,
    "Transmissions that URDF would not give back as they are, are all written into `varo:description`."};
inline constexpr FindingCode beyondExtension{"beyond-urdf-extension", Severity::note,
                                             "Extensions that URDF has no place for, or would give back in another "
                                             "order, are all written into `varo:description`."};

/// In the order of the documentation.
inline constexpr FindingCode const* ofDialect[] = {
    &missingName,      &nameTooLong,     &unknownJointType,   &zeroAxis,           &unnamedRobot,     &wrongCount,
    &missingAttribute, &surplusElement,  &unknownAttribute,   &unknownElement,     &misplacedElement, &unexpectedText,
    &jointFrozen,      &missingLimit,    &reversedLimits,     &incompleteInertial, &incompleteShape,  &negativeLength,
    &colorRange,       &unknownMaterial, &duplicateMaterial,  &sensorLost,         &sensorFrame,      &sensorSize,
    &badSetting,       &badReduction,    &unknownDrivenJoint, &unknownReference,   &sensorKind,       &foreignAttribute,
    &notUrdf,          &beyondRoot,      &beyondJoint,        &beyondSensor,       &beyondPrettyName, &beyondChain,
    &beyondActuator,   &beyondWheel,     &beyondPosture,      &beyondTransmission, &beyondExtension,
};

}  // namespace Varo::Model::Urdf::codes

#endif
