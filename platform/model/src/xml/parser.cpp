#include "xml/parser.hpp"

#include <algorithm>
#include <utility>

#include "finding_codes.hpp"
#include "xml/bytes.hpp"
#include "xml/declaration.hpp"
#include "xml/words.hpp"

namespace Varo::Model {

namespace {

constexpr char brokenStartTag[] = "This start tag is broken or not closed.";

struct UnclosedMarkup {
    std::string_view start;
    char const* message;
};
constexpr UnclosedMarkup unclosedMarkups[] = {
    {"<!-", "This comment is not closed."},
    {"<![", "This CDATA section is not closed."},
    {"<?", "This XML declaration or processing instruction is broken or not closed."},
    {"<!DOCTYPE", "This document type declaration is broken or not closed."},
    {"</", "This end tag is broken or not closed."},
    {"<", "This \"<\" begins no tag; write \"&lt;\" for the character itself."},
};

/// What is wrong with markup of which only the start is right.
char const* messageOfUnclosed(std::string_view markup)
{
    return std::find_if(
               std::begin(unclosedMarkups), std::end(unclosedMarkups),
               [markup](UnclosedMarkup const& each) { return markup.substr(0, each.start.size()) == each.start; })
        ->message;
}

std::size_t endOfName(std::string_view text, std::size_t start)
{
    return endOf(text, start, [](char c) { return isByte(c, ofName); });
}

/// Whether it is a name as XML knows it; the empty one is none.
bool isName(std::string_view text)
{
    return !text.empty() && isByte(text[0], ofNameStart) && endOfName(text, 0) == text.size();
}

}  // namespace

XmlParser::XmlParser(SourceText const& source, XmlDocument& document, Diagnostics& diagnostics)
    : _source(source),
      _text(source.text()),
      _document(document),
      _diagnostics(diagnostics),
      _characters(diagnostics),
      _less(_text, "<"),
      _ampersand(_text, "&"),
      _brackets(_text, "]]>"),
      _position(byteOrderMarkSize(_text))
{
    _document._text = _text;
}

bool XmlParser::parse()
{
    // Roughly what descriptions have; where a text has more, it grows.
    _document._nodes.reserve(_text.size() / 40);
    _document._attributes.reserve(_text.size() / 32);
    while (_position < _text.size() && !_isBroken) {
        takePlainTokens();
        takeContent(std::min(_less.from(_position), _text.size()));
        if (_position < _text.size()) {
            takeMarkup();
        }
    }
    return !_isBroken && finish();
}

/// At the end of the text.
bool XmlParser::finish()
{
    std::size_t const last = std::max<std::size_t>(_text.size(), 1) - 1;
    if (!isOutsideRoot()) {
        breakOff(last, "The text ends before " + openElementShown() + " is closed.");
    } else if (_document._nodes.empty() && !_diagnostics.hasErrors()) {
        breakOff(last, "The text has no element.");
    }
    if (_isBroken || _document._nodes.empty()) {
        return false;
    }
    _document._nodes.push_back({{}, 0, static_cast<std::uint32_t>(_document._attributes.size()), 0, 0});
    return true;
}

void XmlParser::takeContent(std::size_t end)
{
    if (end == _position) {
        return;
    }
    if (isOutsideRoot()) {
        checkIsBlank(end);
        return finishToken(end);
    }
    std::string_view const content = _text.substr(_position, end - _position);
    if (!std::all_of(content.begin(), content.end(), isXmlSpace)) {
        addText(content, meaningOf(content, XmlContext::text));
    }
    if (std::size_t const brackets = _brackets.from(_position); brackets < end) {
        report(brackets, codes::malformedXml, "The three characters ]]> cannot stand in a text.",
               "Write ]]&gt; instead.");
    } else {
        checkReferences(_position, end);
    }
    finishToken(end);
}

void XmlParser::takeMarkup()
{
    switch (markupAt(_text, _position)) {
    case Markup::startTag: return takeStartTag();
    case Markup::endTag: return takeEndTag();
    case Markup::comment: return takeComment();
    case Markup::characterData: return takeCharacterData();
    case Markup::instruction: return takeInstruction();
    case Markup::documentType: return takeDocumentType();
    }
}

void XmlParser::takeStartTag()
{
    std::size_t const less = _position;
    RawTag tag(_text, less);
    if (tag.name().empty() || !isByte(tag.name()[0], ofNameStart)) {
        return breakOff(std::min(less + 1, _text.size() - 1), messageOfUnclosed("<"));
    }
    if (!isName(tag.name())) {
        return breakOff(endOfName(_text, less + 1), brokenStartTag);
    }
    if (isOutsideRoot() && !_document._nodes.empty()) {
        report(less, codes::contentOutsideRoot, "A second element stands beside the root element.",
               "A description has one root element, which holds all others.");
    }
    openElement(pieceOf(tag.name()), static_cast<std::uint32_t>(_document._attributes.size()));
    takeAttributes(tag);
    if (_isBroken) {
        return;
    }
    if (tag.isBroken()) {
        return breakOff(std::min(tag.end(), _text.size() - 1), brokenStartTag);
    }
    finishToken(tag.end());
    if (tag.isEmptyElement()) {
        closeElement(tag.end());
    }
}

void XmlParser::takeAttributes(RawTag& tag)
{
    std::vector<std::string_view> names;
    for (RawAttribute attribute; tag.next(attribute) || tag.isAttributeBroken();) {
        if (tag.isAttributeBroken() || !isName(attribute.name)) {
            return breakOff(offsetOf(attribute.name),
                            "This attribute is broken: it needs a name, an equals sign and a value in quotes.");
        }
        names.push_back(attribute.name);
        if (!attribute.spaced) {
            report(offsetOf(attribute.name), codes::malformedXml,
                   "There is no white space before the attribute " + quoted(attribute.name) + ".");
        }
        checkValue(attribute.value);
        _document._attributes.push_back({pieceOf(attribute.name), meaningOf(attribute.value, XmlContext::attribute)});
    }
    checkNamesDiffer(names);
}

void XmlParser::takeEndTag()
{
    std::size_t const less = _position;
    std::size_t const nameEnd = endOfName(_text, less + 2);
    std::size_t const end = endOfMarkup(_text, less, Markup::endTag);
    if (isOutsideRoot()) {
        return breakOff(less, "This end tag closes no element.");
    }
    if (_text.substr(less + 2, nameEnd - less - 2) != openName()) {
        return breakOff(less, end == _text.npos
                                  ? "The text ends before " + openElementShown() + " is closed."
                                  : "This end tag does not match: " + openElementShown() + " is to be closed first.");
    }
    if (end == _text.npos || endOf(_text, nameEnd, isXmlSpace) + 1 != end) {
        return breakOff(less, messageOfUnclosed("</"));
    }
    finishToken(end);
    closeElement(end);
}

void XmlParser::takeComment()
{
    std::size_t const hyphens = _text.find("--", _position + 4);
    if (hyphens != _text.npos && hyphens + 2 < _text.size() && _text[hyphens + 2] != '>') {
        report(hyphens, codes::malformedXml, "Two hyphens in a row cannot stand in a comment.");
    }
    finishToken(endOfMarkup(_text, _position, Markup::comment));
}

void XmlParser::takeCharacterData()
{
    std::size_t const end = endOfMarkup(_text, _position, Markup::characterData);
    if (isOutsideRoot()) {
        report(_position, codes::contentOutsideRoot, "Text stands beside the root element.");
    } else if (end != _text.npos) {
        std::size_t const begin = _text.find('[', _position + 3) + 1;
        std::string_view const content = _text.substr(begin, end - 3 - begin);
        addText(content, meaningOf(content, XmlContext::characterData));
    }
    finishToken(end);
}

void XmlParser::takeInstruction()
{
    std::size_t const end = endOfMarkup(_text, _position, Markup::instruction);
    if (end == _text.npos || !isByte(_text[_position + 2], ofNameStart)) {
        return finishToken(_text.npos);
    }
    checkInstruction(_text, _position, end - 2, _diagnostics);
    finishToken(end);
}

void XmlParser::takeDocumentType()
{
    bool const isDeclaration = _text.substr(_position, 9) == "<!DOCTYPE";
    if (!isDeclaration || !isOutsideRoot()) {
        return finishToken(_text.npos);
    }
    report(_position, codes::documentType, "The text has a document type declaration.",
           "Leave it out: descriptions need none, and entities of one's own are not read.");
    finishToken(endOfMarkup(_text, _position, Markup::documentType));
}

/// What the characters of the text say.
XmlDocument::Piece XmlParser::meaningOf(std::string_view raw, XmlContext context)
{
    if (!needsDecoding(raw, context)) {
        return pieceOf(raw);
    }
    std::string& all = _document._decoded;
    std::size_t const begin = all.size();
    appendDecoded(raw, context, all);
    return {static_cast<std::uint32_t>(_text.size() + begin), static_cast<std::uint32_t>(all.size() - begin)};
}

/// Reports the second of two like-named attributes.
void XmlParser::checkNamesDiffer(std::vector<std::string_view>& names)
{
    std::stable_sort(names.begin(), names.end());
    for (std::size_t i = 1; i < names.size(); ++i) {
        if (names[i] == names[i - 1]) {
            report(offsetOf(names[i]), codes::repeatedAttribute,
                   "The attribute " + quoted(names[i]) + " stands twice in one element.", "The first one counts.");
        }
    }
}

void XmlParser::checkValue(std::string_view value)
{
    std::size_t const bracket = value.find('<');
    if (bracket != value.npos) {
        report(offsetOf(value) + bracket, codes::malformedXml, "The character < cannot stand in an attribute's value.",
               "Write &lt; instead; or is the closing quote missing?");
    }
    checkReferences(offsetOf(value), offsetOf(value) + value.size());
}

void XmlParser::checkIsBlank(std::size_t end)
{
    std::size_t const content = _text.substr(0, end).find_first_not_of(" \t\r\n", _position);
    if (content != _text.npos) {
        report(content, codes::contentOutsideRoot, "Text stands beside the root element.",
               "Only comments may stand there.");
    }
}

void XmlParser::checkReferences(std::size_t begin, std::size_t end)
{
    for (std::size_t at = _ampersand.from(begin); at < end; at = _ampersand.from(at + 1)) {
        Reference const reference = referenceAt(_text.substr(at, end - at));
        if (!reference.character && !_diagnostics.countIfFull(codes::badReference)) {
            report(at, codes::badReference,
                   quoted("&" + std::string(reference.name) + (reference.isClosed ? ";" : "")) + " is no reference.",
                   "Write &amp; for the character itself.");
        }
    }
}

/// The innermost open element, and where it was opened: `"link", opened at 3:5,`.
std::string XmlParser::openElementShown() const
{
    Place const place = _source.place(TextOffset(_document._nodes[_open].piece.begin - 1));
    return quoted(openName()) + ", opened at " + std::to_string(place.line) + ":" + std::to_string(place.column) + ",";
}

/// Goes on behind the token; npos is the end of one that is not closed.
void XmlParser::finishToken(std::size_t end)
{
    _characters.check(_text, _position, std::min(end, _text.size()));
    if (end == _text.npos) {
        return breakOff(_position, messageOfUnclosed(_text.substr(_position)));
    }
    _position = end;
}

void XmlParser::breakOff(std::size_t offset, std::string message)
{
    report(offset, codes::malformedXml, std::move(message));
    _isBroken = true;
    _position = _text.size();
}

void XmlParser::report(std::size_t offset, FindingCode const& code, std::string message, std::string hint)
{
    _diagnostics.report(TextOffset(offset), code, std::move(message), std::move(hint));
}

}  // namespace Varo::Model
