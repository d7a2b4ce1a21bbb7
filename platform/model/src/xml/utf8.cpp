#include "xml/utf8.hpp"

#include <algorithm>

namespace Varo::Model {

namespace {

bool isContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Length of the sequence that the lead byte opens; 0 for a byte that opens none.
std::size_t sequenceLength(unsigned char lead)
{
    if (lead < 0x80U) {
        return 1;
    }
    if (lead < 0xC2U || lead > 0xF4U) {
        return 0;
    }
    return lead < 0xE0U ? 2 : lead < 0xF0U ? 3 : 4;
}

}  // namespace

Utf8Character decodeUtf8(std::string_view text)
{
    static constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    auto const lead = static_cast<unsigned char>(text.front());
    std::size_t const length = sequenceLength(lead);
    if (length <= 1) {
        return {lead, length};
    }
    if (length > text.size() ||
        !std::all_of(text.begin() + 1, text.begin() + static_cast<std::ptrdiff_t>(length), isContinuation)) {
        return {};
    }
    char32_t codePoint = lead & (0x7FU >> length);
    for (char const byte : text.substr(1, length - 1)) {
        codePoint = (codePoint << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    bool const surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (codePoint < smallest[length] || surrogate || codePoint > 0x10FFFF) {
        return {};
    }
    return {codePoint, length};
}

void appendUtf8(std::string& text, char32_t character)
{
    int const followers = character < 0x80 ? 0 : character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    static constexpr unsigned leads[] = {0x00, 0xC0, 0xE0, 0xF0};
    text += static_cast<char>(leads[followers] | (character >> (6 * followers)));
    for (int follower = followers - 1; follower >= 0; --follower) {
        text += static_cast<char>(0x80U | ((character >> (6 * follower)) & 0x3FU));
    }
}

bool isXmlCharacter(char32_t codePoint)
{
    if (codePoint < 0x20) {
        return codePoint == '\t' || codePoint == '\n' || codePoint == '\r';
    }
    return codePoint <= 0xD7FF || (codePoint >= 0xE000 && codePoint <= 0xFFFD) ||
           (codePoint >= 0x10000 && codePoint <= 0x10FFFF);
}

std::size_t countCharacters(std::string_view text)
{
    auto const followers = std::count_if(text.begin(), text.end(), isContinuation);
    return text.size() - static_cast<std::size_t>(followers);
}

}  // namespace Varo::Model
