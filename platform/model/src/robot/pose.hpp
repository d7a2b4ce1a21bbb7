#ifndef VARO_MODEL_ROBOT_POSE_HPP
#define VARO_MODEL_ROBOT_POSE_HPP

#include <array>

#include "varo/math/transform.hpp"

namespace Varo::Model {

using Vector = std::array<double, 3>;
Vector minus(Vector const& left, Vector const& right);
double length(Vector const& vector);

/// Three rows.
using Matrix = std::array<Vector, 3>;

/// A rigid transform in double precision: records are composed in it and rounded once.
struct Pose {
    Matrix rotation = {{{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}};
    Vector translation = {0.0, 0.0, 0.0};  ///< m
};

/// At `xyz` (m), turned by roll, pitch and yaw (rad) about the fixed axes.
Pose poseFrom(Vector const& xyz, Vector const& rpy);

/// The shortest rotation that takes z to the direction of `axis`, which must not be zero; half a turn about x when that
/// is -z.
Matrix rotationFromZ(Vector const& axis);

Matrix transposed(Matrix const& matrix);
Matrix operator*(Matrix const& left, Matrix const& right);
Vector operator*(Matrix const& left, Vector const& right);
Pose operator*(Pose const& left, Pose const& right);
Pose inverse(Pose const& pose);

Math::Transform toTransform(Pose const& pose);
Pose fromTransform(Math::Transform const& transform);
Math::Position3D toPosition(Vector const& vector);

}  // namespace Varo::Model

#endif
