#ifndef VARO_MODEL_UTF8_HPP
#define VARO_MODEL_UTF8_HPP

#include <cstddef>
#include <string>
#include <string_view>

namespace Varo::Model {

struct Utf8Character {
    char32_t codePoint = 0;
    std::size_t length = 0;  ///< in bytes; 0 when the bytes are no UTF-8
};

/// The first character of a text that is not empty. Overlong forms and surrogates are no UTF-8.
Utf8Character decodeUtf8(std::string_view text);

/// Appends the character, which must be one that Unicode has.
void appendUtf8(std::string& text, char32_t character);

/// Whether XML allows the character, literally or as a character reference.
bool isXmlCharacter(char32_t codePoint);

/// The number of characters, counted by their first bytes.
std::size_t countCharacters(std::string_view text);

}  // namespace Varo::Model

#endif
