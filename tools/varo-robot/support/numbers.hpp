#ifndef TOOL_SUPPORT_NUMBERS_HPP
#define TOOL_SUPPORT_NUMBERS_HPP

#include <array>
#include <string>

#include "varo/math/transform.hpp"

/// Numbers as text, whatever the locale.
namespace Tool {

/// The shortest decimal number that reads back as the same single-precision value.
std::string shortest(float value);
void appendShortest(std::string& text, float value);

/// With `decimals` digits behind the point; never a negative zero.
std::string fixedPoint(double value, int decimals);

/// For eyes: at most six digits that count.
std::string rounded(double value);

/// "x y z" with three decimals each.
std::string triple(std::array<double, 3> const& values);

/// For eyes: the origin (m), then roll, pitch and yaw (rad, or degrees) about fixed axes.
std::string poseText(Varo::Math::Transform const& pose, bool degrees = false);

}  // namespace Tool

#endif
