#ifndef SIM_JOINT_HPP
#define SIM_JOINT_HPP

#include <string>

#include "varo/export.hpp"
#include "varo/model/configs.hpp"

namespace Sim {

class Frame;
class JointImpl;
class Link;

/// What connects two links: it turns about the z axis of its frame, counter-clockwise as seen from the tip of z, or
/// slides along it. A fixed joint does neither.
///
/// What is said of its motion is what the description says; units are those of a joint that turns, with those of one
/// that slides in brackets. Two kinds of joints state less than others:
///
/// - A sub-joint of a coupled actuator is revolute and without limits, effort or velocity of its own: its range follows
///   from those of the actuator. It has no motor; CoupledActuator::controlledJointAndRatios says what drives it.
/// - The joint of a wheel is continuous and has a motor, whose torque and velocity are its effort and velocity.
///
/// What drives a joint its actuators say (Model::angleActuator of its name); which joint mirrors it,
/// Model::jointSymmetry; where it stands, Configuration.
///
/// An element of a Model, which says how long it lives and who may ask it at once.
class VAROROBOTMODEL_API Joint {
public:
    /// How a joint moves.
    enum class Type {
        revolute,  ///< turns within its limits
        continuous,  ///< turns without limits
        prismatic,  ///< slides within its limits
        fixed,  ///< does not move
        planar,  ///< slides and turns in a plane; held at its zero position
        floating,  ///< moves freely; held at its zero position
    };

    /// Where a joint may stand, in rad (m).
    struct Limits {
        float lower;  ///< minus infinity when unlimited
        float upper;  ///< infinity when unlimited
    };

    Joint();
    Joint(Joint const&) = delete;
    Joint& operator=(Joint const&) = delete;
    ~Joint();

    /// Where the joint sits, posed in the frame of its parent link. Null only when its model is gone.
    Frame const* frame() const;
    /// As in the description; Model::joint finds the joint by it.
    std::string const& name() const;
    /// The link that the joint is attached to. Null only when its model is gone.
    Link const* parentLink() const;
    /// The link that the joint moves; null when it moves none.
    Link const* childLink() const;

    /// @name Motion
    /// @{

    /// How it moves.
    Type type() const;
    /// Whether it moves: false for fixed, planar and floating joints.
    bool moves() const;
    /// Whether a motor of its own drives it. A joint without one has no angle actuator, and none of the sensors that
    /// come with one; if it moves, it has a value in a Configuration all the same.
    bool hasMotor() const;
    /// As stated, be it in reverse order; 0 and 0 for a joint that states none.
    Limits limits() const;
    /// The greatest torque, N*m (force, N); 0 when not stated, infinity when unlimited.
    float effort() const;
    /// The greatest speed, rad/s (m/s); 0 when not stated, infinity when unlimited.
    float velocity() const;
    /// Viscous damping, N*m*s/rad (N*s/m); 0 when not stated.
    float damping() const;
    /// Coulomb friction, N*m (N); 0 when not stated.
    float friction() const;
    /// Which joint it follows and how, as stated; Model::joint finds that joint by its name. Null for a joint that
    /// follows no other. Valid as long as the joint, as are the following.
    Varo::Model::MimicConfig const* mimic() const;
    /// The bounds that its controller keeps; null when not stated.
    Varo::Model::SafetyConfig const* safety() const;
    /// Its reference positions; null when not stated.
    Varo::Model::CalibrationConfig const* calibration() const;
    /// @}

private:
    friend class ModelImpl;

    JointImpl* _impl;
};

}  // namespace Sim

#endif
