#ifndef VARO_MODEL_XML_NODE_OFFSET_HPP
#define VARO_MODEL_XML_NODE_OFFSET_HPP

#include <algorithm>
#include <cstddef>

#include <pugixml.hpp>

#include "varo/model/place.hpp"

/// Where the parsed things stand in the text: what readers report findings at, and what records keep.
///
///     diagnostics.report(at(node), codes::missingElement, "...");                     // the element's `<`
///     diagnostics.report(at(node, attribute), codes::wrongValue, "...", "a hint");     // the attribute's name
///     diagnostics.report(at(node, "parent"), codes::danglingReference, "...");         // the attribute of that name
namespace Varo::Model {

/// The `<` of an element's start tag, or where a text begins, white space included. The root is at 0.
inline TextOffset at(pugi::xml_node node)
{
    auto const offset = static_cast<std::size_t>(std::max<std::ptrdiff_t>(node.offset_debug(), 0));
    bool const isElement = node.type() == pugi::node_element;  // those know where their name is
    return TextOffset(isElement && offset > 0 ? offset - 1 : offset);
}

/// The name of one of the element's attributes; the element itself when `attribute` is null.
inline TextOffset at(pugi::xml_node node, pugi::xml_attribute attribute)
{
    if (!attribute) {
        return at(node);
    }
    // Names stay where they were when the text is parsed, so their distance in memory is that in the text.
    return TextOffset(static_cast<std::size_t>(node.offset_debug() + (attribute.name() - node.name())));
}

inline TextOffset at(pugi::xml_node node, char const* attribute)
{
    return at(node, node.attribute(attribute));
}

}  // namespace Varo::Model

#endif
