#ifndef VARO_KINEMATICS_JOINT_MOTIONS_HPP
#define VARO_KINEMATICS_JOINT_MOTIONS_HPP

#include <array>
#include <cstddef>

#include "kinematics/kinematic_tree.hpp"
#include "kinematics/paired_pose.hpp"
#include "kinematics/sines_and_cosines.hpp"

namespace Sim {

/// Where the joints before some links stand, as the values of a configuration have it.
class JointMotions {
public:
    static constexpr std::size_t capacity = 32;
    using Positions = std::array<std::size_t, capacity>;

    /// Of the first `count` positions in the tree.
    JointMotions(KinematicTree const& tree, Positions const& positions, std::size_t count, double const* values)
        : _tree(tree), _positions(positions)
    {
        for (std::size_t i = 0; i < count; ++i) {
            KinematicTree::Mover const& mover = tree.mover(positions[i]);
            _values[i] = mover.motion == Motion::none ? 0.0 : mover.ratio * values[mover.variable] + mover.offset;
        }
        sinesAndCosines(_values.data(), count, _sines.data(), _cosines.data());
    }

    /// The pose of a link in the frame of its parent.
    PairedPose linkInParent(std::size_t i) const
    {
        KinematicTree::Node const& node = _tree.nodes()[_positions[i]];
        switch (_tree.mover(_positions[i]).motion) {
        case Motion::turns: return PairedPose::sum(node.still, _cosines[i], node.cosine, _sines[i], node.sine);
        case Motion::slides: return PairedPose::sum(node.still, 0.0, node.cosine, _values[i], node.sine);
        case Motion::none: break;
        }
        return PairedPose(node.still);
    }

    /// Makes of the fixed side of a joint the moving one.
    void move(std::size_t i, PairedPose& side) const
    {
        switch (_tree.mover(_positions[i]).motion) {
        case Motion::turns: side.turn(_cosines[i], _sines[i]); break;
        case Motion::slides: side.slide(_values[i]); break;
        case Motion::none: break;
        }
    }

private:
    KinematicTree const& _tree;
    Positions const& _positions;
    // Only the first ones are set: clearing all would take as long as the work.
    std::array<double, capacity> _values;
    std::array<double, capacity> _sines;
    std::array<double, capacity> _cosines;
};

/// Goes from the root to the link at a position and answers its pose in the root's frame. Calls `visit(mover, joint)`
/// for each joint on the way, with the pose of its fixed side.
template <class Visit>
Pose walkTo(KinematicTree const& tree, std::size_t target, double const* values, Visit const& visit)
{
    KinematicPath path(tree, target);
    PairedPose side(tree.nodes().front().still);
    JointMotions::Positions positions;
    std::size_t count = 0;
    do {
        for (count = 0; count < positions.size() && path.advance(); ++count) {
            positions[count] = path.position();
        }
        JointMotions const motions(tree, positions, count, values);
        for (std::size_t i = 0; i < count; ++i) {
            side = side * PairedPose(tree.joint(positions[i]).behindParentJoint);
            visit(tree.mover(positions[i]), side);
            motions.move(i, side);
        }
    } while (count == positions.size());
    if (target != 0) {
        side = side * PairedPose(tree.joint(target).toLink);
    }
    Pose pose;
    side.store(pose);
    return pose;
}

}  // namespace Sim

#endif
