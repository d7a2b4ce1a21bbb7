#include "xml/decoding.hpp"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <system_error>

#include "xml/utf8.hpp"

namespace Varo::Model {

namespace {

/// The characters that mean others, or begin what does.
std::string_view specialCharacters(XmlContext context)
{
    switch (context) {
    case XmlContext::attribute: return "&\t\n\r";
    case XmlContext::text: return "&\r";
    case XmlContext::characterData: break;
    }
    return "\r";
}

/// The character of that name; none for what XML does not know or allow.
std::optional<char32_t> characterOf(std::string_view reference)
{
    struct Known {
        std::string_view name;
        char32_t character;
    };
    for (auto const& [name, character] :
         {Known{"amp", U'&'}, Known{"lt", U'<'}, Known{"gt", U'>'}, Known{"quot", U'"'}, Known{"apos", U'\''}}) {
        if (reference == name) {
            return character;
        }
    }
    if (reference.size() < 2 || reference[0] != '#') {
        return {};
    }
    int const base = reference[1] == 'x' ? 16 : 10;
    std::string_view const digits = reference.substr(base == 16 ? 2 : 1);
    std::uint32_t codePoint = 0;
    auto const [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), codePoint, base);
    bool const isCharacter =
        error == std::errc() && end == digits.data() + digits.size() && isXmlCharacter(char32_t{codePoint});
    return isCharacter ? std::optional(char32_t{codePoint}) : std::nullopt;
}

/// Appends what the reference that the text begins with stands for, or its `&`. The size of what is taken.
std::size_t appendReference(std::string_view text, std::string& out)
{
    Reference const reference = referenceAt(text);
    if (reference.character) {
        appendUtf8(out, *reference.character);
        return reference.name.size() + 2;
    }
    out += '&';
    return 1;
}

}  // namespace

Reference referenceAt(std::string_view text)
{
    constexpr std::size_t longest = 32;  // bytes
    std::string_view const rest = text.substr(1, longest);
    Reference reference;
    reference.name = rest.substr(0, std::min(rest.find(';'), rest.find('&')));
    reference.isClosed = reference.name.size() < rest.size() && rest[reference.name.size()] == ';';
    reference.character = reference.isClosed ? characterOf(reference.name) : std::nullopt;
    return reference;
}

bool needsDecoding(std::string_view raw, XmlContext context)
{
    return raw.find_first_of(specialCharacters(context)) != raw.npos;
}

void appendDecoded(std::string_view raw, XmlContext context, std::string& out)
{
    std::string_view const special = specialCharacters(context);
    while (!raw.empty()) {
        std::size_t const plain = std::min(raw.find_first_of(special), raw.size());
        out += raw.substr(0, plain);
        raw.remove_prefix(plain);
        if (raw.empty()) {
            return;
        }
        if (raw[0] == '&') {
            raw.remove_prefix(appendReference(raw, out));
        } else {
            out += context == XmlContext::attribute ? ' ' : '\n';
            raw.remove_prefix(raw.substr(0, 2) == "\r\n" ? 2 : 1);
        }
    }
}

}  // namespace Varo::Model
