#ifndef VARO_MODEL_NATIVE_ELEMENT_READER_HPP
#define VARO_MODEL_NATIVE_ELEMENT_READER_HPP

#include <cstddef>
#include <cstdint>
#include <string_view>

#include <pugixml.hpp>

#include "native/name_index.hpp"
#include "native/native_codes.hpp"
#include "native/schema.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/records.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Native {

/// Reads elements as their tables say, and reports whatever the tables do not allow.
///
/// A set of attributes is a word of bits: no table has more than 32 rows.
class ElementReader {
public:
    ElementReader(Diagnostics& diagnostics, Records& robot) : _diagnostics(diagnostics), _robot(robot) {}

    /// Fills `record`, whose type is the one that the tables of `element` name.
    void read(Element const& element, pugi::xml_node node, void* record);

    Diagnostics& diagnostics() { return _diagnostics; }
    Records& robot() { return _robot; }
    NameIndex& names() { return _names; }

    /// Adds a record to the table of its kind, unless it lacks a name or the name is taken.
    template <class Config>
    void define(NameIndex::Kind kind, Table<Config>& table, Config&& config, pugi::xml_node node);

    /// Reports the second of two things whose names must differ.
    void reportDuplicate(pugi::xml_node node, char const* attribute);

    /// Something that may define a name could not be read: whether a name is known can no longer be told.
    void loseDefinition() { _definitionsLost = true; }
    bool definitionsLost() const { return _definitionsLost; }

private:
    using Bits = std::uint32_t;

    void readAttributes(Element const& element, pugi::xml_node node, void* record);
    void readContent(Element const& element, pugi::xml_node node, void* record);
    void readText(Element const& element, pugi::xml_node node, void* record);
    TextOffset startOfText(pugi::xml_node text) const;
    Bits readChild(Element const& element, pugi::xml_node child, Bits seen, void* record);

    Bits reportUnknownAttribute(Element const& element, pugi::xml_node node, pugi::xml_attribute attribute);
    Bits reportUnknownChild(Element const& element, pugi::xml_node child);
    void reportMissingAttributes(Element const& element, pugi::xml_node node, Bits seen);
    void reportMissingChildren(Element const& element, pugi::xml_node node, Bits seen);
    void reportWrongValue(TextOffset place, Attribute const& attribute, std::string_view value);

    Diagnostics& _diagnostics;
    Records& _robot;
    NameIndex _names;
    bool _definitionsLost = false;
};

template <class Config>
void ElementReader::define(NameIndex::Kind kind, Table<Config>& table, Config&& config, pugi::xml_node node)
{
    if (config.name.empty()) {
        loseDefinition();
    } else if ((_names.mark(node.attribute("name").value(), kind) & kind) != 0) {
        reportDuplicate(node, "name");
    } else {
        config.textOffset = at(node);
        table.add(std::forward<Config>(config));
    }
}

/// For children that fill the record of their parent.
inline void readInPlace(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent)
{
    reader.read(element, node, parent);
}

}  // namespace Varo::Model::Native

#endif
