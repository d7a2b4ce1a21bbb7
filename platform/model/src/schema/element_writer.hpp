#ifndef VARO_MODEL_SCHEMA_ELEMENT_WRITER_HPP
#define VARO_MODEL_SCHEMA_ELEMENT_WRITER_HPP

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "schema/schema.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model::Schema {

/// Writes elements as their tables say: what equals its default is left out, the rest stands in the tables' order, so
/// that one record has one text.
class ElementWriter {
public:
    /// The robot must outlive the writer.
    explicit ElementWriter(Records const& robot) : ElementWriter(robot, {}, 0) {}
    /// Writes what stands in `depth` other elements, with the prefix before the names of the outermost ones.
    ElementWriter(Records const& robot, std::string_view prefix, std::size_t depth)
        : _robot(robot), _prefix(prefix), _depth(depth), _outermost(depth)
    {}
    ElementWriter(ElementWriter const&) = delete;
    ElementWriter& operator=(ElementWriter const&) = delete;
    virtual ~ElementWriter() = default;

    /// What a text begins with, before its root element.
    void writeDeclaration();
    template <class Record>
    void write(Element<Record> const& element, Record const& record);
    /// The same, unless the attributes say no more than those of a new record.
    template <class Record>
    void writeUnlessDefault(Element<Record> const& element, Record const& record);

    Records const& robot() const { return _robot; }

    /// All that was written.
    std::string const& text() const { return _text; }
    /// The same, without a copy: the writer is of no use afterwards.
    std::string takeText() { return std::move(_text); }

protected:
    /// What a dialect writes beside its tables may be added between these steps.
    virtual void openTag(std::string_view name);
    virtual void writeAttribute(std::string_view name, std::string_view value);
    virtual void endAttributes() {}
    virtual void closeTag(std::string_view name);
    void writeText(std::string_view text);
    /// Markup as it stands: an attribute of the open tag, an element, or lines that have their indentation.
    void appendAttribute(std::string_view markup);
    void appendElement(std::string_view markup);
    void appendLines(std::string_view markup);

private:
    /// The texts decide and not the values, of which 0 equals -0.
    template <class Record>
    static bool isDefault(Attribute<Record> const& row, Record const& record)
    {
        return (row.isNew != nullptr && row.isNew(record)) || row.print(record) == row.print(Record());
    }

    void endTag();
    void indent() { _text.append(2 * _depth, ' '); }

    Records const& _robot;
    std::string_view _prefix;
    std::string _text;
    std::size_t _depth;
    std::size_t _outermost;  ///< the depth of the elements that have the prefix
    bool _isTagOpen = false;  ///< the last start tag still lacks its end
    bool _isTextLast = false;  ///< the next end tag stands right behind a text
};

template <class Record>
void ElementWriter::write(Element<Record> const& element, Record const& record)
{
    openTag(element.name);
    for (Attribute<Record> const& row : element.attributeRows) {
        if (row.required || row.writesDefault || !isDefault(row, record)) {
            writeAttribute(row.name, row.print(record));
        }
    }
    endAttributes();
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
