#ifndef VARO_MODEL_ROBOT_MIRROR_PLANE_HPP
#define VARO_MODEL_ROBOT_MIRROR_PLANE_HPP

#include <cstddef>
#include <vector>

#include "robot/side_candidates.hpp"
#include "robot/zero_poses.hpp"

namespace Varo::Model {

/// A plane that stands upright on an axis of the root.
struct MirrorPlane {
    std::size_t axis = 1;  ///< of its normal: 0 for x, 1 for y, 2 for z
    double offset = 0.0;  ///< m, along the axis
    std::size_t support = 0;  ///< the number of pairs whose places it reflects into each other

    Vector reflected(Vector point) const
    {
        point[axis] = 2.0 * offset - point[axis];
        return point;
    }
    Vector reflectedDirection(Vector direction) const
    {
        direction[axis] = -direction[axis];
        return direction;
    }
};

/// The plane that reflects most of the candidates into each other, within `tolerance` (m). Those that are far apart
/// count for more: the wheels of a robot, say, than the fingers of its one hand. In time that grows linearly with the
/// number of candidates, but for sorting.
MirrorPlane findMirrorPlane(std::vector<SideCandidate> const& candidates, std::vector<PlacedJoint> const& places,
                            double tolerance);

}  // namespace Varo::Model

#endif
