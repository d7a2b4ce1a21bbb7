#ifndef VARO_MODEL_SCHEMA_ELEMENT_WRITER_HPP
#define VARO_MODEL_SCHEMA_ELEMENT_WRITER_HPP

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "schema/schema.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model::Schema {

/// Writes elements as their tables say: what equals its default is left out, the rest stands in the tables' order, so
/// that one record has one text.
class ElementWriter {
public:
    /// The robot must outlive the writer.
    explicit ElementWriter(Records const& robot) : _robot(robot) {}

    template <class Record>
    void write(Element<Record> const& element, Record const& record);
    /// The same, unless the attributes say no more than those of a new record.
    template <class Record>
    void writeUnlessDefault(Element<Record> const& element, Record const& record);

    Records const& robot() const { return _robot; }

    /// All that was written.
    std::string const& text() const { return _text; }

private:
    /// The texts decide and not the values, of which 0 equals -0.
    template <class Record>
    static bool isDefault(Attribute<Record> const& row, Record const& record)
    {
        return row.print(record) == row.print(Record());
    }

    void openTag(std::string_view name);
    void writeAttribute(std::string_view name, std::string_view value);
    void writeText(std::string_view text);
    void closeTag(std::string_view name);
    void indent() { _text.append(2 * _depth, ' '); }

    Records const& _robot;
    std::string _text;
    std::size_t _depth = 0;
    bool _isTagOpen = false;  ///< the last start tag still lacks its end
    bool _isTextLast = false;  ///< the next end tag stands right behind a text
};

template <class Record>
void ElementWriter::write(Element<Record> const& element, Record const& record)
{
    openTag(element.name);
    for (Attribute<Record> const& row : element.attributeRows) {
        if (row.required || !isDefault(row, record)) {
            writeAttribute(row.name, row.print(record));
        }
    }
    if (element.textRow != nullptr) {
        writeText(element.textRow->print(record));
    }
    for (Child<Record> const& row : element.childRows) {
        if (row.write != nullptr) {
            row.write(*this, record);
        }
    }
    closeTag(element.name);
}

template <class Record>
void ElementWriter::writeUnlessDefault(Element<Record> const& element, Record const& record)
{
    auto const& rows = element.attributeRows;
    if (!std::all_of(rows.begin(), rows.end(), [&](auto const& row) { return isDefault(row, record); })) {
        write(element, record);
    }
}

}  // namespace Varo::Model::Schema

#endif
