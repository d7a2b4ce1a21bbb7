#ifndef VARO_MATH_TRANSFORM_HPP
#define VARO_MATH_TRANSFORM_HPP

#include <array>
#include <cstddef>

#include "varo/export.hpp"
#include "varo/math/position3d.hpp"

namespace Varo::Math {

/// A rigid transform: the pose of one frame in another, or the map of coordinates from the first to the second.
///
/// Stored as the upper three rows of the homogeneous 4x4 matrix, row by row, in single precision: the left 3x3 block is
/// the rotation, the right column the translation in metres. The product composes from left to right: if `a` is the
/// pose of frame A in the world and `b` that of B in A, `a * b` is that of B in the world.
///
/// A value type without invariants of its own: nothing checks that the linear part is a rotation. Never throws. Angles
/// are in radians, positive by the right-hand rule.
class VAROROBOTMODEL_API Transform {
public:
    /// The identity.
    constexpr Transform() = default;

    /// From the twelve entries of the upper three rows, row by row.
    static constexpr Transform fromRows(std::array<float, 12> const& rows) { return Transform(rows); }
    /// The rotation by `angle` (rad) about x.
    static Transform fromRotX(float angle);
    /// The rotation by `angle` (rad) about y.
    static Transform fromRotY(float angle);
    /// The rotation by `angle` (rad) about z.
    static Transform fromRotZ(float angle);
    /// Roll about x, then pitch about y, then yaw about z, all fixed axes: Rz(yaw) * Ry(pitch) * Rx(roll).
    static Transform fromRpy(float roll, float pitch, float yaw);
    /// The translation by x, y and z (m), without rotation.
    static Transform fromPosition(float x, float y, float z);

    /// The entry in row 0 to 2 and column 0 to 3 (column 3 is the translation). No bounds check.
    constexpr float operator()(int row, int column) const
    {
        return _rows[static_cast<std::size_t>(row) * 4 + static_cast<std::size_t>(column)];
    }
    /// The twelve entries of the upper three rows, row by row.
    constexpr std::array<float, 12> const& rows() const { return _rows; }
    /// All sixteen entries of the homogeneous matrix, row by row; the last row is 0 0 0 1.
    std::array<float, 16> toMatrix() const;
    /// The translation: where the frame's origin is (m).
    Position3D position() const { return {_rows[3], _rows[7], _rows[11]}; }

    /// The inverse of a rigid transform: transposed rotation, translation turned back. Exact up to rounding when the
    /// linear part is a rotation, and meaningless otherwise (see pinv).
    constexpr Transform inverse() const
    {
        auto const& m = _rows;
        return Transform({m[0], m[4], m[8], -(m[0] * m[3] + m[4] * m[7] + m[8] * m[11]), m[1], m[5], m[9],
                          -(m[1] * m[3] + m[5] * m[7] + m[9] * m[11]), m[2], m[6], m[10],
                          -(m[2] * m[3] + m[6] * m[7] + m[10] * m[11])});
    }
    /// The product with `right` to the right of this one, in place.
    Transform& operator*=(Transform const& right);

    /// True when no entry differs by more than `tolerance`.
    bool isNear(Transform const& other, float tolerance = 1e-4F) const;

private:
    constexpr explicit Transform(std::array<float, 12> const& rows) : _rows(rows) {}

    std::array<float, 12> _rows = {1.0F, 0.0F, 0.0F, 0.0F, 0.0F, 1.0F, 0.0F, 0.0F, 0.0F, 0.0F, 1.0F, 0.0F};
};

/// The product, from left to right as Transform says: the right one's map comes first.
constexpr Transform operator*(Transform const& left, Transform const& right)
{
    auto const& a = left.rows();
    auto const& b = right.rows();
    std::array<float, 12> product = {};
    for (std::size_t row = 0; row < 12; row += 4) {
        for (std::size_t column = 0; column < 4; ++column) {
            float const translation = column == 3 ? a[row + 3] : 0.0F;
            product[row + column] =
                a[row] * b[column] + a[row + 1] * b[column + 4] + a[row + 2] * b[column + 8] + translation;
        }
    }
    return Transform::fromRows(product);
}

/// The coordinates of `point` after the transform.
VAROROBOTMODEL_API Position3D operator*(Transform const& transform, Position3D const& point);

/// Entry by entry, exactly.
inline bool operator==(Transform const& a, Transform const& b)
{
    return a.rows() == b.rows();
}

/// The contrary of `==`.
inline bool operator!=(Transform const& a, Transform const& b)
{
    return !(a == b);
}

/// The inverse for a transform whose linear part need not be a rotation, nor even invertible: the Moore-Penrose inverse
/// P of the linear part (Penrose 1955), and -P * t as translation. Equals `inverse()`, up to rounding, on rigid
/// transforms.
VAROROBOTMODEL_API Transform pinv(Transform const& transform);

}  // namespace Varo::Math

#endif
