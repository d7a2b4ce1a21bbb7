#include <algorithm>
#include <sstream>
#include <string>

#include "format_writer.hpp"
#include "native/elements.hpp"
#include "value_types.hpp"

namespace Varo::Model::Native {

namespace {

std::string escaped(std::string_view text)
{
    std::string result;
    for (char const c : text) {
        result += c == '&' ? "&amp;" : c == '<' ? "&lt;" : c == '"' ? "&quot;" : std::string(1, c);
    }
    return result;
}

/// Writes one indented line after the other.
class Lines {
public:
    void open(std::string const& tag) { line("<" + tag + ">"), ++_depth; }
    void close(std::string const& name) { --_depth, line("</" + name + ">"); }
    void empty(std::string const& tag) { line("<" + tag + "/>"); }
    void documentation(std::string_view text)
    {
        line("<xs:annotation><xs:documentation>" + escaped(text) + "</xs:documentation></xs:annotation>");
    }
    void line(std::string const& text) { _out << std::string(2 * _depth, ' ') << text << '\n'; }
    std::string str() const { return _out.str(); }

private:
    std::ostringstream _out;
    std::size_t _depth = 0;
};

void writeWordType(Lines& out, ValueType const& type)
{
    out.open("xs:simpleType name=\"" + std::string(type.name) + "\"");
    out.open("xs:restriction base=\"xs:token\"");
    for (Word const& word : type.words) {
        out.empty("xs:enumeration value=\"" + std::string(word.word) + "\"");
    }
    out.close("xs:restriction");
    out.close("xs:simpleType");
}

void writeRestriction(Lines& out, std::string const& name, std::string const& base, std::string const& facets)
{
    out.open("xs:simpleType name=\"" + name + "\"");
    out.open("xs:restriction base=\"" + base + "\"");
    out.line(facets);
    out.close("xs:restriction");
    out.close("xs:simpleType");
}

void writeList(Lines& out, std::string const& name, int length)
{
    out.open("xs:simpleType name=\"" + name + "\"");
    out.open("xs:restriction");
    out.line("<xs:simpleType><xs:list itemType=\"number\"/></xs:simpleType>");
    out.empty("xs:length value=\"" + std::to_string(length) + "\"");
    out.close("xs:restriction");
    out.close("xs:simpleType");
}

void writeTypes(Lines& out)
{
    std::string const number = "[+\\-]?([0-9]+(\\.[0-9]*)?|\\.[0-9]+)([eE][+\\-]?[0-9]+)?";
    writeRestriction(out, "text", "xs:string", "<xs:minLength value=\"0\"/>");
    writeRestriction(out, "line", "xs:token", "<xs:minLength value=\"1\"/>");
    writeRestriction(out, "name", "xs:string",
                     "<xs:minLength value=\"1\"/><xs:maxLength value=\"" + std::to_string(longestName) + "\"/>");
    writeRestriction(out, "number", "xs:token", "<xs:pattern value=\"" + number + "\"/>");
    writeRestriction(out, "limit", "xs:token", "<xs:pattern value=\"" + number + "|unlimited\"/>");
    writeRestriction(out, "integer", "xs:int", "<xs:pattern value=\"[+\\-]?[0-9]+\"/>");
    writeRestriction(out, "boolean", "xs:boolean", "<xs:pattern value=\"true|false|1|0\"/>");
    writeList(out, "vector3", 3);
    writeList(out, "matrix9", 9);
    writeList(out, "matrix12", 12);
    for (ValueType const* type : usedTypes()) {
        if (type->words.size() > 0) {
            writeWordType(out, *type);
        }
    }
}

void writeElement(Lines& out, Element const& element, std::string const& occurrence);

void writeChildren(Lines& out, Element const& element, std::string const& occurrence)
{
    for (Child const& child : element.children) {
        if (child.occurrence != Occurrence::once) {
            writeElement(out, *child.element, occurrence);
        }
    }
}

bool holds(Element const& element, Occurrence occurrence)
{
    return std::any_of(element.children.begin(), element.children.end(),
                       [=](Child const& child) { return child.occurrence == occurrence; });
}

std::string groupOf(Element const& element)
{
    return std::string(element.name) + "Parts";
}

/// Elements in any order. Where each stands at most once, the schema can say so; where one stands exactly once, it is
/// written between two runs of the others.
void writeContent(Lines& out, Element const& element)
{
    std::string const anyNumber = " minOccurs=\"0\" maxOccurs=\"unbounded\"";
    if (holds(element, Occurrence::once)) {
        out.open("xs:sequence");
        out.empty("xs:group ref=\"" + groupOf(element) + "\"" + anyNumber);
        for (Child const& child : element.children) {
            if (child.occurrence == Occurrence::once) {
                writeElement(out, *child.element, "");
            }
        }
        out.empty("xs:group ref=\"" + groupOf(element) + "\"" + anyNumber);
        out.close("xs:sequence");
    } else if (holds(element, Occurrence::any)) {
        out.open("xs:choice" + anyNumber);
        writeChildren(out, element, "");
        out.close("xs:choice");
    } else {
        out.open("xs:all");
        writeChildren(out, element, " minOccurs=\"0\"");
        out.close("xs:all");
    }
}

/// What stands twice in the content of an element is written down once, in a group.
void writeGroup(Lines& out, Element const& element)
{
    out.open("xs:group name=\"" + groupOf(element) + "\"");
    out.open("xs:choice");
    writeChildren(out, element, "");
    out.close("xs:choice");
    out.close("xs:group");
}

void writeAttribute(Lines& out, Attribute const& attribute)
{
    std::string const use =
        attribute.required ? "use=\"required\"" : "default=\"" + escaped(attribute.defaultText) + "\"";
    out.open("xs:attribute name=\"" + std::string(attribute.name) + "\" type=\"" + std::string(attribute.type->name) +
             "\" " + use);
    std::string const unit = attribute.unit.empty() ? "" : " [" + std::string(attribute.unit) + "]";
    out.documentation(std::string(attribute.meaning) + unit);
    out.close("xs:attribute");
}

void writeElement(Lines& out, Element const& element, std::string const& occurrence)
{
    out.open("xs:element name=\"" + std::string(element.name) + "\"" + occurrence);
    out.documentation(element.meaning);
    out.open("xs:complexType");
    if (element.text != nullptr) {
        out.open("xs:simpleContent");
        out.open("xs:extension base=\"" + std::string(element.text->type->name) + "\"");
    } else if (element.children.size() > 0) {
        writeContent(out, element);
    }
    for (Attribute const& attribute : element.attributes) {
        writeAttribute(out, attribute);
    }
    if (element.text != nullptr) {
        out.close("xs:extension");
        out.close("xs:simpleContent");
    }
    out.close("xs:complexType");
    for (Unique const& unique : element.uniques) {
        out.open("xs:unique name=\"" + std::string(element.name) + "." + std::string(unique.name) + "\"");
        out.empty("xs:selector xpath=\"" + std::string(unique.selector) + "\"");
        out.empty("xs:field xpath=\"" + std::string(unique.field) + "\"");
        out.close("xs:unique");
    }
    out.close("xs:element");
}

}  // namespace

std::string writeSchema()
{
    Lines out;
    out.line("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    out.line("<!-- Written by the program write_format from the tables of the reader; not to be edited. -->");
    out.open("xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\"");
    writeTypes(out);
    for (Element const* element : allElements()) {
        if (holds(*element, Occurrence::once)) {
            writeGroup(out, *element);
        }
    }
    writeElement(out, robotDescriptionElement, "");
    out.close("xs:schema");
    return out.str();
}

}  // namespace Varo::Model::Native
