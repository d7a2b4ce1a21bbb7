#include "varo/math/transform.hpp"

#include <algorithm>
#include <cmath>

#include <Eigen/Core>
#include <Eigen/QR>

#include "varo/math/rpy.hpp"

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
    auto r = rotationFromRpy(roll, pitch, yaw);
    for (float& entry : r) {
        entry += 0.0F;  // keeps -0 out, as a product of rotations does
    }
    return fromRows({r[0], r[1], r[2], 0.0F, r[3], r[4], r[5], 0.0F, r[6], r[7], r[8], 0.0F});
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
