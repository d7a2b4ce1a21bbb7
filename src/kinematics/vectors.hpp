#ifndef VARO_KINEMATICS_VECTORS_HPP
#define VARO_KINEMATICS_VECTORS_HPP

#include "sim/pose.hpp"

// The little algebra of vectors that Jacobians and masses need.
namespace Sim {

constexpr Vector3 cross(Vector3 const& a, Vector3 const& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

constexpr Vector3 sum(Vector3 const& a, Vector3 const& b)
{
    return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}

constexpr Vector3 scaled(double factor, Vector3 const& a)
{
    return {factor * a[0], factor * a[1], factor * a[2]};
}

/// A direction after the pose, which its origin does not matter to.
constexpr Vector3 rotated(Pose const& pose, Vector3 const& direction)
{
    return sum(pose * direction, scaled(-1.0, pose.position()));
}

}  // namespace Sim

#endif
