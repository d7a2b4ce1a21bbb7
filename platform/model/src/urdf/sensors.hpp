#ifndef VARO_MODEL_URDF_SENSORS_HPP
#define VARO_MODEL_URDF_SENSORS_HPP

#include <string>
#include <string_view>
#include <vector>

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
    SensorReader(LinkTree& tree, Records& robot, Report const& report) : _tree(tree), _robot(robot), _report(report) {}

    /// A `sensor` element that stands directly in the robot.
    void readSensor(pugi::xml_node node);
    /// The sensors in a `gazebo` element, on the link or joint that it refers to; the rest of it is passed over.
    void readExtension(pugi::xml_node gazebo);
    /// To be called when all sensors are read; `amendment` may say what some of them are.
    void reportKindsWithoutClass(pugi::xml_node amendment);

private:
    /// What carries a sensor, as the text says it.
    struct Carrier {
        std::string_view name;
        bool isJoint = false;  ///< otherwise a link or, where there is none of the name, a joint
    };

    bool read(pugi::xml_node node, Carrier carrier);
    void reportDangling(pugi::xml_node gazebo, pugi::xml_attribute reference);
    bool findParent(Carrier carrier, std::string& parent) const;
    void fill(pugi::xml_node node, SensorKind const& kind, SensorConfig& sensor);
    Pose readPose(pugi::xml_node node, std::string_view carrier);

    LinkTree& _tree;
    Records& _robot;
    Report const& _report;
    UniqueNames _names;
    std::vector<pugi::xml_node> _withoutClass;  ///< sensors of kinds that the model has no class for
};

}  // namespace Varo::Model::Urdf

#endif
