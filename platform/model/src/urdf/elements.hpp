#ifndef VARO_MODEL_URDF_ELEMENTS_HPP
#define VARO_MODEL_URDF_ELEMENTS_HPP

#include <string_view>

#include <pugixml.hpp>

#include "robot/unsupported.hpp"
#include "urdf/urdf_codes.hpp"
#include "varo/model/diagnostics.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Urdf {

/// What all readers of elements report to.
struct Report {
    Diagnostics& diagnostics;
    Unsupported& unsupported;

    void passOver(pugi::xml_node element) const
    {
        unsupported.add(element.parent().name(), element.name(), at(element));
    }
};

void reportLongName(TextOffset place, Diagnostics& diagnostics);

/// The name that an element states; empty, and reported, when it is too long.
std::string_view readName(pugi::xml_node node, Diagnostics& diagnostics);

}  // namespace Varo::Model::Urdf

#endif
