#ifndef VARO_MODEL_URDF_SHORT_POSES_HPP
#define VARO_MODEL_URDF_SHORT_POSES_HPP

#include <cstddef>

#include "robot/pose.hpp"

/// Numbers for a text, as few digits as there can be, of which the reader makes the very transforms of a record.
///
/// Records are rounded to single precision, so that many poses give the same record: those that people write are tried
/// first, then any.
namespace Varo::Model::Urdf {

struct StatedPose {
    Vector xyz = {};  ///< m
    Vector rpy = {};  ///< rad
};

/// Searches for such numbers for one text. Where very many of them are hard to find, the later ones are only looked for
/// among the likely ones, and come close.
class ShortPoses {
public:
    /// The direction whose joint has that end transform; the z axis seen through it where none does.
    Vector axisOf(Math::Transform const& end);

    /// The pose between two given ones that makes their product `whole`; one close to it where none makes it exactly.
    StatedPose poseBetween(Pose const& before, Math::Transform const& whole, Pose const& behind);

    /// The same of a pose that the record has as the text states it, down to the signs of its zeros.
    StatedPose poseOf(Math::Transform const& whole);

private:
    std::size_t _triesLeft = 10'000'000;  ///< a robot of hundred joints with poses of many digits takes 100,000
};

Pose toPose(Math::Transform const& transform);

/// The number that the shortest text stands for of all that are `value` in single precision.
double shortest(float value);

}  // namespace Varo::Model::Urdf

#endif
