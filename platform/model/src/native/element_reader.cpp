#include "native/element_reader.hpp"

#include <string>
#include <utility>

#include "spelling.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Native {

namespace {

std::string_view nameOf(Attribute const& attribute)
{
    return attribute.name;
}

std::string_view nameOf(Child const& child)
{
    return child.element->name;
}

/// The row of that name, looked for from `start` on and then from the beginning: texts mostly keep the tables' order.
template <class Row>
std::size_t findRow(Range<Row> rows, std::string_view name, std::size_t start)
{
    for (std::size_t i = start; i < rows.size(); ++i) {
        if (nameOf(rows[i]) == name) {
            return i;
        }
    }
    for (std::size_t i = 0; i < start; ++i) {
        if (nameOf(rows[i]) == name) {
            return i;
        }
    }
    return rows.size();
}

/// What to write instead of an unknown name, and the bit of the row that is meant, 0 for none.
template <class Row>
std::pair<std::string, std::uint32_t> suggest(Range<Row> rows, std::string_view written)
{
    ClosestWord closest(written);
    std::uint32_t bit = 0;
    std::string known;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        bit = closest.offer(nameOf(rows[i])) ? 1U << i : bit;
        known += (known.empty() ? "" : ", ") + std::string(nameOf(rows[i]));
    }
    if (bit != 0) {
        return {"Did you mean " + quoted(closest.word()) + "?", bit};
    }
    return {known.empty() ? "" : "Known here: " + known + ".", 0};
}

/// Attributes that tell XML editors where the schema is.
bool isForEditors(std::string_view attribute)
{
    return attribute.substr(0, 6) == "xmlns:" || attribute.substr(0, 4) == "xsi:";
}

bool isText(pugi::xml_node node)
{
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

}  // namespace

void ElementReader::read(Element const& element, pugi::xml_node node, void* record)
{
    readAttributes(element, node, record);
    readContent(element, node, record);
    if (element.text != nullptr) {
        readText(element, node, record);
    }
}

void ElementReader::readAttributes(Element const& element, pugi::xml_node node, void* record)
{
    Bits seen = 0;
    std::size_t next = 0;
    for (auto attribute = node.first_attribute(); attribute; attribute = attribute.next_attribute()) {
        std::size_t const index = findRow(element.attributes, attribute.name(), next);
        if (index == element.attributes.size()) {
            seen |= reportUnknownAttribute(element, node, attribute);
            continue;
        }
        next = index + 1;
        Bits const bit = 1U << index;
        // The second of two like-named attributes is a fault of the text itself and found there.
        if ((seen & bit) == 0 && !element.attributes[index].store(attribute.value(), record)) {
            reportWrongValue(at(node, attribute), element.attributes[index], attribute.value());
        }
        seen |= bit;
    }
    reportMissingAttributes(element, node, seen);
}

void ElementReader::readContent(Element const& element, pugi::xml_node node, void* record)
{
    Bits seen = 0;
    for (auto child = node.first_child(); child; child = child.next_sibling()) {
        if (child.type() == pugi::node_element) {
            seen |= readChild(element, child, seen, record);
        } else if (isText(child) && element.text == nullptr && !trimmed(child.value()).empty()) {
            _diagnostics.report(
                startOfText(child), codes::unexpectedText,
                std::string(element.name) + " holds no text, but here stands " + quoted(trimmed(child.value())) + ".");
        }
    }
    reportMissingChildren(element, node, seen);
}

/// Where a text says something: the white space before that is looked at in the source, which has it as it was written.
TextOffset ElementReader::startOfText(pugi::xml_node text) const
{
    std::string const& source = _diagnostics.source()->text();
    return TextOffset(source.find_first_not_of(" \t\r\n", at(text).value()));
}

void ElementReader::readText(Element const& element, pugi::xml_node node, void* record)
{
    std::string text;
    for (pugi::xml_node const child : node.children()) {
        if (isText(child)) {
            text += child.value();
        }
    }
    if (!element.text->store(text, record)) {
        reportWrongValue(at(node), *element.text, text);
    }
}

ElementReader::Bits ElementReader::readChild(Element const& element, pugi::xml_node child, Bits seen, void* record)
{
    std::size_t const index = findRow(element.children, child.name(), 0);
    if (index == element.children.size()) {
        return reportUnknownChild(element, child);
    }
    Child const& row = element.children[index];
    Bits const bit = 1U << index;
    if (row.occurrence != Occurrence::any && (seen & bit) != 0) {
        _diagnostics.report(at(child), codes::repeatedElement,
                            std::string(element.name) + " may hold only one " + child.name() + ".",
                            "Leave one of them out; only the first is read.");
        return 0;
    }
    row.read(*this, *row.element, child, record);
    return bit;
}

ElementReader::Bits ElementReader::reportUnknownAttribute(Element const& element, pugi::xml_node node,
                                                          pugi::xml_attribute attribute)
{
    if (isForEditors(attribute.name()) || _diagnostics.countIfFull(codes::unknownAttribute)) {
        return 0;
    }
    auto [hint, bit] = suggest(element.attributes, attribute.name());
    _diagnostics.report(at(node, attribute), codes::unknownAttribute,
                        std::string(element.name) + " has no attribute " + quoted(attribute.name()) + ".",
                        std::move(hint));
    return bit;
}

ElementReader::Bits ElementReader::reportUnknownChild(Element const& element, pugi::xml_node child)
{
    loseDefinition();
    if (_diagnostics.countIfFull(codes::unknownElement)) {
        return 0;
    }
    auto [hint, bit] = suggest(element.children, child.name());
    _diagnostics.report(at(child), codes::unknownElement,
                        std::string(element.name) + " holds no element " + quoted(child.name()) + ".", std::move(hint));
    return bit;
}

void ElementReader::reportMissingAttributes(Element const& element, pugi::xml_node node, Bits seen)
{
    for (std::size_t i = 0; i < element.attributes.size(); ++i) {
        Attribute const& attribute = element.attributes[i];
        if (attribute.required && (seen & (1U << i)) == 0) {
            _diagnostics.report(at(node), codes::missingAttribute,
                                std::string(element.name) + " lacks its attribute " + quoted(attribute.name) + ".",
                                "Add it: " + std::string(attribute.meaning) + ".");
        }
    }
}

void ElementReader::reportMissingChildren(Element const& element, pugi::xml_node node, Bits seen)
{
    for (std::size_t i = 0; i < element.children.size(); ++i) {
        Child const& child = element.children[i];
        if (child.occurrence == Occurrence::once && (seen & (1U << i)) == 0) {
            _diagnostics.report(at(node), codes::missingElement,
                                std::string(element.name) + " lacks its element " + quoted(child.element->name) + ".",
                                "Add it: " + std::string(child.element->meaning));
        }
    }
}

void ElementReader::reportWrongValue(TextOffset place, Attribute const& attribute, std::string_view value)
{
    if (_diagnostics.countIfFull(codes::wrongValue)) {
        return;
    }
    std::string const subject = attribute.name.empty() ? "The text" : "The value of " + quoted(attribute.name);
    std::string hint;
    ClosestWord closest(value);
    for (Word const& word : attribute.type->words) {
        closest.offer(word.word);
        hint += (hint.empty() ? "Possible are: " : ", ") + std::string(word.word);
    }
    hint += hint.empty() ? "" : ".";
    if (!closest.word().empty()) {
        hint = "Did you mean " + quoted(closest.word()) + "?";
    }
    _diagnostics.report(place, codes::wrongValue,
                        subject + ", " + quoted(value) + ", is not " + std::string(attribute.type->meaning) + ".",
                        std::move(hint));
}

void ElementReader::reportDuplicate(pugi::xml_node node, char const* attribute)
{
    _diagnostics.report(at(node, attribute), codes::duplicateName,
                        "Another " + std::string(node.name()) + " already has the " + attribute + " " +
                            quoted(node.attribute(attribute).value()) + ".",
                        "Give each its own; the first one counts.");
}

}  // namespace Varo::Model::Native
