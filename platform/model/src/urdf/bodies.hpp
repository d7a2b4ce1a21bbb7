#ifndef VARO_MODEL_URDF_BODIES_HPP
#define VARO_MODEL_URDF_BODIES_HPP

#include <vector>

#include <pugixml.hpp>

#include "urdf/elements.hpp"
#include "varo/model/configs.hpp"

namespace Varo::Model::Urdf {

/// Writes what a `link` element says of the body into the record of the joint that moves it, or of the root.
void readBody(pugi::xml_node link, JointConfig& body, Report const& report);

/// The same of its `visual` elements alone.
void readVisuals(std::vector<pugi::xml_node> const& visuals, JointConfig& body, Report const& report);

}  // namespace Varo::Model::Urdf

#endif
