#ifndef VARO_MODEL_SCHEMA_ELEMENT_READER_HPP
#define VARO_MODEL_SCHEMA_ELEMENT_READER_HPP

#include <cstddef>
#include <string>
#include <string_view>

#include "schema/schema.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/records.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Schema {

/// The index of a row that is not there.
constexpr std::size_t noRow = static_cast<std::size_t>(-1);

/// 0 for no row.
constexpr RowSet bitOf(std::size_t row)
{
    return row == noRow ? 0 : RowSet{1} << row;
}

/// Names mostly differ in their size or their first characters, so that no function need be called.
constexpr bool isSame(std::string_view a, std::string_view b)
{
    std::size_t same = 0;
    while (a.size() == b.size() && same < a.size() && a[same] == b[same]) {
        ++same;
    }
    return a.size() == b.size() && same == a.size();
}

/// The row of that name, looked for from `start` on and then from the beginning: texts mostly keep the tables' order.
template <class Row>
std::size_t findRow(Range<Row> rows, std::string_view name, std::size_t start)
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

/// Reads elements as their tables say. What to make of a text that the tables do not allow, each dialect decides.
class ElementReader {
public:
    /// `robot` is what is read into in the end, for those children that need more than the record of their parent.
    ElementReader(Diagnostics& diagnostics, Records& robot) : _diagnostics(diagnostics), _robot(robot) {}
    ElementReader(ElementReader const&) = delete;
    ElementReader& operator=(ElementReader const&) = delete;

    template <class Record>
    void read(Element<Record> const& element, XmlNode node, Record& record);

    Diagnostics& diagnostics() { return _diagnostics; }
    Records& robot() { return _robot; }

protected:
    ~ElementReader() = default;

private:
    // The first two answer the row that was probably meant; noRow for none.
    virtual std::size_t onUnknownAttribute(ElementInfo const& element, XmlNode node, XmlAttribute attribute) = 0;
    virtual std::size_t onUnknownChild(ElementInfo const& element, XmlNode child) = 0;
    virtual void onRepeatedChild(ElementInfo const& element, XmlNode child) = 0;
    virtual void onUnexpectedText(ElementInfo const& element, XmlNode text) = 0;
    virtual void onMissingAttribute(ElementInfo const& element, AttributeInfo const& attribute, XmlNode node) = 0;
    virtual void onMissingChild(ElementInfo const& element, ChildInfo const& child, XmlNode node) = 0;
    /// `attribute` is null for the text of the element, `value`.
    virtual void onWrongValue(AttributeInfo const& row, XmlNode node, XmlAttribute attribute,
                              std::string_view value) = 0;
    /// `attribute` is null for one that is left out, of which `name` is the default.
    virtual void onName(NameRule const& rule, std::string_view name, XmlNode node, XmlAttribute attribute) = 0;

    template <class Record>
    void readAttributes(Element<Record> const& element, XmlNode node, Record& record);
    template <class Record>
    void readChildren(Element<Record> const& element, XmlNode node, Record& record);

    void noteText(ElementInfo const& element, XmlNode text);
    void noteMissingAttributes(ElementInfo const& element, XmlNode node, RowSet seen);
    void noteMissingChildren(ElementInfo const& element, XmlNode node, RowSet seen);
    void reportBroken(Complaint const& complaint, XmlNode node, std::string_view attribute);

    Diagnostics& _diagnostics;
    Records& _robot;
};

/// All text of an element, without that of its children: a view of `joined` where it stands in several pieces.
std::string_view textOf(XmlNode node, std::string& joined);

template <class Record>
void ElementReader::readAttributes(Element<Record> const& element, XmlNode node, Record& record)
{
    RowSet seen = 0;
    std::size_t next = 0;
    for (XmlAttribute const attribute : node.attributes()) {
        std::size_t const index = findRow(element.attributeRows, attribute.name(), next);
        if (index == noRow) {
            seen |= bitOf(onUnknownAttribute(element, node, attribute));
            continue;
        }
        if ((seen & bitOf(index)) != 0) {
            continue;  // a fault of the text itself, which is told already
        }
        seen |= bitOf(index);
        next = index + 1;
        Attribute<Record> const& row = element.attributeRows[index];
        std::string_view const value = attribute.value();
        if (!row.store(value, record)) {
            onWrongValue(row, node, attribute, value);
        } else if (row.names != nullptr) {
            onName(*row.names, value, node, attribute);
        }
    }
    if ((element.notableAttributes & ~seen) != 0) {
        noteMissingAttributes(element, node, seen);
    }
}

template <class Record>
void ElementReader::readChildren(Element<Record> const& element, XmlNode node, Record& record)
{
    RowSet seen = 0;
    std::size_t last = 0;
    for (XmlNode const child : node.children()) {
        if (child.isText()) {
            noteText(element, child);
            continue;
        }
        std::size_t const index = findRow(element.childRows, child.name(), last);
        if (index == noRow) {
            seen |= bitOf(onUnknownChild(element, child));
        } else if (element.childRows[index].occurrence != Occurrence::any && (seen & bitOf(index)) != 0) {
            onRepeatedChild(element, child);
        } else {
            seen |= bitOf(index);
            last = index;
            element.childRows[index].read(*this, child, record);
        }
    }
    if ((element.requiredChildren & ~seen) != 0) {
        noteMissingChildren(element, node, seen);
    }
}

template <class Record>
void ElementReader::read(Element<Record> const& element, XmlNode node, Record& record)
{
    readAttributes(element, node, record);
    if (element.requiredChildren != 0 || !node.children().empty()) {
        readChildren(element, node, record);
    }
    if (element.textRow != nullptr) {
        std::string joined;
        std::string_view const text = textOf(node, joined);
        if (!element.textRow->store(text, record)) {
            onWrongValue(*element.textRow, node, {}, text);
        }
    }
    for (Rule<Record> const& rule : element.rules) {
        if (rule.isBroken(record, node)) {
            reportBroken(rule.complaint, node, rule.attribute);
        }
    }
}

}  // namespace Varo::Model::Schema

#endif
