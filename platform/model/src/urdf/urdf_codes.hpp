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
inline constexpr FindingCode jointFrozen{"joint-frozen", Severity::warning,
                                         "A planar or floating joint is held in its zero position."};
inline constexpr FindingCode missingLimit{"missing-limit", Severity::warning,
                                          "A revolute or prismatic joint without a limit element cannot move."};
inline constexpr FindingCode reversedLimits{"reversed-limits", Severity::warning,
                                            "The lower limit of a joint is above the upper one."};
inline constexpr FindingCode unlimited{"unlimited", Severity::warning,
                                       "An infinite effort or velocity is kept as 0, which stands for not stated."};
inline constexpr FindingCode incompleteInertial{
    "incomplete-inertial", Severity::warning, "An inertial states no mass or no inertia; what is missing counts as 0."};
inline constexpr FindingCode visualsLost{"visuals-lost", Severity::warning,
                                         "A link has several visuals, of which one mesh is kept."};
inline constexpr FindingCode meshOffsetLost{"mesh-offset-lost", Severity::warning,
                                            "The model shows the mesh at the link frame, not where its origin says."};
inline constexpr FindingCode meshScaleLost{"mesh-scale-lost", Severity::warning, "The scale of a mesh is not kept."};
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
inline constexpr FindingCode sensorKind{"sensor-kind", Severity::note,
                                        "Sensors of a kind that models have no class for."};

/// In the order of the documentation.
inline constexpr FindingCode const* ofDialect[] = {
    &missingName,    &nameTooLong,    &unknownJointType,   &zeroAxis,       &unnamedRobot, &wrongCount,
    &surplusElement, &jointFrozen,    &missingLimit,       &reversedLimits, &unlimited,    &incompleteInertial,
    &visualsLost,    &meshOffsetLost, &meshScaleLost,      &sensorLost,     &sensorFrame,  &sensorSize,
    &badSetting,     &badReduction,   &unknownDrivenJoint, &sensorKind,
};

}  // namespace Varo::Model::Urdf::codes

#endif
