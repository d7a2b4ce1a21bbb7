#include "varo/math/transform.hpp"

#include <algorithm>
#include <cmath>

#include <Eigen/Core>
#include <Eigen/QR>

namespace Varo::Math {

Transform Transform::fromRotX(float angle)
{
    float const c = std::cos(angle);
    float const s = std::sin(angle);
    return fromRows({1.0F, 0.0F, 0.0F, 0.0F, 0.0F, c, -s, 0.0F, 0.0F, s, c, 0.0F});
}

Transform Transform::fromRotY(float angle)
{
    float const c = std::cos(angle);
    float const s = std::sin(angle);
    return fromRows({c, 0.0F, s, 0.0F, 0.0F, 1.0F, 0.0F, 0.0F, -s, 0.0F, c, 0.0F});
}

Transform Transform::fromRotZ(float angle)
{
    float const c = std::cos(angle);
    float const s = std::sin(angle);
    return fromRows({c, -s, 0.0F, 0.0F, s, c, 0.0F, 0.0F, 0.0F, 0.0F, 1.0F, 0.0F});
}

Transform Transform::fromRpy(float roll, float pitch, float yaw)
{
    float const cr = std::cos(roll);
    float const sr = std::sin(roll);
    float const cp = std::cos(pitch);
    float const sp = std::sin(pitch);
    float const cy = std::cos(yaw);
    float const sy = std::sin(yaw);
    // Adding 0 keeps -0 out, as a product of rotations does.
    return fromRows({cy * cp + 0.0F, cy * sp * sr - sy * cr + 0.0F, cy * sp * cr + sy * sr + 0.0F, 0.0F,  //
                     sy * cp + 0.0F, sy * sp * sr + cy * cr + 0.0F, sy * sp * cr - cy * sr + 0.0F, 0.0F,  //
                     0.0F - sp, cp * sr + 0.0F, cp * cr + 0.0F, 0.0F});
}

Transform Transform::fromPosition(float x, float y, float z)
{
    return fromRows({1.0F, 0.0F, 0.0F, x, 0.0F, 1.0F, 0.0F, y, 0.0F, 0.0F, 1.0F, z});
}

std::array<float, 16> Transform::toMatrix() const
{
    std::array<float, 16> matrix = {};
    std::copy(_rows.begin(), _rows.end(), matrix.begin());
    matrix[15] = 1.0F;
    return matrix;
}

Transform& Transform::operator*=(Transform const& right)
{
    *this = *this * right;
    return *this;
}

bool Transform::isNear(Transform const& other, float tolerance) const
{
    return std::equal(_rows.begin(), _rows.end(), other._rows.begin(),
                      [tolerance](float a, float b) { return std::abs(a - b) <= tolerance; });
}

Position3D operator*(Transform const& t, Position3D const& p)
{
    auto const& m = t.rows();
    return {m[0] * p.x + m[1] * p.y + m[2] * p.z + m[3], m[4] * p.x + m[5] * p.y + m[6] * p.z + m[7],
            m[8] * p.x + m[9] * p.y + m[10] * p.z + m[11]};
}

Transform pinv(Transform const& transform)
{
    using Rows = Eigen::Matrix<float, 3, 4, Eigen::RowMajor>;
    Eigen::Map<Rows const> const rows(transform.rows().data());
    Eigen::Matrix3f const linear = rows.leftCols<3>();
    std::array<float, 12> result = {};
    Eigen::Map<Rows> inverse(result.data());
    inverse.leftCols<3>() = linear.completeOrthogonalDecomposition().pseudoInverse();
    inverse.col(3) = -inverse.leftCols<3>() * rows.col(3);
    return Transform::fromRows(result);
}

}  // namespace Varo::Math
