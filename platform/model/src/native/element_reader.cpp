#include "native/element_reader.hpp"

#include <string>
#include <utility>

#include "varo/model/spelling.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Native {

namespace {

/// 0 for no row.
std::uint32_t bitOf(std::size_t row)
{
    return row == noRow ? 0 : 1U << row;
}

std::string_view nameOf(AttributeInfo const& attribute)
{
    return attribute.name;
}

std::string_view nameOf(ChildInfo const& child)
{
    return child.element->name;
}

/// The row of that name, looked for from `start` on and then from the beginning: texts mostly keep the tables' order.
template <class Info>
std::size_t findRow(Infos<Info> const& rows, std::string_view name, std::size_t start)
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        std::size_t const index = i + start < rows.size() ? i + start : i + start - rows.size();
        if (nameOf(rows[index]) == name) {
            return index;
        }
    }
    return noRow;
}

/// What to write instead of an unknown name, and the row that is meant.
template <class Info>
std::pair<std::string, std::size_t> suggest(Infos<Info> const& rows, std::string_view written)
{
    ClosestWord closest(written);
    std::size_t meant = noRow;
    std::string known;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        meant = closest.offer(nameOf(rows[i])) ? i : meant;
        known += (known.empty() ? "" : ", ") + std::string(nameOf(rows[i]));
    }
    if (meant != noRow) {
        return {"Did you mean " + quoted(closest.word()) + "?", meant};
    }
    return {known.empty() ? "" : "Known here: " + known + ".", meant};
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

/// All text of an element, without that of its children.
std::string ElementReader::textOf(pugi::xml_node node)
{
    std::string text;
    for (pugi::xml_node const child : node.children()) {
        text += isText(child) ? child.value() : "";
    }
    return text;
}

/// The row to read the attribute with; the second of two like-named ones is a fault of the text itself and found there.
std::size_t ElementReader::findAttribute(ElementInfo const& element, pugi::xml_node node, pugi::xml_attribute attribute,
                                         std::size_t start, Bits& seen)
{
    std::size_t const index = findRow(element.attributes, attribute.name(), start);
    bool const isKnown = index != noRow;
    Bits const bit = isKnown ? bitOf(index) : reportUnknownAttribute(element, node, attribute);
    bool const isFirst = (seen & bit) == 0;
    seen |= bit;
    return isKnown && isFirst ? index : noRow;
}

void ElementReader::noteValue(AttributeInfo const& row, bool isRight, pugi::xml_node node,
                              pugi::xml_attribute attribute)
{
    if (!isRight) {
        reportWrongValue(at(node, attribute), row, attribute.value());
    } else if (row.names != nullptr) {
        _names.use(*row.names, attribute.value(), node, attribute);
    }
}

/// The row to read the child with.
std::size_t ElementReader::findChild(ElementInfo const& element, pugi::xml_node child, Bits& seen)
{
    if (child.type() != pugi::node_element) {
        if (isText(child) && element.text == nullptr && !trimmed(child.value()).empty()) {
            reportUnexpectedText(element, child);
        }
        return noRow;
    }
    std::size_t const index = findRow(element.children, child.name(), 0);
    if (index == noRow) {
        seen |= reportUnknownChild(element, child);
        return noRow;
    }
    bool const isRepeated = element.children[index].occurrence != Occurrence::any && (seen & (1U << index)) != 0;
    seen |= 1U << index;
    if (isRepeated) {
        _diagnostics.report(at(child), codes::repeatedElement,
                            std::string(element.name) + " may hold only one " + child.name() + ".",
                            "Leave one of them out; only the first is read.");
    }
    return isRepeated ? noRow : index;
}

/// Where it says something: the white space before that is looked at in the source, which has it as it was written.
void ElementReader::reportUnexpectedText(ElementInfo const& element, pugi::xml_node text)
{
    std::string const& source = _diagnostics.source()->text();
    _diagnostics.report(
        TextOffset(source.find_first_not_of(" \t\r\n", at(text).value())), codes::unexpectedText,
        std::string(element.name) + " holds no text, but here stands " + quoted(trimmed(text.value())) + ".");
}

/// Answers the bit of the missing attribute that was probably meant; 0 for none.
ElementReader::Bits ElementReader::reportUnknownAttribute(ElementInfo const& element, pugi::xml_node node,
                                                          pugi::xml_attribute attribute)
{
    if (isForEditors(attribute.name()) || _diagnostics.countIfFull(codes::unknownAttribute)) {
        return 0;
    }
    std::string message = std::string(element.name) + " has no attribute " + quoted(attribute.name()) + ".";
    auto [hint, meant] = suggest(element.attributes, attribute.name());
    _diagnostics.report(at(node, attribute), codes::unknownAttribute, std::move(message), std::move(hint));
    if (meant == noRow || node.attribute(element.attributes[meant].name.data())) {
        return 0;
    }
    loseName(element.attributes[meant]);
    return bitOf(meant);
}

/// Answers the bit of the child that was probably meant; 0 for none.
ElementReader::Bits ElementReader::reportUnknownChild(ElementInfo const& element, pugi::xml_node child)
{
    _names.loseAny();
    if (_diagnostics.countIfFull(codes::unknownElement)) {
        return 0;
    }
    std::string message = std::string(element.name) + " holds no element " + quoted(child.name()) + ".";
    auto [hint, meant] = suggest(element.children, child.name());
    _diagnostics.report(at(child), codes::unknownElement, std::move(message), std::move(hint));
    return bitOf(meant);
}

void ElementReader::reportMissingAttributes(ElementInfo const& element, pugi::xml_node node, Bits seen)
{
    Bits bit = 1;
    for (AttributeInfo const& attribute : element.attributes) {
        if ((seen & bit) == 0 && attribute.required) {
            _diagnostics.report(at(node), codes::missingAttribute,
                                std::string(element.name) + " lacks its attribute " + quoted(attribute.name) + ".",
                                "Add it: " + std::string(attribute.meaning) + ".");
            loseName(attribute);
        } else if ((seen & bit) == 0 && attribute.names != nullptr && !attribute.defaultText.empty()) {
            _names.use(*attribute.names, attribute.defaultText, node, {});
        }
        bit <<= 1;
    }
}

void ElementReader::reportMissingChildren(ElementInfo const& element, pugi::xml_node node, Bits seen)
{
    Bits bit = 1;
    for (ChildInfo const& child : element.children) {
        if (child.occurrence == Occurrence::once && (seen & bit) == 0) {
            _diagnostics.report(at(node), codes::missingElement,
                                std::string(element.name) + " lacks its element " + quoted(child.element->name) + ".",
                                "Add it: " + std::string(child.element->meaning));
        }
        bit <<= 1;
    }
}

void ElementReader::reportWrongValue(TextOffset place, AttributeInfo const& attribute, std::string_view value)
{
    loseName(attribute);
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

void ElementReader::reportBroken(Complaint const& complaint, TextOffset place)
{
    _diagnostics.report(place, *complaint.code, std::string(complaint.message), std::string(complaint.hint));
}

void ElementReader::loseName(AttributeInfo const& attribute)
{
    if (attribute.names != nullptr) {
        _names.lose(*attribute.names);
    }
}

}  // namespace Varo::Model::Native
