#ifndef VARO_MODEL_RULES_NUMBERS_HPP
#define VARO_MODEL_RULES_NUMBERS_HPP

#include <array>
#include <charconv>
#include <string>

/// Numbers as messages show them.
namespace Varo::Model::Rules {

/// The shortest decimal number that reads back as the same single-precision value.
inline std::string shortest(float value)
{
    std::array<char, 32> digits;
    return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr};
}

/// At most six digits that count.
inline std::string rounded(double value)
{
    std::array<char, 32> digits;
    return {digits.data(),
            std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::general, 6).ptr};
}

}  // namespace Varo::Model::Rules

#endif
