#ifndef VARO_KINEMATICS_KINEMATICS_IMPL_HPP
#define VARO_KINEMATICS_KINEMATICS_IMPL_HPP

#include <vector>

#include "kinematics/frame_places.hpp"
#include "kinematics/joint_drives.hpp"
#include "kinematics/kinematic_tree.hpp"
#include "sim/configuration.hpp"
#include "varo/model/configs.hpp"

namespace Sim {

/// What a Kinematics, its copies and their configurations share. Immutable.
class KinematicsImpl {
public:
    explicit KinematicsImpl(Model const& model);

    /// Throws std::invalid_argument for a configuration that was made for another Kinematics.
    double const* valuesOf(Configuration const& configuration) const;
    /// The frame's pose in that of the root.
    Pose poseOf(Frame const& frame, double const* values) const;
    /// The poses of all links in the root's frame, by their places in Model::links().
    void writeLinkPoses(double const* values, Pose* poses) const;
    std::vector<Pose> linkPosesAt(double const* values) const;

    JointDrives const drives;
    KinematicTree const tree;
    FramePlaces const places;
    std::vector<Varo::Model::PostureConfig> const postures;
};

/// Throws std::invalid_argument when a buffer or list has not the size that it should have.
void requireSize(char const* what, std::size_t size, std::size_t expected);

}  // namespace Sim

#endif
