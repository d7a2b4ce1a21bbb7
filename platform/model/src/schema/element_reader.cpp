#include "schema/element_reader.hpp"

#include "xml/document.hpp"

namespace Varo::Model::Schema {

std::string textOf(XmlNode node)
{
    std::string text;
    for (XmlNode const child : node.children()) {
        text += child.isText() ? child.text() : "";
    }
    return text;
}

void ElementReader::noteText(ElementInfo const& element, XmlNode text)
{
    if (element.text == nullptr && !trimmed(text.text()).empty()) {
        onUnexpectedText(element, text);
    }
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
