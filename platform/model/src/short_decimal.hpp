#ifndef VARO_MODEL_SHORT_DECIMAL_HPP
#define VARO_MODEL_SHORT_DECIMAL_HPP

#include <algorithm>
#include <cfloat>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string_view>
#include <type_traits>

namespace Varo::Model {

/// Reads the exponent that may begin there. Answers with the end of it.
inline char const* takeExponent(char const* at, char const* end, std::ptrdiff_t& exponent)
{
    if (at == end || (*at != 'e' && *at != 'E')) {
        return at;
    }
    char const* const sign = at + 1;
    bool const isSigned = sign != end && (*sign == '-' || *sign == '+');
    char const* const start = sign + (isSigned ? 1 : 0);
    char const* digit = start;
    for (; digit != end && *digit >= '0' && *digit <= '9'; ++digit) {
        constexpr std::ptrdiff_t beyondAll = 9999;
        exponent = std::min(exponent * 10 + (*digit - '0'), beyondAll);
    }
    exponent = isSigned && *sign == '-' ? -exponent : exponent;
    return digit == start ? at : digit;
}

/// Reads the decimal number that the text begins with, the very one that `std::from_chars` reads, but faster. The
/// number of characters read; 0 when there is no such number, or it has so many digits or so large an exponent that it
/// has to be left to `std::from_chars`. Of a longer number, a part may be read: whoever asks has to look at what
/// follows.
///
/// Such a number is the quotient or the product of an integer and a power of ten. Where both are floating-point numbers
/// without rounding, one operation gives the number that is nearest to it (Clinger 1990).
template <class Float>
std::size_t parseShortDecimal(std::string_view text, Float& value)
{
    static constexpr double powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                        1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    constexpr std::ptrdiff_t greatestPower = std::is_same_v<Float, float> ? 10 : 22;  // beyond, they are rounded
    constexpr std::uint64_t largestExact = std::uint64_t{1}
                                           << static_cast<unsigned>(std::numeric_limits<Float>::digits);
    constexpr std::size_t longest = 19;  // characters, so that the digits fit into 64 bits

    char const* const end = text.data() + std::min(text.size(), longest);
    bool const negative = !text.empty() && text.front() == '-';
    std::uint64_t digits = 0;
    auto const takeDigits = [&digits, end](char const* at) {
        for (; at != end && *at >= '0' && *at <= '9'; ++at) {
            digits = digits * 10 + static_cast<std::uint64_t>(*at - '0');
        }
        return at;
    };
    char const* const start = text.data() + (negative ? 1 : 0);
    char const* at = takeDigits(start);
    std::ptrdiff_t digitCount = at - start;
    std::ptrdiff_t decimals = 0;
    if (at != end && *at == '.') {
        char const* const point = at;
        at = takeDigits(point + 1);
        decimals = at - point - 1;
        digitCount += decimals;
    }
    if (digitCount == 0 || digits > largestExact || FLT_EVAL_METHOD != 0) {
        return 0;
    }
    std::ptrdiff_t exponent = 0;
    at = takeExponent(at, text.data() + text.size(), exponent);
    exponent -= decimals;
    if (exponent < -greatestPower || exponent > greatestPower) {
        return 0;
    }
    auto const integer = static_cast<Float>(static_cast<std::int64_t>(digits));
    auto const power = static_cast<Float>(powers[std::abs(exponent)]);
    Float const number = exponent < 0 ? integer / power : integer * power;
    value = negative ? -number : number;
    return static_cast<std::size_t>(at - text.data());
}

}  // namespace Varo::Model

#endif
