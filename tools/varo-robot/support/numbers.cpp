#include "support/numbers.hpp"

#include <charconv>
#include <cmath>

#include "varo/math/rpy.hpp"

namespace Tool {

namespace {

/// Long enough for the largest number in fixed notation.
using Digits = std::array<char, 512>;

template <class Number, class... Format>
std::string digitsOf(Number value, Format... format)
{
    Digits digits;
    auto const end = std::to_chars(digits.data(), digits.data() + digits.size(), value, format...).ptr;
    return {digits.data(), end};
}

/// Where only the sum or difference of roll and yaw is left, that is called yaw.
Varo::Math::Rpy readableRpy(Varo::Math::Transform const& pose)
{
    bool const isQuarterTurn = std::hypot(static_cast<double>(pose(0, 0)), static_cast<double>(pose(1, 0))) < 1e-6;
    return isQuarterTurn ? rpyWithoutRoll(pose) : rpyOf(pose);
}

}  // namespace

std::string shortest(float value)
{
    return digitsOf(value);
}

void appendShortest(std::string& text, float value)
{
    if (value == 1.0F || (value == 0.0F && !std::signbit(value))) {  // as most entries of poses are
        text += value == 1.0F ? '1' : '0';
        return;
    }
    Digits digits;
    text.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr);
}

std::string fixedPoint(double value, int decimals)
{
    std::string text = digitsOf(value, std::chars_format::fixed, decimals);
    bool const isNegativeZero = text[0] == '-' && text.find_first_not_of("-0.") == std::string::npos;
    return isNegativeZero ? text.substr(1) : text;
}

std::string rounded(double value)
{
    return digitsOf(value, std::chars_format::general, 6);
}

std::string triple(std::array<double, 3> const& values)
{
    return fixedPoint(values[0], 3) + " " + fixedPoint(values[1], 3) + " " + fixedPoint(values[2], 3);
}

std::string poseText(Varo::Math::Transform const& pose, bool degrees)
{
    constexpr double degreesPerRadian = 57.29577951308232;
    Varo::Math::Position3D const origin = pose.position();
    auto const [roll, pitch, yaw] = readableRpy(pose);
    double const unit = degrees ? degreesPerRadian : 1.0;
    return "xyz " + triple({origin.x, origin.y, origin.z}) + "  rpy " + triple({roll * unit, pitch * unit, yaw * unit});
}

}  // namespace Tool
