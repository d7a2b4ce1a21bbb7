#ifndef VARO_MODEL_XML_BYTES_HPP
#define VARO_MODEL_XML_BYTES_HPP

#include <array>
#include <initializer_list>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

/// What the bytes of a text may be part of. In tables, since this is asked of every byte.
namespace Varo::Model {

/// Beyond ASCII every byte may be part of a name.
enum ByteClass : unsigned char {
    ofSpace = 1,
    ofNameStart = 2,
    ofName = 4,
    ofPlainName = 8,  ///< in ASCII
    ofPlainValue = 16,  ///< in ASCII, of an attribute, and standing for itself
    ofPlainText = 32,  ///< in ASCII, between tags, and standing for itself
    ofPlainComment = 64,  ///< in ASCII, and not the hyphen
};

constexpr std::array<unsigned char, 256> makeByteClasses()
{
    std::array<unsigned char, 256> classes{};
    auto const add = [&classes](unsigned first, unsigned last, unsigned char of) {
        for (unsigned byte = first; byte <= last; ++byte) {
            classes[byte] |= of;
        }
    };
    for (char const space : {' ', '\t', '\n', '\r'}) {
        classes[static_cast<unsigned char>(space)] |= ofSpace;
    }
    for (auto const& [first, last] : {std::array{'a', 'z'}, {'A', 'Z'}, {'_', '_'}, {':', ':'}}) {
        add(static_cast<unsigned char>(first), static_cast<unsigned char>(last), ofNameStart | ofName | ofPlainName);
    }
    for (auto const& [first, last] : {std::array{'0', '9'}, {'-', '-'}, {'.', '.'}}) {
        add(static_cast<unsigned char>(first), static_cast<unsigned char>(last), ofName | ofPlainName);
    }
    add(0x80, 0xFF, ofNameStart | ofName);
    auto const remove = [&classes](std::initializer_list<char> of, unsigned char from) {
        for (char const c : of) {
            classes[static_cast<unsigned char>(c)] &= static_cast<unsigned char>(~from);
        }
    };
    add(' ', '~', ofPlainValue | ofPlainText | ofPlainComment);
    add('\t', '\n', ofPlainText | ofPlainComment);
    add('\r', '\r', ofPlainComment);
    remove({'<', '&', '"', '\''}, ofPlainValue);
    remove({'<', '&', ']'}, ofPlainText);
    remove({'-'}, ofPlainComment);
    return classes;
}
inline constexpr std::array<unsigned char, 256> byteClasses = makeByteClasses();

constexpr bool isByte(char c, ByteClass wanted)
{
    return (byteClasses[static_cast<unsigned char>(c)] & wanted) != 0;
}

/// The first byte from there on that is not of the class. The text must end in a byte of value zero, which is of none.
template <ByteClass wanted>
char const* skip(char const* at)
{
    while (isByte(at[0], wanted)) {
        if (!isByte(at[1], wanted)) {
            return at + 1;
        }
        if (!isByte(at[2], wanted)) {
            return at + 2;
        }
        if (!isByte(at[3], wanted)) {
            return at + 3;
        }
        at += 4;
    }
    return at;
}

/// As skip<ofPlainValue>, of a text that ends there: values are most of a description.
inline char const* skipPlainValue(char const* at, [[maybe_unused]] char const* textEnd)
{
#ifdef __SSE2__
    constexpr int step = sizeof(__m128i);
    for (; textEnd - at >= step; at += step) {
        __m128i const bytes = _mm_loadu_si128(reinterpret_cast<__m128i const*>(at));
        auto const areAll = [](char c) { return _mm_set1_epi8(c); };
        // Signed, bytes beyond ASCII are less than a space, too.
        __m128i others = _mm_cmplt_epi8(bytes, areAll(' '));
        for (char const c : {'<', '&', '"', '\'', '\x7F'}) {
            others = _mm_or_si128(others, _mm_cmpeq_epi8(bytes, areAll(c)));
        }
        auto const found = static_cast<unsigned>(_mm_movemask_epi8(others));
        if (found != 0) {
            return at + __builtin_ctz(found);
        }
    }
#endif
    return skip<ofPlainValue>(at);
}

}  // namespace Varo::Model

#endif
