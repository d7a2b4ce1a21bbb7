#ifndef VARO_MODEL_URDF_SENSORS_HPP
#define VARO_MODEL_URDF_SENSORS_HPP

#include <string>
#include <string_view>
#include <vector>

#include "robot/link_tree.hpp"
#include "robot/unique_names.hpp"
#include "urdf/elements.hpp"
#include "urdf/sensor_kinds.hpp"
#include "varo/model/records.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

/// Adds sensors to the robot. The root of the tree must have its name by then.
class SensorReader {
public:
    SensorReader(LinkTree& tree, Records& robot, Report const& report) : _tree(tree), _robot(robot), _report(report) {}

    /// A `sensor` element that stands directly in the robot.
    void readSensor(XmlNode node);
    /// The sensors in a `gazebo` element, on the link or joint that it refers to; the rest of it is passed over.
    void readExtension(XmlNode gazebo);
    /// To be called when all sensors are read; `amendment` may say what some of them are.
    void reportKindsWithoutClass(XmlNode amendment);

private:
    /// What carries a sensor, as the text says it.
    struct Carrier {
        std::string_view name;
        bool isJoint = false;  ///< otherwise a link or, where there is none of the name, a joint
    };

    bool read(XmlNode node, Carrier carrier);
    void reportDangling(XmlNode gazebo, XmlAttribute reference);
    bool findParent(Carrier carrier, std::string& parent) const;
    void fill(XmlNode node, SensorKind const& kind, SensorConfig& sensor);
    Pose readPose(XmlNode node, std::string_view carrier);

    LinkTree& _tree;
    Records& _robot;
    Report const& _report;
    UniqueNames _names;
    std::vector<XmlNode> _withoutClass;  ///< sensors of kinds that the model has no class for
};

}  // namespace Varo::Model::Urdf

#endif
