#include "xml/raw_tag.hpp"

#include <array>

#include "xml/words.hpp"

namespace Varo::Model {

namespace {

/// The bytes that end a name. A table, since this is asked of most bytes of a text.
constexpr std::array<bool, 256> makeNameEnds()
{
    std::array<bool, 256> ends{};
    for (char const c : {' ', '\t', '\n', '\r', '=', '/', '>', '<', '"', '\'', '&', '\0'}) {
        ends[static_cast<unsigned char>(c)] = true;
    }
    return ends;
}
constexpr std::array<bool, 256> nameEnds = makeNameEnds();

}  // namespace

RawTag::RawTag(std::string_view text, std::size_t offset) : _text(text), _position(offset + 1)
{
    _name = takeName();
    _broken = _name.empty();
}

bool RawTag::next(RawAttribute& attribute)
{
    if (_broken) {
        return false;
    }
    attribute.spaced = skipSpace();
    if (_position == _text.size()) {
        return breakOff();
    }
    if (_text[_position] == '>' || _text[_position] == '/') {
        return finish();
    }
    attribute.name = takeName();
    if (attribute.name.empty()) {
        return breakOff();
    }
    _attributeBroken = !takeValue(attribute.value);
    return !_attributeBroken || breakOff();
}

/// With the equals sign before it.
bool RawTag::takeValue(std::string_view& value)
{
    skipSpace();
    if (_position == _text.size() || _text[_position] != '=') {
        return false;
    }
    ++_position;
    skipSpace();
    char const quote = _position < _text.size() ? _text[_position] : '\0';
    std::size_t const close = quote == '"' || quote == '\'' ? _text.find(quote, _position + 1) : _text.npos;
    if (close == _text.npos) {
        return false;
    }
    value = {_text.data() + _position + 1, close - _position - 1};
    _position = close + 1;
    return true;
}

bool RawTag::skipSpace()
{
    std::size_t const start = _position;
    _position = endOf(_text, start, isXmlSpace);
    return _position > start;
}

std::string_view RawTag::takeName()
{
    std::size_t const start = _position;
    _position = endOf(_text, start, [](char c) { return !nameEnds[static_cast<unsigned char>(c)]; });
    return {_text.data() + start, _position - start};
}

bool RawTag::finish()
{
    _emptyElement = _text[_position] == '/';
    _position += _emptyElement ? 1 : 0;
    if (_position == _text.size() || _text[_position] != '>') {
        return breakOff();
    }
    ++_position;
    return false;
}

bool RawTag::breakOff()
{
    _broken = true;
    return false;
}

}  // namespace Varo::Model
