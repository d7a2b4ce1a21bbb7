#ifndef VARO_MATH_EIGEN_HPP
#define VARO_MATH_EIGEN_HPP

#include <array>

#include <Eigen/Core>
#include <Eigen/Geometry>

#include "varo/math/position3d.hpp"
#include "varo/math/transform.hpp"

/// For programs that compute with Eigen: the one public header that needs it. Nothing else includes it.
namespace Varo::Math {

/// Coordinate by coordinate.
inline Eigen::Vector3f toEigen(Position3D const& position)
{
    return {position.x, position.y, position.z};
}

/// Eigen takes the linear part of an isometry for a rotation, as Transform::inverse does.
inline Eigen::Isometry3f toEigen(Transform const& transform)
{
    using Rows = Eigen::Matrix<float, 3, 4, Eigen::RowMajor>;
    Eigen::Isometry3f result = Eigen::Isometry3f::Identity();
    result.affine() = Eigen::Map<Rows const>(transform.rows().data());
    return result;
}

/// From a fixed-size vector of three, rounded to single precision.
template <class Derived>
Position3D positionFromEigen(Eigen::MatrixBase<Derived> const& vector)
{
    EIGEN_STATIC_ASSERT_VECTOR_SPECIFIC_SIZE(Derived, 3)
    return {static_cast<float>(vector[0]), static_cast<float>(vector[1]), static_cast<float>(vector[2])};
}

/// From an isometry or an affine transform of space, of any precision, rounded to single precision.
template <class Scalar, int Mode, int Options>
Transform transformFromEigen(Eigen::Transform<Scalar, 3, Mode, Options> const& transform)
{
    static_assert(Mode != Eigen::Projective, "a projective transform has more than twelve entries");
    using Rows = Eigen::Matrix<float, 3, 4, Eigen::RowMajor>;
    std::array<float, 12> rows = {};
    Eigen::Map<Rows>(rows.data()) = transform.affine().template cast<float>();
    return Transform::fromRows(rows);
}

}  // namespace Varo::Math

#endif
