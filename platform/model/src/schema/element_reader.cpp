#include "schema/element_reader.hpp"

#include "xml/document.hpp"

namespace Varo::Model::Schema {

namespace {

/// 0 for no row.
RowSet bitOf(std::size_t row)
{
    return row == noRow ? 0 : RowSet{1} << row;
}

/// Names mostly differ in their size or their first characters, so that no function need be called.
bool isSame(std::string_view a, std::string_view b)
{
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] != b[i]) {
            return false;
        }
    }
    return true;
}

/// The row of that name, looked for from `start` on and then from the beginning: texts mostly keep the tables' order.
template <class Info>
std::size_t findRow(Infos<Info> const& rows, std::string_view name, std::size_t start)
{
    std::size_t index = start < rows.size() ? start : 0;
    for (std::size_t left = rows.size(); left > 0; --left) {
        if (isSame(name, nameOf(rows[index]))) {
            return index;
        }
        index = index + 1 < rows.size() ? index + 1 : 0;
    }
    return noRow;
}

}  // namespace

std::string textOf(XmlNode node)
{
    std::string text;
    for (XmlNode const child : node.children()) {
        text += child.isText() ? child.text() : "";
    }
    return text;
}

/// The row to read the attribute with; the second of two like-named ones is a fault of the text itself and found there.
std::size_t ElementReader::findAttribute(ElementInfo const& element, XmlNode node, XmlAttribute attribute,
                                         std::size_t start, RowSet& seen)
{
    std::size_t const index = findRow(element.attributes, attribute.name(), start);
    bool const isKnown = index != noRow;
    RowSet const bit = bitOf(isKnown ? index : onUnknownAttribute(element, node, attribute));
    bool const isFirst = (seen & bit) == 0;
    seen |= bit;
    return isKnown && isFirst ? index : noRow;
}

/// The row to read the child with.
std::size_t ElementReader::findChild(ElementInfo const& element, XmlNode child, std::size_t start, RowSet& seen)
{
    if (!child.isElement()) {
        if (child.isText() && element.text == nullptr && !trimmed(child.text()).empty()) {
            onUnexpectedText(element, child);
        }
        return noRow;
    }
    std::size_t const index = findRow(element.children, child.name(), start);
    if (index == noRow) {
        seen |= bitOf(onUnknownChild(element, child));
        return noRow;
    }
    bool const isRepeated = element.children[index].occurrence != Occurrence::any && (seen & bitOf(index)) != 0;
    seen |= bitOf(index);
    if (isRepeated) {
        onRepeatedChild(element, child);
    }
    return isRepeated ? noRow : index;
}

void ElementReader::noteMissingAttributes(ElementInfo const& element, XmlNode node, RowSet seen)
{
    RowSet bit = 1;
    for (AttributeInfo const& attribute : element.attributes) {
        if ((seen & bit) == 0 && attribute.required) {
            onMissingAttribute(element, attribute, node);
        } else if ((seen & bit) == 0 && attribute.names != nullptr && !attribute.defaultText.empty()) {
            onName(*attribute.names, attribute.defaultText, node, {});
        }
        bit <<= 1;
    }
}

void ElementReader::noteMissingChildren(ElementInfo const& element, XmlNode node, RowSet seen)
{
    RowSet bit = 1;
    for (ChildInfo const& child : element.children) {
        if (child.occurrence == Occurrence::once && (seen & bit) == 0) {
            onMissingChild(element, child, node);
        }
        bit <<= 1;
    }
}

void ElementReader::reportBroken(Complaint const& complaint, XmlNode node, std::string_view attribute)
{
    _diagnostics.report(at(node, attribute), *complaint.code, std::string(complaint.message),
                        std::string(complaint.hint));
}

}  // namespace Varo::Model::Schema
