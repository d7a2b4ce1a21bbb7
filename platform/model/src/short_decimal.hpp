#ifndef VARO_MODEL_SHORT_DECIMAL_HPP
#define VARO_MODEL_SHORT_DECIMAL_HPP

#include <algorithm>
#include <cfloat>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <type_traits>

namespace Varo::Model {

/// Reads the number that the text begins with, if it is made of digits, with a point and a minus or without: the very
/// number that `std::from_chars` reads, but faster. The number of characters read; 0 when there is no such number, or
/// it has so many digits that it has to be left to `std::from_chars`.
///
/// Such a number is the quotient of an integer and a power of ten. Where both are floating-point numbers without
/// rounding, one division gives the number that is nearest to it (Clinger 1990).
template <class Float>
std::size_t parseShortDecimal(std::string_view text, Float& value)
{
    static constexpr double powers[] = {1e0, 1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,
                                        1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17};
    constexpr std::ptrdiff_t mostDecimals = std::is_same_v<Float, float> ? 10 : 17;  // beyond, powers are rounded
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
    if (digitCount == 0 || digits > largestExact || decimals > mostDecimals || FLT_EVAL_METHOD != 0) {
        return 0;
    }
    auto const number = static_cast<Float>(static_cast<std::int64_t>(digits)) / static_cast<Float>(powers[decimals]);
    value = negative ? -number : number;
    return static_cast<std::size_t>(at - text.data());
}

}  // namespace Varo::Model

#endif
