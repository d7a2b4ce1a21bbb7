#ifndef VARO_MODEL_XML_MARKUP_HPP
#define VARO_MODEL_XML_MARKUP_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Varo::Model {

/// What a `<` begins.
enum class Markup { startTag, endTag, comment, characterData, instruction, documentType };

/// `offset` is that of a `<`.
Markup markupAt(std::string_view text, std::size_t offset);

/// The offset behind a markup other than a start tag; npos when it is not closed.
std::size_t endOfMarkup(std::string_view text, std::size_t offset, Markup markup);

/// A piece of markup in a text.
struct MarkupToken {
    Markup kind = Markup::startTag;
    std::size_t begin = 0;
    std::size_t end = 0;  ///< the offset behind it
    bool isEmptyElement = false;  ///< a start tag without an end tag
};

/// The first markup from `position` on; none at the end of the text, or where the markup is broken.
std::optional<MarkupToken> nextMarkup(std::string_view text, std::size_t position);

/// The whole element whose start tag stands at the offset, from `<` to `>`; to the end of the text when it is not
/// closed.
std::string_view elementAt(std::string_view text, std::size_t offset);

/// The whole attribute whose name stands at the offset, from there to its closing quote; empty when it is none.
std::string_view attributeAt(std::string_view text, std::size_t offset);

/// The size of the byte order mark that the text begins with, in bytes; 0 without one.
std::size_t byteOrderMarkSize(std::string_view text);

/// Knows, while it walks through a text, which elements it is in. Takes whatever has the shape of markup; in a broken
/// text it stays where that breaks off.
class OpenElements {
public:
    /// `start` is an offset outside all markup.
    explicit OpenElements(std::string_view text, std::size_t start = 0) : _text(text), _position(start) {}
    /// Starts in the element whose start tag stands at `root`.
    OpenElements(std::string_view text, std::size_t root, std::size_t start)
        : _text(text), _position(start), _startTags{root}
    {}

    /// Walks on to the offset, which must not lie before the last one. An element counts as open from the `<` of its
    /// start tag to the `>` of its end tag.
    void advanceTo(std::size_t offset);

    /// The offsets of the start tags, from the root inward.
    std::vector<std::size_t> const& startTags() const { return _startTags; }

    /// The path of the innermost element, empty outside the root. Of very deep ones the innermost steps.
    std::string path() const;

private:
    std::string_view _text;
    std::size_t _position;  ///< all markup before it has been seen
    std::size_t _closesAt = std::string_view::npos;  ///< behind the end of the innermost element, once it is known
    std::vector<std::size_t> _startTags;
};

/// Calls `visit` with the offset of the start tag of each element within the one whose start tag stands at `element`,
/// until it answers false. Children of children are passed over.
template <class Visit>
void forEachChild(std::string_view text, std::size_t element, Visit visit)
{
    std::size_t depth = 0;
    for (auto token = nextMarkup(text, element); token; token = nextMarkup(text, token->end)) {
        bool const isStart = token->kind == Markup::startTag;
        if (isStart && depth == 1 && !visit(token->begin)) {
            return;
        }
        depth += isStart && !token->isEmptyElement ? 1 : 0;
        depth -= token->kind == Markup::endTag ? 1 : 0;
        if (depth == 0) {
            return;
        }
    }
}

}  // namespace Varo::Model

#endif
