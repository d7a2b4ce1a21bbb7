#ifndef VARO_MATH_RPY_HPP
#define VARO_MATH_RPY_HPP

#include <array>
#include <cmath>

#include "varo/export.hpp"
#include "varo/math/transform.hpp"

namespace Varo::Math {

/// A rotation about x, then one about y, then one about z, all of them fixed axes, in radians.
struct Rpy {
    double roll = 0.0;  ///< rad, about x
    double pitch = 0.0;  ///< rad, about y
    double yaw = 0.0;  ///< rad, about z
};

/// The rotation matrix Rz(yaw) * Ry(pitch) * Rx(roll), row by row, in the precision of the angles (rad).
template <class Number>
std::array<Number, 9> rotationFromRpy(Number roll, Number pitch, Number yaw)
{
    Number const sr = std::sin(roll);
    Number const cr = std::cos(roll);
    Number const sp = std::sin(pitch);
    Number const cp = std::cos(pitch);
    Number const sy = std::sin(yaw);
    Number const cy = std::cos(yaw);
    return {cy * cp,
            cy * sp * sr - sy * cr,
            cy * sp * cr + sy * sr,  //
            sy * cp,
            sy * sp * sr + cy * cr,
            sy * sp * cr - cy * sr,  //
            Number(0) - sp,
            cp * sr,
            cp * cr};
}

/// The angles of the transform's rotation, the pitch within a quarter turn. The closer the pitch is to a quarter turn,
/// the less the matrix says of roll and yaw apart: see rpyWithoutRoll.
VAROROBOTMODEL_API Rpy rpyOf(Transform const& transform);

/// The same with all of the turn about the common axis called yaw, where the pitch is a quarter turn: roll and yaw then
/// turn about the same axis. Without meaning elsewhere.
VAROROBOTMODEL_API Rpy rpyWithoutRoll(Transform const& transform);

}  // namespace Varo::Math

#endif
