#ifndef VARO_MODEL_NATIVE_CHILDREN_HPP
#define VARO_MODEL_NATIVE_CHILDREN_HPP

#include <memory>
#include <type_traits>
#include <utility>

#include "native/element_reader.hpp"
#include "native/element_writer.hpp"
#include "native/schema.hpp"
#include "varo/model/table.hpp"

/// The usual ways in which children are read into the record of their parent, and written from there.
namespace Varo::Model::Native {

template <auto const& element>
using RecordOfElement = typename std::decay_t<decltype(element)>::Record;

/// A child that fills the record of its parent.
template <auto const& element>
constexpr Child<RecordOfElement<element>> inPlace()
{
    using Parent = RecordOfElement<element>;
    return {{&element, Occurrence::optional},
            [](ElementReader& reader, pugi::xml_node node, Parent& parent) { reader.read(element, node, parent); },
            [](ElementWriter& writer, Parent const& parent) { writer.writeUnlessDefault(element, parent); }};
}

template <class Record, class = void>
constexpr bool keepsItsPlace = false;
template <class Record>
constexpr bool keepsItsPlace<Record, std::void_t<decltype(Record::textOffset)>> = true;

/// A record that is read from an element of its own.
template <auto const& element>
RecordOfElement<element> readRecord(ElementReader& reader, pugi::xml_node node)
{
    RecordOfElement<element> record;
    reader.read(element, node, record);
    if constexpr (keepsItsPlace<RecordOfElement<element>>) {
        record.textOffset = at(node);
    }
    return record;
}

/// A child that is a record of its own, to which a member of the record of its parent points; null without it.
template <auto member, auto const& element, class Parent = RecordOf<member>>
constexpr Child<Parent> pointedTo()
{
    using Item = RecordOfElement<element>;
    return {{&element, Occurrence::optional},
            [](ElementReader& reader, pugi::xml_node node, Parent& parent) {
                parent.*member = std::make_shared<Item const>(readRecord<element>(reader, node));
            },
            [](ElementWriter& writer, Parent const& parent) {
                if (parent.*member != nullptr) {
                    writer.write(element, *(parent.*member));
                }
            }};
}

template <class Item>
void add(Table<Item>& items, Item&& item)
{
    items.add(std::move(item));
}

template <class Items, class Item>
void add(Items& items, Item&& item)
{
    items.insert(items.end(), std::move(item));
}

/// Children each of which is a record of its own, in a member of the record of their parent.
template <auto member, auto const& element, class Parent = RecordOf<member>>
constexpr Child<Parent> childrenOf()
{
    using Item = RecordOfElement<element>;
    return {{&element, Occurrence::any},
            [](ElementReader& reader, pugi::xml_node node, Parent& parent) {
                add(parent.*member, readRecord<element>(reader, node));
            },
            [](ElementWriter& writer, Parent const& parent) {
                for (auto const& each : parent.*member) {
                    Item const& item = each;
                    writer.write(element, item);
                }
            }};
}

}  // namespace Varo::Model::Native

#endif
