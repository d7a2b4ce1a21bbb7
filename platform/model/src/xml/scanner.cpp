#include "xml/scanner.hpp"

#include <algorithm>
#include <utility>

#include "finding_codes.hpp"
#include "xml/plain_tag.hpp"
#include "xml/raw_tag.hpp"
#include "xml/utf8.hpp"

namespace Varo::Model {

namespace {

constexpr std::size_t longestReference = 32;  // bytes

/// Without branches, so that compilers make it look at many bytes at a time.
constexpr bool isUnusual(char c)
{
    auto const byte = static_cast<unsigned char>(c);
    bool const isSpace = (byte == '\t') | (byte == '\n') | (byte == '\r');
    return (byte >= 0x80) | ((byte < 0x20) & !isSpace);
}

/// The first control character or byte beyond ASCII from `start` on. Nearly all bytes are usual.
std::size_t findUnusual(std::string_view text, std::size_t start)
{
    constexpr std::size_t block = 64;
    for (; start + block <= text.size(); start += block) {
        unsigned char found = 0;
        for (std::size_t i = 0; i < block; ++i) {
            found = static_cast<unsigned char>(found | (isUnusual(text[start + i]) ? 1U : 0U));
        }
        if (found != 0) {
            break;
        }
    }
    auto const rest = text.substr(start);
    auto const found = std::find_if(rest.begin(), rest.end(), isUnusual);
    return found == rest.end() ? text.npos : start + static_cast<std::size_t>(found - rest.begin());
}

}  // namespace

XmlScanner::XmlScanner(std::string const& text, Diagnostics& diagnostics) : _text(text), _diagnostics(diagnostics)
{
    _start = byteOrderMarkSize(text);
    _position = _start;
}

void XmlScanner::scan(std::size_t end)
{
    _text = _text.substr(0, end);
    _less = {_text, "<"};
    _ampersand = {_text, "&"};
    _brackets = {_text, "]]>"};
    while (_position < _text.size()) {
        skipPlainTags();
        scanContent(std::min(_less.from(_position), _text.size()));
        if (_position < _text.size()) {
            scanMarkup();
        }
    }
}

/// Inside the root, nearly everything is a plain tag or white space, and there is nothing to say of it.
void XmlScanner::skipPlainTags()
{
    char const* const text = _text.data();
    char const* const end = text + _text.size();
    while (!_openTags.empty()) {
        char const* const less = skipWhiteSpace(text + _position);
        bool const isEnd = *less == '<' && less[1] == '/';
        PlainTag const tag = *less != '<' ? PlainTag() : isEnd ? readPlainEndTag(less) : readPlainStartTag(less);
        if (tag.end == nullptr || tag.end > end) {
            return;
        }
        if (isEnd) {
            _openTags.pop_back();
        } else if (!tag.isEmptyElement) {
            _openTags.push_back(static_cast<std::size_t>(less - text));
        }
        _position = static_cast<std::size_t>(tag.end - text);
    }
}

void XmlScanner::scanMarkup()
{
    switch (markupAt(_text, _position)) {
    case Markup::startTag: scanStartTag(); break;
    case Markup::endTag: scanEndTag(); break;
    case Markup::comment: scanComment(); break;
    case Markup::characterData: scanCharacterData(); break;
    case Markup::instruction: scanInstruction(); break;
    case Markup::documentType: scanDocumentType(); break;
    }
}

void XmlScanner::scanContent(std::size_t end)
{
    if (end == _position) {
        return;
    }
    if (_openTags.empty()) {
        checkIsBlank(end);
    } else if (std::size_t const brackets = _brackets.from(_position); brackets < end) {
        report(brackets, codes::malformedXml, "The three characters ]]> cannot stand in a text.",
               "Write ]]&gt; instead.");
    } else {
        checkReferences(_position, end);
    }
    finishToken(end);
}

void XmlScanner::checkIsBlank(std::size_t end)
{
    std::size_t const content = _text.substr(0, end).find_first_not_of(" \t\r\n", _position);
    if (content != _text.npos) {
        report(content, codes::contentOutsideRoot, "Text stands beside the root element.",
               "Only comments may stand there.");
    }
}

void XmlScanner::scanStartTag()
{
    std::size_t const start = _position;
    enterRoot(start);
    _openTags.push_back(start);
    RawTag tag(_text, start);
    checkAttributes(tag);
    _broken = tag.isBroken();
    finishToken(tag.isBroken() ? _text.size() : tag.end());
    if (tag.isEmptyElement()) {
        _openTags.pop_back();
    }
}

void XmlScanner::enterRoot(std::size_t tag)
{
    if (_openTags.empty() && _rootSeen) {
        report(tag, codes::contentOutsideRoot, "A second element stands beside the root element.",
               "A description has one root element, which holds all others.");
    }
    _rootSeen = true;
}

void XmlScanner::scanEndTag()
{
    std::size_t const end = endOf(Markup::endTag);
    finishToken(end);
    if (!_openTags.empty() && end != _text.npos) {
        _openTags.pop_back();
    }
}

void XmlScanner::scanComment()
{
    std::size_t const hyphens = _text.find("--", _position + 4);
    if (hyphens != _text.npos && hyphens + 2 < _text.size() && _text[hyphens + 2] != '>') {
        report(hyphens, codes::malformedXml, "Two hyphens in a row cannot stand in a comment.");
    }
    finishToken(endOf(Markup::comment));
}

void XmlScanner::scanCharacterData()
{
    if (_openTags.empty()) {
        report(_position, codes::contentOutsideRoot, "Text stands beside the root element.");
    }
    finishToken(endOf(Markup::characterData));
}

void XmlScanner::scanInstruction()
{
    std::size_t const end = endOf(Markup::instruction);
    if (end != _text.npos) {
        checkInstruction(_text.substr(_position, end - 2 - _position));
    }
    finishToken(end);
}

void XmlScanner::checkInstruction(std::string_view instruction)
{
    // A declaration reads like a start tag of the name "?xml"; other instructions hold what they like.
    std::string target(RawTag(instruction, 0).name());
    bool const isDeclaration = target == "?xml";
    std::transform(target.begin(), target.end(), target.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; });
    if (target != "?xml") {
        return;
    }
    if (_position != _start || !isDeclaration) {
        report(_position, codes::malformedXml, "An XML declaration stands elsewhere than at the start of the text.",
               "Leave it out, or what is before it.");
    }
    checkDeclaration(instruction);
}

void XmlScanner::checkDeclaration(std::string_view declaration)
{
    char const* const known[] = {"version", "encoding", "standalone"};  // in the order in which they may stand
    auto const* next = std::begin(known);
    bool hasVersion = false;
    RawTag tag(declaration, 0);
    for (RawAttribute attribute; tag.next(attribute);) {
        std::string_view const value = attribute.value;
        auto const* const found = std::find(next, std::end(known), attribute.name);
        hasVersion = hasVersion || attribute.name == "version";
        next = found == std::end(known) ? next : found + 1;
        bool const isAscii = value == "US-ASCII" || value == "us-ascii";
        if (found == std::end(known)) {
            report(offsetOf(attribute.name), codes::malformedXml,
                   quoted(attribute.name) + " has no place here in an XML declaration.",
                   "It states version, encoding and standalone, in this order.");
        } else if (attribute.name == "encoding" && value != "UTF-8" && value != "utf-8" && !isAscii) {
            report(_position, codes::badEncoding, "The text is declared to be in " + quoted(value) + ".",
                   "Save it as UTF-8, and declare that or nothing.");
        } else if (attribute.name == "standalone" && value != "yes" && value != "no") {
            report(offsetOf(attribute.name), codes::malformedXml,
                   "The declaration's standalone is " + quoted(value) + ", neither yes nor no.");
        } else if (attribute.name == "version" && value.substr(0, 2) != "1.") {
            report(offsetOf(attribute.name), codes::malformedXml,
                   "The text is declared to be in version " + quoted(value) + " of XML.", "Declare version 1.0.");
        }
    }
    if (!hasVersion) {
        report(_position, codes::malformedXml, "The XML declaration states no version.",
               "Write <?xml version=\"1.0\"?>.");
    }
}

void XmlScanner::scanDocumentType()
{
    if (_text.substr(_position, 9) != "<!DOCTYPE") {
        finishToken(_text.npos);
        return;
    }
    report(_position, codes::documentType, "The text has a document type declaration.",
           "Leave it out: descriptions need none, and entities of one's own are not read.");
    finishToken(endOf(Markup::documentType));
}

/// All attributes of the tag, one by one.
void XmlScanner::checkAttributes(RawTag& tag)
{
    std::size_t const start = _position;
    std::vector<std::string_view> names;
    for (RawAttribute attribute; tag.next(attribute);) {
        names.push_back(attribute.name);
        if (!attribute.spaced) {
            report(offsetOf(attribute.name), codes::malformedXml,
                   "There is no white space before the attribute " + quoted(attribute.name) + ".");
        }
        checkValue(attribute.value);
    }
    checkNamesDiffer(start, names);
}

/// Reports the second of two like-named attributes.
void XmlScanner::checkNamesDiffer(std::size_t tag, std::vector<std::string_view>& names)
{
    std::stable_sort(names.begin(), names.end());
    for (std::size_t i = 1; i < names.size(); ++i) {
        if (names[i] == names[i - 1]) {
            report(std::max(tag, offsetOf(names[i])), codes::repeatedAttribute,
                   "The attribute " + quoted(names[i]) + " stands twice in one element.", "The first one counts.");
        }
    }
}

void XmlScanner::checkValue(std::string_view value)
{
    std::size_t const bracket = value.find('<');
    if (bracket != value.npos) {
        report(offsetOf(value) + bracket, codes::malformedXml, "The character < cannot stand in an attribute's value.",
               "Write &lt; instead; or is the closing quote missing?");
    }
    checkReferences(offsetOf(value), offsetOf(value) + value.size());
}

void XmlScanner::checkReferences(std::size_t begin, std::size_t end)
{
    for (std::size_t at = _ampersand.from(begin); at < end; at = _ampersand.from(at + 1)) {
        std::size_t const length = std::min(end - at - 1, longestReference);
        std::string_view const rest = _text.substr(at + 1, length);
        std::string_view const body = rest.substr(0, std::min(rest.find(';'), rest.find('&')));
        bool const closed = body.size() < rest.size() && rest[body.size()] == ';';
        if (!closed || !referencedCharacter(body)) {
            if (_diagnostics.countIfFull(codes::badReference)) {
                continue;
            }
            report(at, codes::badReference, quoted("&" + std::string(body) + (closed ? ";" : "")) + " is no reference.",
                   "Write &amp; for the character itself.");
        }
    }
}

/// Checks the characters of the token. One finding for it is enough.
void XmlScanner::checkCharacters(std::size_t end)
{
    bool reported = false;
    std::string_view const checked = _text.substr(0, end);
    for (std::size_t at = findUnusual(checked, _position); at != checked.npos;) {
        Utf8Character const character = decodeUtf8(_text.substr(at));
        if (character.length == 0 && !_encodingReported) {
            _encodingReported = true;
            report(at, codes::badEncoding, "The bytes here are not UTF-8.", "Save the text as UTF-8.");
        } else if (character.length > 0 && !isXmlCharacter(character.codePoint) && !reported) {
            reported = true;
            report(at, codes::badCharacter, "A character that XML forbids stands here.");
        }
        at = findUnusual(checked, at + std::max<std::size_t>(character.length, 1));
    }
}

void XmlScanner::finishToken(std::size_t end)
{
    _unclosed = end == _text.npos ? _position : _unclosed;
    std::size_t const tokenEnd = std::min(end, _text.size());
    checkCharacters(tokenEnd);
    _position = tokenEnd;
}

void XmlScanner::report(std::size_t offset, FindingCode const& code, std::string message, std::string hint)
{
    _diagnostics.report(TextOffset(offset), code, std::move(message), std::move(hint));
}

}  // namespace Varo::Model
