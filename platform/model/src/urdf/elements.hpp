#ifndef VARO_MODEL_URDF_ELEMENTS_HPP
#define VARO_MODEL_URDF_ELEMENTS_HPP

#include <string_view>

#include <pugixml.hpp>

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

void reportLongName(TextOffset place, Diagnostics& diagnostics);

/// The name that an element states; empty, and reported, when it is too long.
std::string_view readName(pugi::xml_node node, Diagnostics& diagnostics);

}  // namespace Varo::Model::Urdf

#endif
