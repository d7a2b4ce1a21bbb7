#ifndef VARO_MODEL_XML_SCANNER_HPP
#define VARO_MODEL_XML_SCANNER_HPP

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "varo/model/diagnostics.hpp"
#include "xml/markup.hpp"
#include "xml/raw_tag.hpp"

namespace Varo::Model {

/// The next place in a text of what is looked for; where that is rare, most questions cost nothing.
class Upcoming {
public:
    Upcoming() = default;
    Upcoming(std::string_view text, std::string_view wanted) : _text(text), _wanted(wanted), _place(text.find(wanted))
    {}

    /// The first one from `start` on, which must not go back; npos when there is none.
    std::size_t from(std::size_t start)
    {
        if (_place < start) {
            _place = _text.find(_wanted, start);
        }
        return _place;
    }

private:
    std::string_view _text;
    std::string_view _wanted;
    std::size_t _place = 0;
};

/// Looks through a text for what XML forbids and the parser lets through: document type declarations, a second root,
/// text beside the root, attributes that repeat, undefined references, characters that are none, and the like.
///
/// It stands beside the parser (pugixml) because no parser that we found does all of it: those that check everything
/// are several times slower or expand entities, the fast ones take nearly any text. One pass whose time is linear in
/// the text; it runs beside every load, hence the care for bytes.
class XmlScanner {
public:
    XmlScanner(std::string const& text, Diagnostics& diagnostics);

    /// Scans what the parser has taken: the whole text, or all before the offset where it gave up.
    void scan(std::size_t end);

    /// Whether the scan ended early, in something that is no tag.
    bool isBroken() const { return _broken; }

    /// The offset of the start tag of the element that `scan` ended in; npos outside the root.
    std::size_t openElement() const { return _openTags.empty() ? std::string_view::npos : _openTags.back(); }

    /// The offset of the markup that `scan` found no end of; npos without one.
    std::size_t unclosedMarkup() const { return _unclosed; }

private:
    void skipPlainTags();
    void scanMarkup();
    void scanContent(std::size_t end);
    void scanStartTag();
    void scanEndTag();
    void scanComment();
    void scanCharacterData();
    void scanInstruction();
    void scanDocumentType();
    void checkInstruction(std::string_view instruction);
    void checkDeclaration(std::string_view declaration);
    void checkAttributes(RawTag& tag);
    void checkNamesDiffer(std::size_t tag, std::vector<std::string_view>& names);
    void checkValue(std::string_view value);
    void checkIsBlank(std::size_t end);
    void checkReferences(std::size_t begin, std::size_t end);
    void checkCharacters(std::size_t end);
    void enterRoot(std::size_t tag);

    std::size_t offsetOf(std::string_view part) const { return static_cast<std::size_t>(part.data() - _text.data()); }
    std::size_t endOf(Markup markup) const { return endOfMarkup(_text, _position, markup); }
    void finishToken(std::size_t end);
    void report(std::size_t offset, FindingCode const& code, std::string message, std::string hint = {});

    std::string_view _text;
    Diagnostics& _diagnostics;
    std::size_t _start = 0;  ///< behind the byte order mark
    std::size_t _position = 0;
    std::vector<std::size_t> _openTags;  ///< offsets of the `<` of the elements around
    Upcoming _less;
    Upcoming _ampersand;
    Upcoming _brackets;
    bool _rootSeen = false;
    bool _encodingReported = false;
    bool _broken = false;
    std::size_t _unclosed = std::string_view::npos;
};

}  // namespace Varo::Model

#endif
