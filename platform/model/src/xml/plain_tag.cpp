#include "xml/plain_tag.hpp"

#include <array>
#include <cstdint>
#include <string_view>

namespace Varo::Model {

namespace {

enum ByteClass : unsigned char { ofSpace = 1, ofName = 2, ofValue = 4 };

/// A table, since this is asked of every byte of a text.
constexpr std::array<unsigned char, 256> makeClasses()
{
    std::array<unsigned char, 256> classes{};
    for (unsigned byte = ' '; byte < 0x7F; ++byte) {
        classes[byte] = ofName | ofValue;
    }
    for (char const c : {' ', '=', '/', '>', '!', '?'}) {
        classes[static_cast<unsigned char>(c)] = ofValue;
    }
    for (char const c : {'<', '&', '"', '\''}) {
        classes[static_cast<unsigned char>(c)] = 0;
    }
    for (char const c : {' ', '\t', '\n', '\r'}) {
        classes[static_cast<unsigned char>(c)] |= ofSpace;
    }
    return classes;
}
constexpr std::array<unsigned char, 256> classes = makeClasses();

/// The first byte from there on that is not of the class; the zero at the end of the text is of none.
template <ByteClass wanted>
char const* skip(char const* at)
{
    while ((classes[static_cast<unsigned char>(*at)] & wanted) != 0) {
        ++at;
    }
    return at;
}

/// Which of 64 bits stands for an attribute's name: names with different bits differ.
std::uint64_t bitOf(char const* begin, char const* end)
{
    auto const mixed = static_cast<unsigned>(*begin + 11 * begin[(end - begin) / 2] + 17 * end[-1]);
    return std::uint64_t{1} << (mixed % 64);
}

}  // namespace

char const* skipWhiteSpace(char const* at)
{
    return skip<ofSpace>(at);
}

PlainTag readPlainEndTag(char const* less)
{
    char const* const end = skip<ofName>(less + 2);
    return *end == '>' ? PlainTag{end + 1} : PlainTag();
}

PlainTag readPlainStartTag(char const* less)
{
    char const* at = skip<ofName>(less + 1);
    if (at == less + 1) {
        return {};
    }
    std::uint64_t names = 0;
    while (true) {
        char const* const name = skip<ofSpace>(at);
        if (*name == '>') {
            return {name + 1, false};
        }
        if (*name == '/' && name[1] == '>') {
            return {name + 2, true};
        }
        char const* const nameEnd = skip<ofName>(name);
        if (name == at || nameEnd == name || *nameEnd != '=' || (nameEnd[1] != '"' && nameEnd[1] != '\'')) {
            return {};
        }
        std::uint64_t const bit = bitOf(name, nameEnd);
        at = skip<ofValue>(nameEnd + 2);
        if ((names & bit) != 0 || *at != nameEnd[1]) {
            return {};
        }
        names |= bit;
        ++at;
    }
}

}  // namespace Varo::Model
