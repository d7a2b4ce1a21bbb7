#include "xml/characters.hpp"

#include <algorithm>

#include "finding_codes.hpp"
#include "xml/utf8.hpp"

namespace Varo::Model {

namespace {

/// Without branches, so that compilers make it look at many bytes at a time.
constexpr bool isUnusual(char c)
{
    auto const byte = static_cast<unsigned char>(c);
    bool const isSpace = (byte == '\t') | (byte == '\n') | (byte == '\r');
    return (byte >= 0x80) | ((byte < 0x20) & !isSpace);
}

/// The first control character or byte beyond ASCII from `start` on. Nearly all bytes are usual.
std::size_t findUnusual(std::string_view text, std::size_t start)
{
    constexpr std::size_t block = 64;
    for (; start + block <= text.size(); start += block) {
        unsigned char found = 0;
        for (std::size_t i = 0; i < block; ++i) {
            found = static_cast<unsigned char>(found | (isUnusual(text[start + i]) ? 1U : 0U));
        }
        if (found != 0) {
            break;
        }
    }
    auto const rest = text.substr(start);
    auto const found = std::find_if(rest.begin(), rest.end(), isUnusual);
    return found == rest.end() ? text.npos : start + static_cast<std::size_t>(found - rest.begin());
}

}  // namespace

void CharacterCheck::check(std::string_view text, std::size_t begin, std::size_t end)
{
    bool reported = false;
    std::string_view const checked = text.substr(0, end);
    for (std::size_t at = findUnusual(checked, begin); at != checked.npos;) {
        Utf8Character const character = decodeUtf8(text.substr(at));
        if (character.length == 0 && !_encodingReported) {
            _encodingReported = true;
            _diagnostics.report(TextOffset(at), codes::badEncoding, "The bytes here are not UTF-8.",
                                "Save the text as UTF-8.");
        } else if (character.length > 0 && !isXmlCharacter(character.codePoint) && !reported) {
            reported = true;
            _diagnostics.report(TextOffset(at), codes::badCharacter, "A character that XML forbids stands here.");
        }
        at = findUnusual(checked, at + std::max<std::size_t>(character.length, 1));
    }
}

}  // namespace Varo::Model
