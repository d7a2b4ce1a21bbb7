#include <map>
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

void writeRestriction(Lines& out, std::string const& name, std::string const& base, std::string const& facets)
{
    out.open("xs:simpleType name=\"" + name + "\"");
    out.open("xs:restriction base=\"" + base + "\"");
    out.line(facets);
    out.close("xs:restriction");
    out.close("xs:simpleType");
}

void writeList(Lines& out, std::string const& name, std::string const& item, int length)
{
    out.open("xs:simpleType name=\"" + name + "\"");
    out.open("xs:restriction");
    out.line("<xs:simpleType><xs:list itemType=\"" + item + "\"/></xs:simpleType>");
    out.empty("xs:length value=\"" + std::to_string(length) + "\"");
    out.close("xs:restriction");
    out.close("xs:simpleType");
}

void writeTypes(Lines& out)
{
    std::string const number = "[+\\-]?([0-9]+(\\.[0-9]*)?|\\.[0-9]+)([eE][+\\-]?[0-9]+)?";
    writeRestriction(out, "text", "xs:string", "<xs:minLength value=\"0\"/>");
    writeRestriction(out, "markup", "xs:string", "<xs:minLength value=\"1\"/>");
    writeRestriction(out, "line", "xs:token", "<xs:minLength value=\"1\"/>");
    writeRestriction(out, "file", "xs:string", "<xs:minLength value=\"1\"/>");
    writeRestriction(out, "name", "xs:string",
                     "<xs:minLength value=\"1\"/><xs:maxLength value=\"" + std::to_string(longestName) + "\"/>");
    std::string const numberFacet = "<xs:pattern value=\"" + number + "\"/>";
    writeRestriction(out, "number", "xs:token", numberFacet);
    writeRestriction(out, "length", "xs:float", "<xs:minInclusive value=\"0\"/>" + numberFacet);
    writeRestriction(out, "channel", "xs:float",
                     "<xs:minInclusive value=\"0\"/><xs:maxInclusive value=\"1\"/>" + numberFacet);
    writeRestriction(out, "limit", "xs:token", "<xs:pattern value=\"" + number + "|unlimited\"/>");
    writeRestriction(out, "amount", "number", "<xs:pattern value=\"[^\\-].*|-0(\\.0*)?\"/>");
    writeRestriction(out, "bound", "limit", "<xs:pattern value=\"[^\\-].*|-0(\\.0*)?\"/>");
    writeRestriction(out, "integer", "xs:int", "<xs:pattern value=\"[+\\-]?[0-9]+\"/>");
    writeRestriction(out, "count", "integer", "<xs:minInclusive value=\"0\"/>");
    writeRestriction(out, "boolean", "xs:boolean", "<xs:pattern value=\"true|false|1|0\"/>");
    writeList(out, "vector3", "number", 3);
    writeList(out, "lengths3", "length", 3);
    writeList(out, "color", "channel", 4);
    writeList(out, "matrix9", "number", 9);
    writeList(out, "matrix12", "number", 12);
    for (ValueType const* type : usedTypes(robotDescriptionElement)) {
        if (type->words.size() > 0) {
            std::string facets;
            for (Word const& word : type->words) {
                facets += "<xs:enumeration value=\"" + std::string(word.word) + "\"/>";
            }
            writeRestriction(out, std::string(type->name), "xs:token", facets);
        }
    }
}

void writeElement(Lines& out, ElementInfo const& element, std::string const& occurrence);

void writeChildren(Lines& out, ElementInfo const& element, std::string const& occurrence)
{
    for (ChildInfo const& child : element.children) {
        if (child.occurrence != Occurrence::once) {
            writeElement(out, *child.element, occurrence);
        }
    }
}

bool holds(ElementInfo const& element, Occurrence occurrence)
{
    bool holds = false;
    for (ChildInfo const& child : element.children) {
        holds = holds || child.occurrence == occurrence;
    }
    return holds;
}

std::string groupOf(ElementInfo const& element)
{
    return std::string(element.name) + "Parts";
}

/// Elements in any order. Where each stands at most once, the schema can say so; where one stands exactly once, it is
/// written between two runs of the others.
void writeContent(Lines& out, ElementInfo const& element)
{
    std::string const anyNumber = " minOccurs=\"0\" maxOccurs=\"unbounded\"";
    if (holds(element, Occurrence::once)) {
        out.open("xs:sequence");
        out.empty("xs:group ref=\"" + groupOf(element) + "\"" + anyNumber);
        for (ChildInfo const& child : element.children) {
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
void writeGroup(Lines& out, ElementInfo const& element)
{
    out.open("xs:group name=\"" + groupOf(element) + "\"");
    out.open("xs:choice");
    writeChildren(out, element, "");
    out.close("xs:choice");
    out.close("xs:group");
}

void writeAttribute(Lines& out, AttributeInfo const& attribute)
{
    std::string const use = attribute.required               ? "use=\"required\""
                            : attribute.isDefault == nullptr ? "use=\"optional\""
                                                             : "default=\"" + escaped(attribute.defaultText) + "\"";
    out.open("xs:attribute name=\"" + std::string(attribute.name) + "\" type=\"" + std::string(attribute.type->name) +
             "\" " + use);
    std::string const unit = attribute.unit.empty() ? "" : " [" + std::string(attribute.unit) + "]";
    out.documentation(std::string(attribute.meaning) + unit);
    out.close("xs:attribute");
}

/// Elements that do not share a name.
struct Key {
    ElementInfo const* element;
    AttributeInfo const* attribute;
    std::string selector;
};
/// By the kinds that the name is of, which several elements may give.
using Keys = std::map<unsigned, Key>;

/// Those inside, whose names differ among all of their kind or, if `local`, in `element`.
void findKeys(ElementInfo const& element, std::string const& path, bool local, Keys& keys)
{
    for (ChildInfo const& child : element.children) {
        std::string const selector = path + std::string(child.element->name);
        for (AttributeInfo const& attribute : child.element->attributes) {
            NameRule const* const rule = attribute.names;
            if (rule != nullptr && rule->gives.twice.code == &codes::duplicateName && rule->gives.isLocal == local) {
                auto const [known, isNew] =
                    keys.try_emplace(rule->gives.kinds, Key{child.element, &attribute, selector});
                known->second.selector += isNew ? "" : "|" + selector;
            }
        }
        if (!local) {
            findKeys(*child.element, selector + "/", local, keys);
        }
    }
}

void writeKeys(Lines& out, ElementInfo const& element)
{
    Keys keys;
    findKeys(element, "", true, keys);
    if (&element == &robotDescriptionElement) {
        findKeys(element, "", false, keys);
    }
    for (auto const& [kinds, key] : keys) {
        std::string const tag = key.attribute->required ? "xs:key" : "xs:unique";
        std::string const field(key.attribute->name);
        out.open(tag + " name=\"" + std::string(element.name) + "." + std::string(key.element->name) + "." + field +
                 "\"");
        out.empty("xs:selector xpath=\"" + key.selector + "\"");
        out.empty("xs:field xpath=\"@" + field + "\"");
        out.close(tag);
    }
}

void writeElement(Lines& out, ElementInfo const& element, std::string const& occurrence)
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
    for (AttributeInfo const& attribute : element.attributes) {
        writeAttribute(out, attribute);
    }
    if (element.text != nullptr) {
        out.close("xs:extension");
        out.close("xs:simpleContent");
    }
    out.close("xs:complexType");
    writeKeys(out, element);
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
    for (ElementInfo const* element : allElements(robotDescriptionElement)) {
        if (holds(*element, Occurrence::once)) {
            writeGroup(out, *element);
        }
    }
    writeElement(out, robotDescriptionElement, "");
    out.close("xs:schema");
    return out.str();
}

}  // namespace Varo::Model::Native
