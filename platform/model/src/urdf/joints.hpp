#ifndef VARO_MODEL_URDF_JOINTS_HPP
#define VARO_MODEL_URDF_JOINTS_HPP

#include <pugixml.hpp>

#include "robot/link_tree.hpp"
#include "urdf/elements.hpp"

namespace Varo::Model::Urdf {

/// What a `joint` element says of the joint itself. Without a name when that cannot be used.
Joint readJoint(pugi::xml_node node, Report const& report);

}  // namespace Varo::Model::Urdf

#endif
