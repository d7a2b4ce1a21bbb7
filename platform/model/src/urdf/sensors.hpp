#ifndef VARO_MODEL_URDF_SENSORS_HPP
#define VARO_MODEL_URDF_SENSORS_HPP

#include <string>
#include <string_view>

#include <pugixml.hpp>

#include "robot/link_tree.hpp"
#include "robot/unique_names.hpp"
#include "urdf/elements.hpp"
#include "urdf/sensor_kinds.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model::Urdf {

/// Adds sensors to the robot. The root of the tree must have its name by then.
class SensorReader {
public:
    SensorReader(LinkTree const& tree, Records& robot, Report const& report)
        : _tree(tree), _robot(robot), _report(report)
    {}

    /// A `sensor` element that stands directly in the robot.
    void readSensor(pugi::xml_node node);
    /// The sensors in a `gazebo` element, on the link or joint that it refers to.
    void readExtension(pugi::xml_node gazebo);

private:
    /// `carrier` is the attribute of `owner` that names what carries the sensor.
    void read(pugi::xml_node node, std::string_view kindName, pugi::xml_node owner, char const* carrier);
    bool findParent(std::string_view carrier, std::string& parent) const;
    void fill(pugi::xml_node node, SensorKind const& kind, SensorConfig& sensor);
    Pose readPose(pugi::xml_node node, std::string_view carrier);

    LinkTree const& _tree;
    Records& _robot;
    Report const& _report;
    UniqueNames _names;
};

}  // namespace Varo::Model::Urdf

#endif
