#include "schema/element_reader.hpp"

#include "xml/document.hpp"

namespace Varo::Model::Schema {

std::string_view textOf(XmlNode node, std::string& joined)
{
    std::string_view whole;
    for (XmlNode const child : node.children()) {
        if (child.isText() && whole.empty()) {
            whole = child.text();
        } else if (child.isText()) {
            joined.append(joined.empty() ? whole : std::string_view()).append(child.text());
            whole = joined;
        }
    }
    return whole;
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
