#include "schema/children.hpp"
#include "urdf/schema.hpp"
#include "urdf/urdf_codes.hpp"

namespace Varo::Model::Urdf {

namespace {

constexpr Element<Origin> jointOrigin = originElement(
    "the frame of the child link at zero position, in the frame of the parent link; with the axis it becomes placement "
    "and end transform");

constexpr Attribute<LinkReference> linkAttributes[] = {
    required<&LinkReference::link>("link", "", "name of the link"),
};
constexpr Element<LinkReference> parentElement{"parent", "the link that the joint is attached to", linkAttributes};
constexpr Element<LinkReference> childElement{"child", "the link that the joint moves", linkAttributes};

constexpr Attribute<Axis> axisAttributes[] = {
    required<&Axis::xyz>("xyz", "", "direction, of any length but 0, in the frame of the child link")
        .orElse({&codes::missingAttribute, "This axis does not say its direction: 1 0 0 is taken.",
                 "Give it an attribute \"xyz\"."}),
};
constexpr Element<Axis> axisElement{
    "axis", "what the joint turns about or slides along; means nothing for one that does not move", axisAttributes};

constexpr Attribute<Limit> limitAttributes[] = {
    optional<&Limit::lower, LowerBound>("lower", "0", "rad (m)", "smallest joint value"),
    optional<&Limit::upper, UpperBound>("upper", "0", "rad (m)", "greatest joint value"),
    optional<&Limit::effort, UpperBound>("effort", "0", "N*m (N)", "greatest torque (force); 0 when not stated")
        .alwaysWritten(),
    optional<&Limit::velocity, UpperBound>("velocity", "0", "rad/s (m/s)", "greatest speed; 0 when not stated")
        .alwaysWritten(),
};
constexpr Element<Limit> limitElement{
    "limit",
    "the bounds of the joint; without `lower` and `upper` a revolute or prismatic joint stays at 0 (warning), and only "
    "for these do they mean something",
    limitAttributes};

constexpr Attribute<Dynamics> dynamicsAttributes[] = {
    optional<&Dynamics::damping>("damping", "0", "N*m*s/rad (N*s/m)", "viscous damping"),
    optional<&Dynamics::friction>("friction", "0", "N*m (N)", "Coulomb friction"),
};
constexpr Element<Dynamics> dynamicsElement{"dynamics", "how the joint resists motion", dynamicsAttributes};

constexpr Attribute<Mimic> mimicAttributes[] = {
    required<&Mimic::joint>("joint", "", "the joint that is followed"),
    optional<&Mimic::multiplier>("multiplier", "1", "", "value of the joint per value of that one"),
    optional<&Mimic::offset>("offset", "0", "rad (m)", "value of the joint where that one stands at 0"),
};
constexpr Element<Mimic> mimicElement{
    "mimic", "that the joint follows another one; becomes a coupled actuator, too, see below", mimicAttributes};

constexpr Attribute<Calibration> calibrationAttributes[] = {
    memberRow<&Calibration::rising, OptionalReal, Calibration>(
        {"rising", &Real::type, "rad (m)", "where the switch changes on the way up", false, {}, nullptr, nullptr, {}}),
    memberRow<&Calibration::falling, OptionalReal, Calibration>(
        {"falling", &Real::type, "rad (m)", "where it changes on the way down", false, {}, nullptr, nullptr, {}}),
};
constexpr Element<Calibration> calibrationElement{"calibration", "where the joint's reference switch changes",
                                                  calibrationAttributes};

constexpr Attribute<SafetyController> safetyAttributes[] = {
    optional<&SafetyController::softLowerLimit, LowerBound>("soft_lower_limit", "0", "rad (m)",
                                                            "from where on the controller limits the position"),
    optional<&SafetyController::softUpperLimit, UpperBound>("soft_upper_limit", "0", "rad (m)",
                                                            "up to where it leaves the position free"),
    optional<&SafetyController::positionGain>("k_position", "0", "1/s", "gain from position to bounds of velocity"),
    required<&SafetyController::velocityGain>("k_velocity", "N*m*s/rad (N*s/m)",
                                              "gain from velocity to bounds of effort"),
};
constexpr Element<SafetyController> safetyElement{
    "safety_controller", "bounds that the joint's controller keeps inside of its limits", safetyAttributes};

constexpr Attribute<Joint> attributes[] = {
    required<&Joint::name, Name>("name", "", "name of the joint, and of its record")
        .orElse({&codes::missingName, "This joint has no name.", "Give it an attribute \"name\"."}),
    required<&Joint::type, JointTypes>(
        "type", "",
        "how the joint moves: `continuous` is `revolute` without limits; `fixed`, `planar` and `floating` stay at 0 "
        "(the latter two with a note) and have no motor")
        .orElse({&codes::unknownJointType, "This joint has no type.", jointTypeHint}),
};
constexpr Child<Joint> children[] = {
    childOf<&Joint::parent, parentElement>(), childOf<&Joint::child, childElement>(),
    childOf<&Joint::origin, jointOrigin>(),   childOf<&Joint::axis, axisElement>(),
    childOf<&Joint::limit, limitElement>(),   childOf<&Joint::dynamics, dynamicsElement>(),
    childOf<&Joint::mimic, mimicElement>(),   childOf<&Joint::calibration, calibrationElement>(),
    childOf<&Joint::safety, safetyElement>(),
};

}  // namespace

constexpr Element<Joint> jointElement{"joint", "a joint, which turns about or slides along the z axis of its frame",
                                      attributes, children};

}  // namespace Varo::Model::Urdf
