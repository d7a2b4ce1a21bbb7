#ifndef VARO_MODEL_DECIMAL_SIZE_HPP
#define VARO_MODEL_DECIMAL_SIZE_HPP

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <string_view>
#include <system_error>

namespace Varo::Model {

/// The power of ten that a number ends with, however large it is.
inline long long exponentOf(std::string_view number)
{
    std::size_t const mark = number.find_first_of("eE");
    if (mark == number.npos) {
        return 0;
    }
    number.remove_prefix(mark + (number.substr(mark + 1, 1) == "+" ? 2 : 1));
    long long exponent = 0;
    auto const result = std::from_chars(number.data(), number.data() + number.size(), exponent);
    constexpr long long endless = 1LL << 60;
    return result.ec == std::errc() ? exponent : number.front() == '-' ? -endless : endless;
}

/// Whether a well-formed decimal number lies between -1 and 1: of one without a place in floating point, whether it is
/// too small, and not too large, for one.
inline bool isBelowOne(std::string_view number)
{
    std::string_view const digits = number.substr(0, number.find_first_of("eE"));
    std::size_t const first = digits.find_first_of("123456789");
    if (first == digits.npos) {
        return true;
    }
    auto const point = static_cast<long long>(std::min(digits.find('.'), digits.size()));
    auto const place = static_cast<long long>(first);
    long long const digitsBeforePoint = place < point ? point - place : point + 1 - place;
    return digitsBeforePoint + exponentOf(number) <= 0;
}

}  // namespace Varo::Model

#endif
