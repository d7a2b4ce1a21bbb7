#ifndef VARO_MODEL_ROBOT_LIMBS_HPP
#define VARO_MODEL_ROBOT_LIMBS_HPP

#include <vector>

#include "robot/mirror_pairs.hpp"

namespace Varo::Model {

/// Finds which of the pairs are limbs or of limbs, what carries them, and which joints lack a limb's counterpart:
/// sets these members of `sides` and of its pairs. `isMarked` says by joint whether its name says a side in words.
void findLimbs(Records const& records, std::vector<PlacedJoint> const& places, std::vector<bool> const& isMarked,
               Sides& sides);

}  // namespace Varo::Model

#endif
