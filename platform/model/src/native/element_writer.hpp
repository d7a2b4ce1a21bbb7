#ifndef VARO_MODEL_NATIVE_ELEMENT_WRITER_HPP
#define VARO_MODEL_NATIVE_ELEMENT_WRITER_HPP

#include <cstddef>
#include <string>
#include <string_view>

#include "native/schema.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model::Native {

/// Writes elements as their tables say: what equals its default is left out, the rest stands in the tables' order, so
/// that one record has one text.
class ElementWriter {
public:
    /// The robot must outlive the writer.
    explicit ElementWriter(Records const& robot) : _robot(robot) {}

    /// Writes an element of `record`, whose type is the one that the tables of `element` name.
    void write(Element const& element, void const* record);
    /// The same, unless the attributes say no more than those of a new record.
    void writeUnlessDefault(Element const& element, void const* record);

    Records const& robot() const { return _robot; }

    /// All that was written.
    std::string const& text() const { return _text; }

private:
    void openTag(std::string_view name);
    void writeAttributes(Element const& element, void const* record);
    void closeTag(std::string_view name);
    void indent() { _text.append(2 * _depth, ' '); }

    Records const& _robot;
    std::string _text;
    std::size_t _depth = 0;
    bool _isTagOpen = false;  ///< the last start tag still lacks its end
};

/// For children that are written from the record of their parent.
inline void writeInPlace(ElementWriter& writer, Element const& element, void const* parent)
{
    writer.writeUnlessDefault(element, parent);
}

/// For children that are written with those of another row.
inline void writeNothing(ElementWriter&, Element const&, void const*) {}

}  // namespace Varo::Model::Native

#endif
