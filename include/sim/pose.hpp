#ifndef SIM_POSE_HPP
#define SIM_POSE_HPP

#include <array>
#include <cstddef>

#include "varo/export.hpp"
#include "varo/math/transform.hpp"

namespace Sim {

/// Three coordinates: a point (m), or a direction.
using Vector3 = std::array<double, 3>;

/// The pose of one frame in another, in double precision: what Kinematics answers with.
///
/// Twelve doubles without padding: the upper three rows of the homogeneous 4x4 matrix, row by row, as in
/// Varo::Math::Transform. The left 3x3 block is the rotation, the right column the translation in metres. The product
/// composes from left to right: if `a` is the pose of frame A in the world and `b` that of B in A, `a * b` is that of B
/// in the world.
///
/// A plain value that nothing checks. Never throws.
struct VAROROBOTMODEL_API Pose {
    /// The twelve entries; those of the identity unless said otherwise.
    std::array<double, 12> rows = {1.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0};

    /// Exactly the single-precision entries.
    static Pose fromTransform(Varo::Math::Transform const& transform);
    /// Rounded to single precision.
    Varo::Math::Transform toTransform() const;

    /// The entry in row 0 to 2 and column 0 to 3 (column 3 is the translation). No bounds check.
    constexpr double operator()(int row, int column) const
    {
        return rows[static_cast<std::size_t>(row) * 4 + static_cast<std::size_t>(column)];
    }
    /// The translation: where the frame's origin is (m).
    constexpr Vector3 position() const { return {rows[3], rows[7], rows[11]}; }
    /// A column of the rotation: the frame's x, y or z axis for 0, 1 or 2. No bounds check.
    constexpr Vector3 axis(int column) const { return {(*this)(0, column), (*this)(1, column), (*this)(2, column)}; }

    /// The inverse, of the rotation as it is: one that was rounded is inverted with its rounding, not transposed. Not
    /// finite when the left 3x3 block has no inverse.
    Pose inverse() const;
};

/// The product, from left to right as Pose says.
constexpr Pose operator*(Pose const& left, Pose const& right)
{
    Pose product;
    for (std::size_t row = 0; row < 12; row += 4) {
        for (std::size_t column = 0; column < 4; ++column) {
            double const translation = column == 3 ? left.rows[row + 3] : 0.0;
            product.rows[row + column] = left.rows[row] * right.rows[column] +
                                         left.rows[row + 1] * right.rows[column + 4] +
                                         left.rows[row + 2] * right.rows[column + 8] + translation;
        }
    }
    return product;
}

/// The coordinates of `point`, given in the posed frame, in the frame that it is posed in.
constexpr Vector3 operator*(Pose const& pose, Vector3 const& point)
{
    auto const& m = pose.rows;
    return {m[0] * point[0] + m[1] * point[1] + m[2] * point[2] + m[3],
            m[4] * point[0] + m[5] * point[1] + m[6] * point[2] + m[7],
            m[8] * point[0] + m[9] * point[1] + m[10] * point[2] + m[11]};
}

/// Entry by entry, exactly.
inline bool operator==(Pose const& a, Pose const& b)
{
    return a.rows == b.rows;
}

/// The contrary of `==`.
inline bool operator!=(Pose const& a, Pose const& b)
{
    return !(a == b);
}

}  // namespace Sim

#endif
