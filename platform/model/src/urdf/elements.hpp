#ifndef VARO_MODEL_URDF_ELEMENTS_HPP
#define VARO_MODEL_URDF_ELEMENTS_HPP

#include <string_view>

#include "urdf/extensions.hpp"
#include "urdf/urdf_codes.hpp"
#include "varo/model/diagnostics.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

/// What all readers of elements report to.
struct Report {
    Diagnostics& diagnostics;
    Extensions& extensions;

    /// What nothing in the records is for is kept as it stands.
    void passOver(XmlNode element) const { extensions.add(element); }
    void passOver(XmlNode element, XmlAttribute attribute) const { extensions.add(element, attribute); }
};

void reportLongName(TextOffset place, Diagnostics& diagnostics);

/// The name that an element states; empty, and reported, when it is too long.
std::string_view readName(XmlNode node, Diagnostics& diagnostics);

}  // namespace Varo::Model::Urdf

#endif
