#include "classes.hpp"
#include "devices.hpp"

namespace Python {

namespace {

constexpr std::tuple helps{
    Help<Sim::AngleActuator>{"The motor of a joint, commanded by angle (rad; m for a sliding joint)."},
    Help<Sim::AngleSpeedActuator>{"The motor of a joint, commanded by speed (rad/s; m/s for a sliding joint)."},
    Help<Sim::TorqueActuator>{"The motor of a joint, commanded by torque (N*m; N for a sliding joint)."},
    Help<Sim::CoupledActuator>{"One motor that moves several joints together, each by the motor's angle (rad) times a "
                               "ratio of its own."},
    Help<Sim::WheelVelocityActuator>{"The motor of a wheel, commanded by speed (rad/s)."},
    Help<Sim::WheelTorqueActuator>{"The motor of a wheel, commanded by torque (N*m)."},
    Help<Sim::LEDActuator>{"A light of the robot."},
};

constexpr std::tuple ofKinds{
    Property{"start_value", "The value in the posture \"StandInit\"; 0 without postures.", PYTHON_GETTER(startValue)},
    Property{"min_value", "The smallest value; minus infinity when unlimited.", PYTHON_GETTER(minValue)},
    Property{"max_value", "The greatest value; infinite when unlimited.", PYTHON_GETTER(maxValue)},
    Property{"max_speed", "The greatest speed, rad/s (m/s); 0 when not stated.", PYTHON_GETTER(maxSpeed)},
    Property{"max_torque", "The greatest torque, N*m (force, N); 0 when not stated.", PYTHON_GETTER(maxTorque)},
    Property{"max_velocity", "The greatest speed, rad/s.", PYTHON_GETTER(maxVelocity)},
    Property{"controlled_joint", "The joint that it drives.", PYTHON_GETTER(controlledJoint)},
    Property{"reflected_symmetric", "The mirrored actuator; None without one.", PYTHON_GETTER(reflectedSymmetric)},
    Property{"reflected_symmetric_reversed", "Whether the partner mirrors this one at the opposite value.",
             PYTHON_GETTER(reflectedSymmetricReversed)},
    Property{"reflection_forced", "Whether a symmetric motion reflects the joint whatever its mirror says.",
             PYTHON_GETTER(reflectionForced)},
    Property{"controlled_joint_and_ratios", "The joints that it drives, each with its ratio.",
             PYTHON_GETTER(controlledJointAndRatios)},
    Property{"shortname", "A name for people; empty when the description gives none.", PYTHON_GETTER(shortname)},
    Property{"groups", "The groups of lights to which it belongs.", PYTHON_GETTER(groups)},
    Property{"color", "What it shines in; blue when the description names none.", PYTHON_GETTER(color)},
};

}  // namespace

void defineActuators(py::module_& module)
{
    auto actuator = declareFamily<Sim::Actuator>(
        module, "Actuator",
        "A device of the robot that takes commands: a motor, or a light. Each is of a class of its kind.");
    actuator.def_property_readonly(
        "dcm_keys",
        [](Element<Sim::Actuator> const& self) {
            return valueOf(self.owner, static_cast<Sim::DCMActuator const&>(*self).dcmKeys());
        },
        "The keys under which the robot's device layer takes its commands.");
    declareKinds(module, "Actuator", Sim::actuatorKinds, helps, ofKinds);
}

}  // namespace Python
