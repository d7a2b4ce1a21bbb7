#ifndef VARO_MODEL_URDF_SURPLUS_HPP
#define VARO_MODEL_URDF_SURPLUS_HPP

#include <pugixml.hpp>

#include "urdf/urdf_codes.hpp"
#include "varo/model/diagnostics.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Urdf {

/// An element that comes after the only one that counts.
inline void reportSurplus(pugi::xml_node element, Diagnostics& diagnostics)
{
    diagnostics.report(at(element), codes::surplusElement,
                       "This is a further " + quoted(element.name()) + "; the first one counts.");
}

}  // namespace Varo::Model::Urdf

#endif
