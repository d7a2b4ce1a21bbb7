#ifndef VARO_MODEL_URDF_SURPLUS_HPP
#define VARO_MODEL_URDF_SURPLUS_HPP

#include "urdf/urdf_codes.hpp"
#include "varo/model/diagnostics.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

/// An element that comes after the only one that counts.
inline void reportSurplus(XmlNode element, Diagnostics& diagnostics)
{
    diagnostics.report(at(element), codes::surplusElement,
                       "This is a further " + quoted(element.name()) + "; the first one counts.");
}

}  // namespace Varo::Model::Urdf

#endif
