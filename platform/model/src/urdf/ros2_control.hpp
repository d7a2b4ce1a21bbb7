#ifndef VARO_MODEL_URDF_ROS2_CONTROL_HPP
#define VARO_MODEL_URDF_ROS2_CONTROL_HPP

#include "robot/link_tree.hpp"
#include "urdf/elements.hpp"
#include "varo/model/records.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

/// Adds a transmission for each joint of a `ros2_control` element, the whole of which is passed over besides.
void readRos2Control(XmlNode system, LinkTree& tree, Records& robot, Report const& report);

}  // namespace Varo::Model::Urdf

#endif
