#include "native/element_writer.hpp"

#include <algorithm>

namespace Varo::Model::Native {

namespace {

/// The text as it stands between quotes or tags. White space other than blanks is written as references: readers of XML
/// change it.
std::string escaped(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (char const c : text) {
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
    return result;
}

bool isDefault(Attribute const& attribute, void const* record)
{
    // The texts decide and not the values, of which 0 equals -0.
    return attribute.print(record) == attribute.print(nullptr);
}

}  // namespace

void ElementWriter::write(Element const& element, void const* record)
{
    openTag(element.name);
    writeAttributes(element, record);
    if (element.text != nullptr) {
        _text += ">" + escaped(element.text->print(record)) + "</" + std::string(element.name) + ">\n";
        return;
    }
    _isTagOpen = true;
    ++_depth;
    for (Child const& child : element.children) {
        child.write(*this, *child.element, record);
    }
    --_depth;
    closeTag(element.name);
}

void ElementWriter::writeUnlessDefault(Element const& element, void const* record)
{
    auto const& attributes = element.attributes;
    bool const saysNothing = std::all_of(attributes.begin(), attributes.end(),
                                         [record](Attribute const& attribute) { return isDefault(attribute, record); });
    if (!saysNothing) {
        write(element, record);
    }
}

void ElementWriter::openTag(std::string_view name)
{
    if (_isTagOpen) {
        _text += ">\n";
        _isTagOpen = false;
    }
    indent();
    _text += '<';
    _text += name;
}

void ElementWriter::writeAttributes(Element const& element, void const* record)
{
    for (Attribute const& attribute : element.attributes) {
        if (attribute.required || !isDefault(attribute, record)) {
            _text += ' ';
            _text += attribute.name;
            _text += "=\"" + escaped(attribute.print(record)) + '"';
        }
    }
}

void ElementWriter::closeTag(std::string_view name)
{
    if (_isTagOpen) {
        _text += "/>\n";
        _isTagOpen = false;
        return;
    }
    indent();
    _text += "</";
    _text += name;
    _text += ">\n";
}

}  // namespace Varo::Model::Native
