#ifndef VARO_MATH_POSITION3D_HPP
#define VARO_MATH_POSITION3D_HPP

namespace Varo::Math {

/// A point or an offset in space: metres, single precision, in the frame that its owner names. Zero by default.
struct Position3D {
    float x = 0.0F;  ///< m
    float y = 0.0F;  ///< m
    float z = 0.0F;  ///< m
};

/// Coordinate by coordinate, exactly.
inline bool operator==(Position3D const& a, Position3D const& b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

/// The contrary of `==`.
inline bool operator!=(Position3D const& a, Position3D const& b)
{
    return !(a == b);
}

}  // namespace Varo::Math

#endif
