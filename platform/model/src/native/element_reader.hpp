#ifndef VARO_MODEL_NATIVE_ELEMENT_READER_HPP
#define VARO_MODEL_NATIVE_ELEMENT_READER_HPP

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <pugixml.hpp>

#include "native/names.hpp"
#include "native/native_codes.hpp"
#include "native/schema.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/records.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Native {

/// The index of a row that is not there.
constexpr std::size_t noRow = static_cast<std::size_t>(-1);

/// Reads elements as their tables say, and reports whatever the tables do not allow.
///
/// A set of rows is a word of bits: no table has more than 32.
class ElementReader {
public:
    ElementReader(Diagnostics& diagnostics, Records& robot)
        : _diagnostics(diagnostics), _robot(robot), _names(diagnostics)
    {}

    template <class Record>
    void read(Element<Record> const& element, pugi::xml_node node, Record& record);

    Diagnostics& diagnostics() { return _diagnostics; }
    Records& robot() { return _robot; }
    Names& names() { return _names; }

private:
    using Bits = std::uint32_t;

    std::size_t findAttribute(ElementInfo const& element, pugi::xml_node node, pugi::xml_attribute attribute,
                              std::size_t start, Bits& seen);
    std::size_t findChild(ElementInfo const& element, pugi::xml_node child, Bits& seen);

    static std::string textOf(pugi::xml_node node);
    void noteValue(AttributeInfo const& row, bool isRight, pugi::xml_node node, pugi::xml_attribute attribute);

    Bits reportUnknownAttribute(ElementInfo const& element, pugi::xml_node node, pugi::xml_attribute attribute);
    Bits reportUnknownChild(ElementInfo const& element, pugi::xml_node child);
    void reportUnexpectedText(ElementInfo const& element, pugi::xml_node text);
    void reportMissingAttributes(ElementInfo const& element, pugi::xml_node node, Bits seen);
    void reportMissingChildren(ElementInfo const& element, pugi::xml_node node, Bits seen);
    void reportWrongValue(TextOffset place, AttributeInfo const& attribute, std::string_view value);
    void reportBroken(Complaint const& complaint, TextOffset place);
    void loseName(AttributeInfo const& attribute);

    Diagnostics& _diagnostics;
    Records& _robot;
    Names _names;
};

template <class Record>
void ElementReader::read(Element<Record> const& element, pugi::xml_node node, Record& record)
{
    Bits seen = 0;
    std::size_t next = 0;
    for (auto attribute = node.first_attribute(); attribute; attribute = attribute.next_attribute()) {
        std::size_t const index = findAttribute(element, node, attribute, next, seen);
        if (index != noRow) {
            next = index + 1;
            Attribute<Record> const& row = element.attributeRows[index];
            noteValue(row, row.store(attribute.value(), record), node, attribute);
        }
    }
    reportMissingAttributes(element, node, seen);
    seen = 0;
    for (auto child = node.first_child(); child; child = child.next_sibling()) {
        std::size_t const index = findChild(element, child, seen);
        if (index != noRow) {
            element.childRows[index].read(*this, child, record);
        }
    }
    reportMissingChildren(element, node, seen);
    if (element.textRow != nullptr) {
        std::string const text = textOf(node);
        if (!element.textRow->store(text, record)) {
            reportWrongValue(at(node), *element.textRow, text);
        }
    }
    for (Rule<Record> const& rule : element.rules) {
        if (rule.isBroken(record, node)) {
            reportBroken(rule.complaint, at(node, rule.attribute));
        }
    }
}

}  // namespace Varo::Model::Native

#endif
