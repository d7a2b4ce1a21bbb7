#include <cstring>

#include "xml/bytes.hpp"
#include "xml/parser.hpp"

/// Tags, texts and comments that need no closer look: all of ASCII, without control characters, without references,
/// without white space where mere style puts it, and surely right.
namespace Varo::Model {

namespace {

/// Which of 64 bits stands for an attribute's name: names with different bits differ.
std::uint64_t bitOf(char const* begin, char const* end)
{
    auto const mixed = static_cast<unsigned>(*begin + 11 * begin[(end - begin) / 2] + 17 * end[-1]);
    return std::uint64_t{1} << (mixed % 64);
}

/// Null for other markup than a comment, too.
char const* endOfPlainComment(char const* less)
{
    if (less[2] != '-' || less[3] != '-') {
        return nullptr;
    }
    for (char const* at = less + 4;; ++at) {
        at = skip<ofPlainComment>(at);
        if (at[0] != '-') {
            return nullptr;
        }
        if (at[1] == '-') {
            return at[2] == '>' ? at + 3 : nullptr;
        }
    }
}

}  // namespace

/// Nearly everything is plain, and there is nothing to say of it.
void XmlParser::takePlainTokens()
{
    char const* const text = _text.data();
    while (char const* const end = takePlainToken(text + _position)) {
        _position = static_cast<std::size_t>(end - text);
    }
}

// Each of these answers with the end of what it takes; with null, and nothing done, where that takes a closer look.

char const* XmlParser::takePlainToken(char const* begin)
{
    char const* const mark = skip<ofSpace>(begin);
    if (*mark == '<') {
        return isOutsideRoot() ? takePlainMarkupOutsideRoot(mark) : takePlainMarkup(mark);
    }
    return isOutsideRoot() ? nullptr : takePlainText(begin);
}

char const* XmlParser::takePlainMarkupOutsideRoot(char const* less)
{
    bool const beforeRoot = _document._nodes.empty();
    return less[1] == '!' ? endOfPlainComment(less) : beforeRoot ? takePlainStartTag(less) : nullptr;
}

char const* XmlParser::takePlainMarkup(char const* less)
{
    switch (less[1]) {
    case '/': return takePlainEndTag(less);
    case '!': return endOfPlainComment(less);
    default: return takePlainStartTag(less);
    }
}

/// Up to the next markup.
char const* XmlParser::takePlainText(char const* begin)
{
    char const* const end = skip<ofPlainText>(begin);
    if (*end != '<') {
        return nullptr;
    }
    std::string_view const raw(begin, static_cast<std::size_t>(end - begin));
    addText(raw, pieceOf(raw));
    return end;
}

/// The one that closes the open element.
char const* XmlParser::takePlainEndTag(char const* less)
{
    std::string_view const name = openName();
    std::string_view const rest = _text.substr(static_cast<std::size_t>(less + 2 - _text.data()));
    bool const isIt = rest.size() > name.size() && std::memcmp(rest.data(), name.data(), name.size()) == 0 &&
                      rest[name.size()] == '>';
    if (!isIt) {
        return nullptr;
    }
    char const* const end = rest.data() + name.size() + 1;
    closeElement(static_cast<std::size_t>(end - _text.data()));
    return end;
}

/// One whose attributes are apart from each other and of different names.
char const* XmlParser::takePlainStartTag(char const* less)
{
    auto const firstAttribute = static_cast<std::uint32_t>(_document._attributes.size());
    char const* const nameEnd = skip<ofPlainName>(less + 1);
    char const* const end = isByte(less[1], ofNameStart) ? takePlainAttributes(nameEnd) : nullptr;
    if (end == nullptr) {
        _document._attributes.resize(firstAttribute);
        return nullptr;
    }
    openElement(pieceOf({less + 1, static_cast<std::size_t>(nameEnd - less - 1)}), firstAttribute);
    bool const isEmptyElement = end[-2] == '/';  // no value ends there
    if (isEmptyElement) {
        closeElement(static_cast<std::size_t>(end - _text.data()));
    }
    return end;
}

/// Of a start tag, from behind its name on.
char const* XmlParser::takePlainAttributes(char const* at)
{
    char const* const textEnd = _text.data() + _text.size();
    std::uint64_t names = 0;
    while (true) {
        char const* const name = skip<ofSpace>(at);
        if (*name == '>') {
            return name + 1;
        }
        if (*name == '/' && name[1] == '>') {
            return name + 2;
        }
        char const* const nameEnd = skip<ofPlainName>(name);
        if (name == at || !isByte(*name, ofNameStart) || *nameEnd != '=' || (nameEnd[1] != '"' && nameEnd[1] != '\'')) {
            return nullptr;
        }
        std::uint64_t const bit = bitOf(name, nameEnd);
        char const* const value = nameEnd + 2;
        at = skipPlainValue(value, textEnd);
        if ((names & bit) != 0 || *at != nameEnd[1]) {
            return nullptr;
        }
        auto& attribute = _document._attributes.emplace_back();  // filled in place, which is faster than a copy
        attribute.name = pieceOf({name, static_cast<std::size_t>(nameEnd - name)});
        attribute.value = pieceOf({value, static_cast<std::size_t>(at - value)});
        names |= bit;
        ++at;
    }
}

}  // namespace Varo::Model
