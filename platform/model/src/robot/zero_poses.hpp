#ifndef VARO_MODEL_ROBOT_ZERO_POSES_HPP
#define VARO_MODEL_ROBOT_ZERO_POSES_HPP

#include <cstddef>
#include <vector>

#include "robot/cycles.hpp"
#include "robot/pose.hpp"
#include "varo/model/name_index.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model {

/// Where a joint is, all joints at zero.
struct PlacedJoint {
    std::size_t before = none;  ///< the joint that it is attached to; none at the root, or when no chain leads to it
    bool isReached = false;  ///< whether chains lead from the root to it
    Pose frame;  ///< of the joint, in the root frame, when it is reached
    Pose link;  ///< of the link that it moves, likewise
};

/// Where in their table joints stand, by name, whether or not it is sorted. The table must outlive it.
NameIndex indexOf(Table<JointConfig> const& joints);

/// Of all joints of the records, one for one, in time linear in their number. `joints` is the index of their table.
std::vector<PlacedJoint> placeAtZero(Records const& records, NameIndex const& joints);

}  // namespace Varo::Model

#endif
