#ifndef VARO_MODEL_ROBOT_MIRROR_PAIRS_HPP
#define VARO_MODEL_ROBOT_MIRROR_PAIRS_HPP

#include <cstddef>
#include <cstdint>
#include <vector>

#include "robot/mirror_plane.hpp"
#include "robot/side_candidates.hpp"
#include "robot/zero_poses.hpp"
#include "varo/model/records.hpp"

/// Left and right: which joints are counterparts by their names or by what the text states, and whether their places
/// prove it.
namespace Varo::Model {

/// How far directions of length 1 may miss their reflections.
inline constexpr double directionTolerance = 5e-3;

/// Two joints, by their indices, in the order of the text.
struct SidePair {
    std::size_t first;
    std::size_t second;
    bool isStated;  ///< whether the text says that they mirror each other
    bool isPlaced = false;  ///< whether the place of one is the reflection of the other's
    bool isTurned = false;  ///< whether the axes are each other's reflections, up to sign; true for joints without
    bool isOfOneType = false;
    std::int32_t kind = noMirror;  ///< from the axes; plain for joints that do not move
    bool isSure = true;  ///< whether the names leave no other choice
    std::size_t carrier = none;  ///< the index of the pair that the two are attached to; none when they are to no pair
    std::size_t limb = none;  ///< the index of the first pair of the limb
    bool isAskew = false;  ///< whether a pair that carries them is not turned as its reflection
    bool isLimb = false;  ///< whether they must mirror: not sensors on a head, or the fingers of one hand
    Vector miss = {0.0, 0.0, 0.0};  ///< m, from the second to the reflection of the first

    bool isProved() const { return isPlaced && isTurned && isOfOneType; }
};

struct Sides {
    MirrorPlane plane;
    double size = 0.0;  ///< m, from the root to the farthest joint
    double tolerance = 0.0;  ///< m, of places
    bool areMirrored = false;  ///< whether the robot as a whole is; otherwise only stated pairs count
    std::size_t named = 0;  ///< how many pairs of joints that move have names that say the side
    std::size_t proved = 0;  ///< how many of these prove to be each other's reflections
    std::vector<SidePair> pairs;
    std::vector<std::size_t> alone;  ///< joints whose name says a side, and whose counterpart the text lacks
};

/// In time that grows linearly with the number of joints, but for sorting. Without candidates there are no pairs.
Sides findSides(Records const& records, SideCandidates candidates, std::vector<PlacedJoint> const& places);

/// Makes proved pairs of joints that move, and of the actuators that drive such joints, mirrors in the records; nothing
/// where the text states mirrors itself.
void inferMirrors(Records& records);

}  // namespace Varo::Model

#endif
