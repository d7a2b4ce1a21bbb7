#ifndef VARO_MODEL_URDF_TRANSLATION_HPP
#define VARO_MODEL_URDF_TRANSLATION_HPP

#include "robot/link_tree.hpp"
#include "urdf/elements.hpp"
#include "urdf/materials.hpp"
#include "urdf/statements.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/records.hpp"

/// From what a URDF text says to links, joints and records.
namespace Varo::Model::Urdf {

/// Writes what a `joint` says of the joint itself. Without a name when that cannot be used.
void translateJoint(Joint const& stated, Model::Joint& joint, Diagnostics& diagnostics);

/// Writes what a `link` says of the body into the record of the joint that moves it, or of the root.
void translateBody(Link const& link, Materials const& materials, JointConfig& body, Diagnostics& diagnostics);

/// The same of its shapes alone.
void translateShapes(Link const& link, Materials const& materials, JointConfig& body, Diagnostics& diagnostics);

/// The transmissions of a tree whose joints can be found by name. What the records have no place for is kept as text.
void translateTransmissions(Robot const& stated, LinkTree& tree, Records& robot, Report const& report);

}  // namespace Varo::Model::Urdf

#endif
