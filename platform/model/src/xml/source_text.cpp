#include "varo/model/source_text.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <string_view>
#include <utility>
#include <vector>

#include "xml/markup.hpp"
#include "xml/utf8.hpp"

namespace Varo::Model {

namespace {

/// How far apart in bytes the places are at which line and column are noted down.
constexpr std::size_t stride = 4096;

struct Position {
    std::uint32_t line = 1;
    std::uint32_t column = 1;

    /// What the piece of text behind this position adds to it.
    void add(std::string_view piece)
    {
        auto const newlines = std::count(piece.begin(), piece.end(), '\n');
        if (newlines > 0) {
            line += static_cast<std::uint32_t>(newlines);
            column = 1;
            piece.remove_prefix(piece.rfind('\n') + 1);
        }
        column += static_cast<std::uint32_t>(countCharacters(piece));
    }
};

}  // namespace

/// Made for the first who asks.
class SourceText::Index {
public:
    void makeFor(std::string_view text)
    {
        std::call_once(_made, [&] {
            // Lack of memory may have ended an earlier attempt halfway.
            _positions.clear();
            _children.clear();
            notePositions(text);
            noteElements(text);
        });
    }

    Position positionOf(std::string_view text, std::size_t offset) const
    {
        std::size_t const note = offset / stride;
        std::size_t const start = std::max(note * stride, byteOrderMarkSize(text));
        Position position = _positions[note];
        if (start < offset) {
            position.add(text.substr(start, offset - start));
        }
        return position;
    }

    /// The elements that are open at the offset.
    OpenElements openAt(std::string_view text, std::size_t offset) const
    {
        auto const next = std::upper_bound(_children.begin(), _children.end(), offset);
        OpenElements open =
            next == _children.begin() ? OpenElements(text) : OpenElements(text, _root, *std::prev(next));
        open.advanceTo(offset);
        return open;
    }

private:
    void notePositions(std::string_view text)
    {
        Position position;
        std::size_t start = byteOrderMarkSize(text);
        _positions.push_back(position);
        for (std::size_t end = stride; end <= text.size(); end += stride) {
            position.add(text.substr(start, end - start));
            _positions.push_back(position);
            start = end;
        }
    }

    void noteElements(std::string_view text)
    {
        auto token = nextMarkup(text, 0);
        while (token && token->kind != Markup::startTag) {
            token = nextMarkup(text, token->end);
        }
        if (!token) {
            return;
        }
        _root = static_cast<std::uint32_t>(token->begin);
        forEachChild(text, _root, [this](std::size_t child) {
            _children.push_back(static_cast<std::uint32_t>(child));
            return true;
        });
    }

    std::once_flag _made;
    std::vector<Position> _positions;
    std::uint32_t _root = 0;
    std::vector<std::uint32_t> _children;  ///< of the root
};

SourceText::SourceText(std::string text) : _text(std::move(text)), _index(std::make_unique<Index>()) {}

SourceText::~SourceText() = default;

Place SourceText::place(TextOffset offset) const
{
    if (!offset.isKnown()) {
        return {};
    }
    _index->makeFor(_text);
    std::size_t const at = std::min(offset.value(), _text.size());
    Position const position = _index->positionOf(_text, at);
    return {static_cast<int>(position.line), static_cast<int>(position.column), _index->openAt(_text, at).path()};
}

std::vector<Place> SourceText::places(std::vector<TextOffset> const& offsets) const
{
    std::string_view const text = _text;
    OpenElements open(text);
    Position position;
    std::size_t walked = byteOrderMarkSize(text);
    std::vector<Place> places;
    places.reserve(offsets.size());
    for (TextOffset const offset : offsets) {
        if (!offset.isKnown()) {
            places.emplace_back();
            continue;
        }
        std::size_t const at = std::min(offset.value(), text.size());
        if (walked < at) {
            position.add(text.substr(walked, at - walked));
            walked = at;
        }
        open.advanceTo(at);
        places.push_back({static_cast<int>(position.line), static_cast<int>(position.column), open.path()});
    }
    return places;
}

}  // namespace Varo::Model
