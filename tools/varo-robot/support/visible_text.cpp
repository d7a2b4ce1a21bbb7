#include "support/visible_text.hpp"

#include <cstddef>

namespace Tool {

namespace {

constexpr std::size_t longestName = 512;  // bytes

struct Range {
    unsigned first;
    unsigned last;
};
constexpr Range hidden[] = {{0x00, 0x1F}, {0x7F, 0x9F}, {0x2028, 0x2029}, {0x202A, 0x202E}, {0x2066, 0x2069}};

bool isHidden(unsigned codePoint)
{
    for (Range const& range : hidden) {
        if (codePoint >= range.first && codePoint <= range.last) {
            return true;
        }
    }
    return false;
}

std::string code(char const* prefix, unsigned value, unsigned digitCount)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string text = prefix;
    for (unsigned i = digitCount; i-- > 0;) {
        text += digits[(value >> (4 * i)) & 15U];
    }
    return text;
}

struct Character {
    unsigned codePoint = 0;
    std::size_t length = 0;  ///< in bytes; 0 when the first byte begins no character
};

std::size_t lengthBehind(unsigned char first)
{
    return first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : first < 0xF5 ? 4 : 0;
}

Character firstOf(std::string_view text)
{
    auto const first = static_cast<unsigned char>(text[0]);
    std::size_t const length = lengthBehind(first);
    if (length > text.size()) {
        return {};
    }
    Character character = {length <= 1 ? first : first & (0xFFU >> (length + 1)), length};
    for (std::size_t i = 1; i < length; ++i) {
        auto const next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0U) != 0x80U) {
            return {};
        }
        character.codePoint = character.codePoint << 6U | (next & 0x3FU);
    }
    return character;
}

std::string visibleBut(char kept, std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        Character const character = firstOf(text);
        std::size_t const length = character.length == 0 ? 1 : character.length;
        if (character.length == 0) {
            result += code("\\x", static_cast<unsigned char>(text[0]), 2);
        } else if (isHidden(character.codePoint) && text[0] != kept) {
            result += code("\\u", character.codePoint, 4);
        } else {
            result += text.substr(0, length);
        }
        text.remove_prefix(length);
    }
    return result;
}

}  // namespace

std::string visible(std::string_view text)
{
    constexpr char none = '\xFF';  // begins no character
    return visibleBut(none, text);
}

std::string visibleLines(std::string_view text)
{
    return visibleBut('\n', text);
}

std::string visibleName(std::string_view file)
{
    if (file.size() <= longestName) {
        return visible(file);
    }
    std::size_t end = longestName;
    while (end > 0 && (static_cast<unsigned char>(file[end]) & 0xC0U) == 0x80U) {
        --end;
    }
    return visible(file.substr(0, end)) + "...";
}

}  // namespace Tool
