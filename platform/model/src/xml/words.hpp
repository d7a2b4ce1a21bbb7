#ifndef VARO_MODEL_WORDS_HPP
#define VARO_MODEL_WORDS_HPP

#include <cstddef>
#include <string_view>

#include "xml/bytes.hpp"

namespace Varo::Model {

// Closures, so that calls are inlined.
constexpr auto isXmlSpace = [](char c) { return isByte(c, ofSpace); };
constexpr auto isOfWord = [](char c) { return !isXmlSpace(c); };

/// The first offset from `start` on whose character does not `belong`.
template <class Belong>
std::size_t endOf(std::string_view text, std::size_t start, Belong belong)
{
    while (start < text.size() && belong(text[start])) {
        ++start;
    }
    return start;
}

/// Without the plus that a number may have and `std::from_chars` does not take.
inline std::string_view withoutPlus(std::string_view number)
{
    if (number.size() > 1 && number[0] == '+' && number[1] != '-') {
        number.remove_prefix(1);
    }
    return number;
}

}  // namespace Varo::Model

#endif
