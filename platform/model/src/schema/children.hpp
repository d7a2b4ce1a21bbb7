#ifndef VARO_MODEL_SCHEMA_CHILDREN_HPP
#define VARO_MODEL_SCHEMA_CHILDREN_HPP

#include <map>
#include <memory>
#include <type_traits>
#include <vector>

#include "schema/element_reader.hpp"
#include "schema/element_writer.hpp"
#include "schema/schema.hpp"
#include "varo/model/table.hpp"
#include "xml/document.hpp"

/// The usual ways in which children are read into the record of their parent, and written from there.
namespace Varo::Model::Schema {

template <auto const& element>
using RecordOfElement = typename std::decay_t<decltype(element)>::Record;

/// A child that fills the record of its parent.
template <auto const& element>
constexpr Child<RecordOfElement<element>> inPlace()
{
    using Parent = RecordOfElement<element>;
    return {{&element, Occurrence::optional},
            [](ElementReader& reader, XmlNode node, Parent& parent) { reader.read(element, node, parent); },
            [](ElementWriter& writer, Parent const& parent) { writer.writeUnlessDefault(element, parent); },
            [](Parent& parent) {
                Parent const fresh;
                for (Attribute<Parent> const& row : element.attributeRows) {
                    row.store(row.print(fresh), parent);
                }
            }};
}

template <class Record, class = void>
constexpr bool keepsItsPlace = false;
template <class Record>
constexpr bool keepsItsPlace<Record, std::void_t<decltype(Record::textOffset)>> = true;

template <class Record, class = void>
constexpr bool keepsItsNode = false;
template <class Record>
constexpr bool keepsItsNode<Record, std::void_t<decltype(Record::node)>> = true;

/// Reads a record from an element of its own.
template <class Item>
void readItem(ElementReader& reader, Element<Item> const& element, XmlNode node, Item& item)
{
    reader.read(element, node, item);
    if constexpr (keepsItsPlace<Item>) {
        item.textOffset = at(node);
    }
    if constexpr (keepsItsNode<Item>) {
        item.node = node;
    }
}

template <auto const& element>
RecordOfElement<element> readRecord(ElementReader& reader, XmlNode node)
{
    RecordOfElement<element> record;
    readItem(reader, element, node, record);
    return record;
}

/// A child that is a record of its own, to which a member of the record of its parent points; null without it.
template <auto member, auto const& element, class Parent = RecordOf<member>>
constexpr Child<Parent> pointedTo()
{
    using Item = RecordOfElement<element>;
    return {{&element, Occurrence::optional},
            [](ElementReader& reader, XmlNode node, Parent& parent) {
                parent.*member = std::make_shared<Item const>(readRecord<element>(reader, node));
            },
            [](ElementWriter& writer, Parent const& parent) {
                if (parent.*member != nullptr) {
                    writer.write(element, *(parent.*member));
                }
            },
            [](Parent& parent) { parent.*member = {}; }};
}

// Records are large, and therefore read where they are to stay.

template <auto const& element, class Item>
void addRecord(ElementReader& reader, XmlNode node, Table<Item>& items)
{
    readItem<RecordOfElement<element>>(reader, element, node, items.add());
}

/// `items` are a vector of one kind or another.
template <auto const& element, class Items>
void addRecord(ElementReader& reader, XmlNode node, Items& items)
{
    readItem<RecordOfElement<element>>(reader, element, node, items.emplace_back());
}

template <auto const& element, class Key, class Item>
void addRecord(ElementReader& reader, XmlNode node, std::map<Key, Item>& items)
{
    items.insert(readRecord<element>(reader, node));
}

/// A child that is a record of its own, in an optional member of the record of its parent.
template <auto member, auto const& element, class Parent = RecordOf<member>>
constexpr Child<Parent> childOf()
{
    return {{&element, Occurrence::optional},
            [](ElementReader& reader, XmlNode node, Parent& parent) {
                readItem(reader, element, node, (parent.*member).emplace());
            },
            [](ElementWriter& writer, Parent const& parent) {
                if (parent.*member) {
                    writer.write(element, *(parent.*member));
                }
            },
            [](Parent& parent) { parent.*member = {}; }};
}

/// Children each of which is a record of its own, in a member of the record of their parent.
template <auto member, auto const& element, class Parent = RecordOf<member>>
constexpr Child<Parent> childrenOf()
{
    using Item = RecordOfElement<element>;
    return {
        {&element, Occurrence::any},
        [](ElementReader& reader, XmlNode node, Parent& parent) { addRecord<element>(reader, node, parent.*member); },
        [](ElementWriter& writer, Parent const& parent) {
            for (auto const& each : parent.*member) {
                Item const& item = each;
                writer.write(element, item);
            }
        },
        [](Parent& parent) { parent.*member = {}; }};
}

}  // namespace Varo::Model::Schema

#endif
