#include "xml/markup.hpp"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <system_error>

#include "varo/model/diagnostics.hpp"
#include "xml/raw_tag.hpp"
#include "xml/utf8.hpp"

namespace Varo::Model {

namespace {

constexpr std::size_t deepestPath = 16;  // steps; beyond it the innermost are shown
constexpr std::size_t longestTagForPath = 4096;  // bytes, beyond which no name is looked for

bool startsWith(std::string_view text, std::size_t offset, std::string_view prefix)
{
    return text.substr(offset, prefix.size()) == prefix;
}

/// The offset behind the first `close` from `start` on.
std::size_t behind(std::string_view text, std::size_t start, std::string_view close)
{
    std::size_t const found = text.find(close, start);
    return found == text.npos ? found : found + close.size();
}

/// Its quoted texts, comments and brackets may hold anything.
std::size_t endOfDocumentType(std::string_view text, std::size_t position)
{
    int brackets = 0;
    while (position < text.size()) {
        char const c = text[position];
        if (c == '>' && brackets == 0) {
            return position + 1;
        }
        if (startsWith(text, position, "<!--")) {
            position = text.find("-->", position + 4);
        } else if (c == '"' || c == '\'') {
            position = text.find(c, position + 1);
        }
        brackets += c == '[' ? 1 : c == ']' ? -1 : 0;
        position = position == text.npos ? position : position + 1;
    }
    return text.npos;
}

/// The value with its references replaced by what they stand for.
std::string unescaped(std::string_view value)
{
    std::string result;
    while (!value.empty()) {
        std::size_t const plain = std::min(value.find('&'), value.size());
        result += value.substr(0, plain);
        value.remove_prefix(plain);
        std::size_t const close = value.find(';');  // without which a reference is none
        auto const character = close == value.npos ? std::nullopt : referencedCharacter(value.substr(1, close - 1));
        if (character) {
            appendUtf8(result, *character);
            value.remove_prefix(close + 1);
        } else if (!value.empty()) {
            result += '&';
            value.remove_prefix(1);
        }
    }
    return result;
}

/// One step of a path: `/joint[@name="HeadYaw"]`, or just `/joint` for an element without a name.
std::string pathStep(std::string_view element, std::string_view name)
{
    std::string const quotedElement = quoted(element);
    std::string step = "/" + quotedElement.substr(1, quotedElement.size() - 2);
    if (!name.empty()) {
        step += "[@name=" + quoted(unescaped(name)) + "]";
    }
    return step;
}

}  // namespace

Markup markupAt(std::string_view text, std::size_t offset)
{
    char const next = offset + 1 < text.size() ? text[offset + 1] : '\0';
    switch (next) {
    case '/': return Markup::endTag;
    case '?': return Markup::instruction;
    case '!': break;
    default: return Markup::startTag;
    }
    return startsWith(text, offset, "<!--")        ? Markup::comment
           : startsWith(text, offset, "<![CDATA[") ? Markup::characterData
                                                   : Markup::documentType;
}

std::size_t endOfMarkup(std::string_view text, std::size_t offset, Markup markup)
{
    switch (markup) {
    case Markup::endTag: return behind(text, offset, ">");
    case Markup::comment: return behind(text, offset + 4, "-->");
    case Markup::characterData: return behind(text, offset, "]]>");
    case Markup::instruction: return behind(text, offset + 2, "?>");
    case Markup::documentType: return endOfDocumentType(text, offset + 2);
    case Markup::startTag: break;
    }
    return text.npos;
}

std::optional<MarkupToken> nextMarkup(std::string_view text, std::size_t position)
{
    MarkupToken token;
    token.begin = text.find('<', position);
    if (token.begin == text.npos) {
        return {};
    }
    token.kind = markupAt(text, token.begin);
    if (token.kind != Markup::startTag) {
        token.end = endOfMarkup(text, token.begin, token.kind);
        return token.end == text.npos ? std::nullopt : std::optional(token);
    }
    RawTag tag(text, token.begin);
    for (RawAttribute attribute; tag.next(attribute);) {
    }
    token.end = tag.isBroken() ? text.size() : tag.end();  // what is broken is still an element, with all behind it
    token.isEmptyElement = tag.isEmptyElement();
    return token;
}

std::string_view elementAt(std::string_view text, std::size_t offset)
{
    std::size_t depth = 0;
    for (auto token = nextMarkup(text, offset); token; token = nextMarkup(text, token->end)) {
        depth += token->kind == Markup::startTag && !token->isEmptyElement ? 1 : 0;
        depth -= token->kind == Markup::endTag ? 1 : 0;
        if (depth == 0) {
            return text.substr(offset, token->end - offset);
        }
    }
    return text.substr(offset);
}

std::string_view attributeAt(std::string_view text, std::size_t offset)
{
    std::size_t const quote = text.find_first_of("\"'", offset);
    std::size_t const close = quote == text.npos ? quote : text.find(text[quote], quote + 1);
    return close == text.npos ? std::string_view() : text.substr(offset, close + 1 - offset);
}

std::size_t byteOrderMarkSize(std::string_view text)
{
    std::string_view const mark = "\xEF\xBB\xBF";
    return startsWith(text, 0, mark) ? mark.size() : 0;
}

std::optional<char32_t> referencedCharacter(std::string_view reference)
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

void OpenElements::advanceTo(std::size_t offset)
{
    while (true) {
        if (_closesAt <= offset) {
            _startTags.pop_back();
            _closesAt = std::string_view::npos;
        }
        auto const token = nextMarkup(_text, _position);
        if (!token || token->begin > offset) {
            return;
        }
        if (token->kind == Markup::startTag) {
            _startTags.push_back(token->begin);
        }
        bool const isEnd = token->kind == Markup::endTag && !_startTags.empty();
        _closesAt = isEnd || token->isEmptyElement ? token->end : _closesAt;
        _position = token->end;
    }
}

std::string OpenElements::path() const
{
    std::size_t const first = _startTags.size() > deepestPath ? _startTags.size() - deepestPath : 0;
    std::string path = first > 0 ? "/..." : "";
    for (std::size_t i = first; i < _startTags.size(); ++i) {
        RawTag tag(_text.substr(0, _startTags[i] + longestTagForPath), _startTags[i]);
        std::string_view name;
        // There is but one root element, and its name is the robot's.
        for (RawAttribute attribute; i > 0 && name.empty() && tag.next(attribute);) {
            name = attribute.name == "name" ? attribute.value : "";
        }
        path += tag.name().empty() ? "" : pathStep(tag.name(), name);
    }
    return path;
}

}  // namespace Varo::Model
