#ifndef VARO_MODEL_URDF_ELEMENTS_HPP
#define VARO_MODEL_URDF_ELEMENTS_HPP

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include <pugixml.hpp>

#include "robot/link_tree.hpp"
#include "urdf/extensions.hpp"
#include "urdf/urdf_codes.hpp"
#include "varo/model/diagnostics.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Urdf {

/// What all readers of elements report to.
struct Report {
    Diagnostics& diagnostics;
    Extensions& extensions;

    /// What nothing in the records is for is kept as it stands.
    void passOver(pugi::xml_node element) const { extensions.add(element); }
    void passOver(pugi::xml_node element, pugi::xml_attribute attribute) const { extensions.add(element, attribute); }
};

/// The element's name; empty, and reported, when it has none or one that is too long.
std::string_view readName(pugi::xml_node node, Diagnostics& diagnostics);

/// The children of an element that have the given names, which may stand once each; null where there is none. All
/// others are passed over.
template <std::size_t count>
std::array<pugi::xml_node, count> childrenOf(pugi::xml_node node, std::array<std::string_view, count> const& names,
                                             Report const& report)
{
    std::array<pugi::xml_node, count> children;
    for (auto child = node.first_child(); child; child = child.next_sibling()) {
        if (child.type() != pugi::node_element) {
            continue;
        }
        std::size_t place = 0;
        while (place < count && names[place] != child.name()) {
            ++place;
        }
        if (place == count) {
            report.passOver(child);
        } else if (!children[place]) {
            children[place] = child;
        } else {
            report.diagnostics.report(at(child), codes::surplusElement,
                                      "This is a further " + quoted(child.name()) + "; the first one counts.");
        }
    }
    return children;
}

/// What a `joint` element says of the joint itself. Without a name when that cannot be used.
Joint readJoint(pugi::xml_node node, Report const& report);

/// Writes what a `link` element says of the body into the record of the joint that moves it, or of the root.
void readBody(pugi::xml_node link, JointConfig& body, Report const& report);

/// The same of its `visual` elements alone.
void readVisuals(std::vector<pugi::xml_node> const& visuals, JointConfig& body, Report const& report);

}  // namespace Varo::Model::Urdf

#endif
