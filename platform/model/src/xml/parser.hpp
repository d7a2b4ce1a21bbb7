#ifndef VARO_MODEL_XML_PARSER_HPP
#define VARO_MODEL_XML_PARSER_HPP

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "varo/model/diagnostics.hpp"
#include "varo/model/source_text.hpp"
#include "xml/characters.hpp"
#include "xml/decoding.hpp"
#include "xml/document.hpp"
#include "xml/markup.hpp"
#include "xml/raw_tag.hpp"

namespace Varo::Model {

/// The next place in a text of what is looked for; where that is rare, most questions cost nothing.
class Upcoming {
public:
    Upcoming(std::string_view text, std::string_view wanted) : _text(text), _wanted(wanted) {}

    /// The first one from `start` on, which must not go back; npos when there is none.
    std::size_t from(std::size_t start)
    {
        if (!_isKnown || _place < start) {
            _place = _text.find(_wanted, start);
            _isKnown = true;
        }
        return _place;
    }

private:
    std::string_view _text;
    std::string_view _wanted;
    std::size_t _place = 0;
    bool _isKnown = false;
};

/// Makes a document of a text and reports all that XML forbids, in one pass whose time is linear in the text. Plain
/// tags, texts and comments, as nearly all are, it takes in one look at each byte; whatever else there is it takes
/// apart.
///
/// It is our own because no parser that we found does all of this: those that check everything are several times
/// slower or expand entities of the text's own, the fast ones take nearly any text.
class XmlParser {
public:
    /// All of them must outlive this; `document` is a fresh one.
    XmlParser(SourceText const& source, XmlDocument& document, Diagnostics& diagnostics);

    /// False when the text broke off, or has no element, so that the document is of no use. True does not mean that
    /// nothing was reported.
    bool parse();

private:
    static constexpr std::uint32_t noNode = static_cast<std::uint32_t>(-1);

    void takePlainTokens();
    char const* takePlainToken(char const* begin);
    char const* takePlainMarkupOutsideRoot(char const* less);
    char const* takePlainMarkup(char const* less);
    char const* takePlainStartTag(char const* less);
    char const* takePlainAttributes(char const* at);
    char const* takePlainEndTag(char const* less);
    char const* takePlainText(char const* begin);

    void takeContent(std::size_t end);
    void takeMarkup();
    void takeStartTag();
    void takeAttributes(RawTag& tag);
    void takeEndTag();
    void takeComment();
    void takeCharacterData();
    void takeInstruction();
    void takeDocumentType();

    void openElement(XmlDocument::Piece name, std::uint32_t firstAttribute);
    void closeElement(std::size_t end);
    void addText(std::string_view raw, XmlDocument::Piece meaning);
    XmlDocument::Piece pieceOf(std::string_view raw) const
    {
        return {static_cast<std::uint32_t>(raw.data() - _text.data()), static_cast<std::uint32_t>(raw.size())};
    }
    XmlDocument::Piece meaningOf(std::string_view raw, XmlContext context);

    void checkNamesDiffer(std::vector<std::string_view>& names);
    void checkValue(std::string_view value);
    void checkIsBlank(std::size_t end);
    void checkReferences(std::size_t begin, std::size_t end);

    bool isOutsideRoot() const { return _open == noNode; }
    std::string_view openName() const { return _document.textOf(_document._nodes[_open].piece); }
    std::string openElementShown() const;
    std::size_t offsetOf(std::string_view part) const { return static_cast<std::size_t>(part.data() - _text.data()); }
    bool finish();
    void finishToken(std::size_t end);
    void report(std::size_t offset, FindingCode const& code, std::string message, std::string hint = {});
    void breakOff(std::size_t offset, std::string message);

    SourceText const& _source;
    std::string_view _text;
    XmlDocument& _document;
    Diagnostics& _diagnostics;
    CharacterCheck _characters;
    Upcoming _less;
    Upcoming _ampersand;
    Upcoming _brackets;
    std::size_t _position;
    std::uint32_t _open = noNode;  ///< the index of the innermost open element
    bool _isBroken = false;
};

// For each element, and therefore inline.

inline void XmlParser::openElement(XmlDocument::Piece name, std::uint32_t firstAttribute)
{
    auto const index = static_cast<std::uint32_t>(_document._nodes.size());
    XmlDocument::Node& node = _document._nodes.emplace_back();  // filled in place, which is faster than a copy
    node.piece = name;
    node.firstAttribute = firstAttribute;
    node.parent = isOutsideRoot() ? index : _open;
    _open = index;
}

/// `end` is the offset behind it.
inline void XmlParser::closeElement(std::size_t end)
{
    XmlDocument::Node& node = _document._nodes[_open];
    node.edge = static_cast<std::uint32_t>(end);
    node.end = static_cast<std::uint32_t>(_document._nodes.size());
    _open = node.parent == _open ? noNode : node.parent;
}

/// `raw` stands in the text.
inline void XmlParser::addText(std::string_view raw, XmlDocument::Piece meaning)
{
    auto const firstAttribute = static_cast<std::uint32_t>(_document._attributes.size());
    _document._nodes.push_back({meaning, pieceOf(raw).begin, firstAttribute, 0, _open});
}

}  // namespace Varo::Model

#endif
