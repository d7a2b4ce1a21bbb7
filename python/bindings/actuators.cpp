#include "classes.hpp"
#include "devices.hpp"

namespace Python {

namespace {

using ActuatorElement = Element<Sim::Actuator>;

/// What Python's help says of a class.
template <class Device>
constexpr char const* helpOf = nullptr;
template <>
constexpr char const* helpOf<Sim::AngleActuator> =
    "The motor of a joint, commanded by angle (rad; m for a sliding joint).";
template <>
constexpr char const* helpOf<Sim::AngleSpeedActuator> =
    "The motor of a joint, commanded by speed (rad/s; m/s for a sliding joint).";
template <>
constexpr char const* helpOf<Sim::TorqueActuator> =
    "The motor of a joint, commanded by torque (N*m; N for a sliding joint).";
template <>
constexpr char const* helpOf<Sim::CoupledActuator> =
    "One motor that moves several joints together, each by the motor's angle (rad) times a ratio of its own.";
template <>
constexpr char const* helpOf<Sim::WheelVelocityActuator> = "The motor of a wheel, commanded by speed (rad/s).";
template <>
constexpr char const* helpOf<Sim::WheelTorqueActuator> = "The motor of a wheel, commanded by torque (N*m).";
template <>
constexpr char const* helpOf<Sim::LEDActuator> = "A light of the robot.";

template <class Device>
void defineKind(py::module_& module)
{
    std::string const name = std::string(std::get<Sim::ActuatorKind<Device>>(Sim::actuatorKinds).name) + "Actuator";
    auto device = declareElement<Element<Device>, ActuatorElement>(module, name.c_str(), helpOf<Device>);
    auto const add = [&device](char const* property, auto get, char const* documentation) {
        defineIfThere<Device>(device, property, get, documentation);
    };
    add("start_value", PYTHON_GETTER(startValue), "The value in the posture \"StandInit\"; 0 without postures.");
    add("min_value", PYTHON_GETTER(minValue), "The smallest value; minus infinity when unlimited.");
    add("max_value", PYTHON_GETTER(maxValue), "The greatest value; infinite when unlimited.");
    add("max_speed", PYTHON_GETTER(maxSpeed), "The greatest speed, rad/s (m/s); 0 when not stated.");
    add("max_torque", PYTHON_GETTER(maxTorque), "The greatest torque, N*m (force, N); 0 when not stated.");
    add("max_velocity", PYTHON_GETTER(maxVelocity), "The greatest speed, rad/s.");
    add("controlled_joint", PYTHON_GETTER(controlledJoint), "The joint that it drives.");
    add("reflected_symmetric", PYTHON_GETTER(reflectedSymmetric), "The mirrored actuator; None without one.");
    add("reflected_symmetric_reversed", PYTHON_GETTER(reflectedSymmetricReversed),
        "Whether the partner mirrors this one at the opposite value.");
    add("reflection_forced", PYTHON_GETTER(reflectionForced),
        "Whether a symmetric motion reflects the joint whatever its mirror says.");
    add("controlled_joint_and_ratios", PYTHON_GETTER(controlledJointAndRatios),
        "The joints that it drives, each with its ratio.");
    add("shortname", PYTHON_GETTER(shortname), "A name for people; empty when the description gives none.");
    add("groups", PYTHON_GETTER(groups), "The groups of lights to which it belongs.");
    add("color", PYTHON_GETTER(color), "What it shines in; blue when the description names none.");
}

}  // namespace

void defineActuators(py::module_& module)
{
    auto actuator = declareElement<ActuatorElement>(
        module, "Actuator",
        "A device of the robot that takes commands: a motor, or a light. Each is of a class of its kind.");
    defineDevice(actuator, "ActuatorType");
    actuator.def_property_readonly(
        "dcm_keys",
        [](ActuatorElement const& self) {
            return valueOf(self.owner, static_cast<Sim::DCMActuator const&>(*self).dcmKeys());
        },
        "The keys under which the robot's device layer takes its commands.");
    std::apply([&](auto const&... kind) { (defineKind<typename std::decay_t<decltype(kind)>::Class>(module), ...); },
               Sim::actuatorKinds);
}

}  // namespace Python
