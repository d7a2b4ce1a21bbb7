#ifndef SIM_KINEMATICS_HPP
#define SIM_KINEMATICS_HPP

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "sim/configuration.hpp"
#include "sim/joint_variable.hpp"
#include "sim/mass_properties.hpp"
#include "sim/pose.hpp"
#include "varo/export.hpp"

namespace Sim {

class Frame;
class Link;
class Model;

/// A robot in motion: poses, masses and Jacobians for any joint values.
///
/// Made once from a model, which must outlive it (it may be moved), and immutable from then on: any number of threads
/// may ask it at once. Copies share what they hold, and take each other's configurations.
///
/// A joint turns about, or slides along, the z axis of its frame; planar and floating joints stand still. Everything is
/// computed in double precision from the single-precision poses that the model's frames have, which are not rounded
/// again. "The root's frame" is that of Model::rootLink().
///
/// A frame is fixed to a link. That of a link, a sensor or an actuator moves with the link that it belongs to; that of
/// a joint stays with the joint's parent link, at the joint's zero position. A frame that is posed in a joint's frame,
/// such as that of a coupled actuator, moves with what the joint moves.
///
/// All queries throw std::invalid_argument for a configuration that was made for another Kinematics, for an element of
/// another model, and for a buffer of the wrong size; std::runtime_error for a model that was moved from and for an
/// element that no model made; and nothing else but std::bad_alloc.
class VAROROBOTMODEL_API Kinematics {
public:
    /// Takes time and memory proportional to the size of the robot.
    explicit Kinematics(Model const& model);
    /// Shares what `other` holds.
    Kinematics(Kinematics const& other);
    /// Shares what `other` holds from now on.
    Kinematics& operator=(Kinematics const& other);
    ~Kinematics();

    /// @name What can move
    /// @{

    /// What the values of a configuration stand for, in the order in which the model made the joints.
    std::vector<JointVariable> const& variables() const;
    /// Which of variables() moves the joint, wheel or coupled actuator of that name, directly or as one that follows.
    /// Throws std::invalid_argument for an unknown name and for a joint that does not move.
    std::size_t variableOf(std::string const& name) const;
    /// The frame of the link of that name (as Model::link finds it), or else of the joint, sensor or actuator. Throws
    /// std::invalid_argument, which says what may have been meant, when there is none.
    Frame const& frame(std::string const& name) const;
    /// The number of links.
    std::size_t linkCount() const;
    /// Which one of Model::links() it is.
    std::size_t linkIndex(Link const& link) const;
    /// @}

    /// @name Poses
    /// Of frames in each other (m). By homogeneous transforms from the root outward, as in Siciliano et al., Robotics:
    /// Modelling, Planning and Control (2009), section 2.8.
    /// @{

    /// The pose of `frame` in the root's frame. Takes time proportional to its depth in the tree, and no memory.
    Pose pose(Configuration const& configuration, Frame const& frame) const;
    /// The pose of `frame` in that of `relativeTo`.
    Pose pose(Configuration const& configuration, Frame const& frame, Frame const& relativeTo) const;
    /// Writes the poses of all links in the root's frame, in the order of Model::links(), in one pass and without
    /// allocating memory. `count` is the number of poses that `poses` has room for: linkCount().
    void linkPoses(Configuration const& configuration, Pose* poses, std::size_t count) const;
    /// The same in a vector of the caller's own.
    std::vector<Pose> linkPoses(Configuration const& configuration) const;
    /// @}

    /// @name Masses
    /// Links without mass data weigh nothing. Inertias are summed up by the parallel axis theorem (Featherstone, Rigid
    /// Body Dynamics Algorithms, 2008, section 2.13).
    /// @{

    /// Of the whole robot.
    MassProperties massProperties(Configuration const& configuration) const;
    /// Of the link and all links that it carries, near and far.
    MassProperties massProperties(Configuration const& configuration, Link const& link) const;
    /// @}

    /// @name Jacobians
    /// The columns are those of variables(), and stand one behind the other in memory. A joint that follows adds its
    /// own velocity, times its ratio, to the column of the variable that moves it. The rows are along the axes of the
    /// frame `axes`, of the root for null, as they stand in that configuration: `axes` changes directions only, what is
    /// described stays the motion against the root. By Siciliano et al., section 3.1.
    /// @{

    /// Writes the 6 x n geometric Jacobian of a frame. The first three rows are the velocity of the frame's origin
    /// (m/s per rad/s, or per m/s where the variable slides), the last three its angular velocity (rad/s). `count` is
    /// the number of entries that `entries` has room for: six for each of variables(). Allocates no memory.
    void jacobian(Configuration const& configuration, Frame const& frame, double* entries, std::size_t count,
                  Frame const* axes = nullptr) const;
    /// The same in a vector of the caller's own.
    std::vector<double> jacobian(Configuration const& configuration, Frame const& frame,
                                 Frame const* axes = nullptr) const;
    /// The 3 x n Jacobian of the robot's centre of mass, whose rows are its velocity: three entries for each of
    /// variables(). All zeros for a robot without mass.
    std::vector<double> centerOfMassJacobian(Configuration const& configuration, Frame const* axes = nullptr) const;
    /// @}

private:
    friend class Configuration;

    std::shared_ptr<KinematicsImpl const> _impl;
};

}  // namespace Sim

#endif
