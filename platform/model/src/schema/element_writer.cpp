#include "schema/element_writer.hpp"

#include "xml/utf8.hpp"

namespace Varo::Model::Schema {

namespace {

/// Whether it is written as a reference, so that whoever looks at the text sees it, and a terminal that shows it does
/// not obey it: control characters, separators of lines, and what turns the direction of writing.
bool isHidden(char32_t c)
{
    return (c >= 0x7F && c <= 0x9F) || c == 0x2028 || c == 0x2029 || (c >= 0x202A && c <= 0x202E) ||
           (c >= 0x2066 && c <= 0x2069);
}

/// Appends the text as it stands between quotes or tags. White space other than blanks is written as references:
/// readers of XML change it.
void appendEscaped(std::string& result, std::string_view text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        char const c = text[i];
        if (static_cast<unsigned char>(c) >= 0x7F) {
            Utf8Character const character = decodeUtf8(text.substr(i));
            if (isHidden(character.codePoint) && character.length > 0) {
                result += "&#" + std::to_string(static_cast<unsigned>(character.codePoint)) + ";";
                i += character.length - 1;
                continue;
            }
        }
        switch (c) {
        case '&': result += "&amp;"; break;
        case '<': result += "&lt;"; break;
        case '>': result += "&gt;"; break;
        case '"': result += "&quot;"; break;
        case '\t': result += "&#9;"; break;
        case '\n': result += "&#10;"; break;
        case '\r': result += "&#13;"; break;
        default: result += c; break;
        }
    }
}

}  // namespace

void ElementWriter::writeDeclaration()
{
    _text += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
}

void ElementWriter::openTag(std::string_view name)
{
    endTag();
    indent();
    _text += '<';
    _text += _depth == _outermost ? _prefix : std::string_view();
    _text += name;
    _isTagOpen = true;
    ++_depth;
}

/// Of a start tag behind which elements follow.
void ElementWriter::endTag()
{
    _text += _isTagOpen ? ">\n" : "";
    _isTagOpen = false;
}

void ElementWriter::writeAttribute(std::string_view name, std::string_view value)
{
    _text += ' ';
    _text += name;
    _text += "=\"";
    appendEscaped(_text, value);
    _text += '"';
}

void ElementWriter::appendAttribute(std::string_view markup)
{
    _text += ' ';
    _text += markup;
}

void ElementWriter::appendElement(std::string_view markup)
{
    endTag();
    indent();
    _text += markup;
    _text += '\n';
}

void ElementWriter::appendLines(std::string_view markup)
{
    if (!markup.empty()) {
        endTag();
        _text += markup;
    }
}

void ElementWriter::writeText(std::string_view text)
{
    _text += '>';
    appendEscaped(_text, text);
    _isTagOpen = false;
    _isTextLast = true;
}

void ElementWriter::closeTag(std::string_view name)
{
    --_depth;
    if (_isTagOpen) {
        _text += "/>\n";
    } else {
        if (!_isTextLast) {
            indent();
        }
        _text += "</";
        _text += _depth == _outermost ? _prefix : std::string_view();
        _text += name;
        _text += ">\n";
    }
    _isTagOpen = false;
    _isTextLast = false;
}

}  // namespace Varo::Model::Schema
