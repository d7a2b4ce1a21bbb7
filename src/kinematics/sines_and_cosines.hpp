#ifndef VARO_KINEMATICS_SINES_AND_COSINES_HPP
#define VARO_KINEMATICS_SINES_AND_COSINES_HPP

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

// Sines and cosines of many angles. One by one, std::sin and std::cos would take longer than all the rest of a pose.
namespace Sim {

/// 1 / n!, by which the terms of the Taylor series are multiplied.
constexpr double inverseFactorial(int n)
{
    double factorial = 1.0;
    for (int i = 2; i <= n; ++i) {
        factorial *= i;
    }
    return 1.0 / factorial;
}

inline std::uint64_t bitsOf(double value)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

inline double fromBits(std::uint64_t bits)
{
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

/// Angles beyond this (rad) have lost the digits that `sineAndCosine` needs.
constexpr double largestReducibleAngle = 1e6;

/// Within 2e-16 of the true values. Without a branch, so that compilers compute several at once.
///
/// The angle is reduced to an eighth of a turn about a multiple of the quarter turn, which is subtracted in two parts
/// (Cody and Waite, Software Manual for the Elementary Functions, 1980); there the Taylor series suffice.
inline void sineAndCosine(double angle, double& sine, double& cosine)
{
    constexpr double quarterTurnsPerRadian = 0.63661977236758134308;
    constexpr double quarterTurnHigh = 1.57079632673412561417;  // its first 33 bits, so that a multiple is exact
    constexpr double quarterTurnLow = 6.07710050650619224932e-11;
    constexpr double rounder = 6755399441055744.0;  // 1.5 * 2^52: what is added to it is rounded to a whole number
    constexpr auto f = inverseFactorial;

    double const shifted = angle * quarterTurnsPerRadian + rounder;
    double const turns = shifted - rounder;
    std::uint64_t const quadrant = bitsOf(shifted);  // in the lowest two bits
    double const x = (angle - turns * quarterTurnHigh) - turns * quarterTurnLow;
    double const y = x * x;
    double const s =
        x + x * y * (-f(3) + y * (f(5) + y * (-f(7) + y * (f(9) + y * (-f(11) + y * (f(13) - y * f(15)))))));
    double const c =
        1.0 - y * (f(2) - y * (f(4) - y * (f(6) - y * (f(8) - y * (f(10) - y * (f(12) - y * (f(14) - y * f(16))))))));

    std::uint64_t const swapped = 0U - (quadrant & 1U);  // all bits or none
    std::uint64_t const sineBits = (bitsOf(s) & ~swapped) | (bitsOf(c) & swapped);
    std::uint64_t const cosineBits = (bitsOf(c) & ~swapped) | (bitsOf(s) & swapped);
    sine = fromBits(sineBits ^ ((quadrant & 2U) << 62U));
    cosine = fromBits(cosineBits ^ (((quadrant + 1U) & 2U) << 62U));
}

/// Of `count` angles (rad), which are finite.
inline void sinesAndCosines(double const* angles, std::size_t count, double* sines, double* cosines)
{
    for (std::size_t i = 0; i < count; ++i) {
        sineAndCosine(angles[i], sines[i], cosines[i]);
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (std::abs(angles[i]) > largestReducibleAngle) {
            sines[i] = std::sin(angles[i]);
            cosines[i] = std::cos(angles[i]);
        }
    }
}

}  // namespace Sim

#endif
