#include "urdf/urdf_reader.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

#include "robot/link_tree.hpp"
#include "robot/tree_records.hpp"
#include "urdf/elements.hpp"
#include "urdf/extensions.hpp"
#include "urdf/ros2_control.hpp"
#include "urdf/sensors.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model {

namespace Urdf {

namespace {

constexpr PartPlace parts[] = {
    {Part::name, "name"},
    {Part::parent, "link", "parent"},
    {Part::minimum, "lower", "limit"},
    {Part::maximum, "upper", "limit"},
    {Part::effort, "effort", "limit"},
    {Part::velocity, "velocity", "limit"},
    {Part::mass, "value", "inertial/mass"},
    {Part::centerOfMass, "xyz", "inertial/origin"},
    {Part::inertia, {}, "inertial/inertia"},
};

class Reader {
public:
    Reader(pugi::xml_node root, Diagnostics& diagnostics) : _root(root), _diagnostics(diagnostics) {}

    Records read();

private:
    void readElements();
    void readIdentity();
    void readBodies();
    void readSensors();
    void readControls();

    pugi::xml_node _root;
    Diagnostics& _diagnostics;
    Extensions _kept;
    Report _report = {_diagnostics, _kept};
    LinkTree _tree;
    std::vector<pugi::xml_node> _links;  ///< one for one as in the tree
    std::vector<pugi::xml_node> _extensions;
    std::vector<pugi::xml_node> _sensors;
    std::vector<pugi::xml_node> _controls;
    Records _robot;
};

/// Every step reads on after errors, so that one reading finds them all; records that depend on each other are made
/// only of a tree without any.
Records Reader::read()
{
    readElements();
    connect(_tree, _diagnostics);
    readIdentity();
    readBodies();
    readSensors();
    readControls();
    if (!_diagnostics.hasErrors()) {
        _kept.addRecords(_tree, *_diagnostics.source(), _robot);
        addRecords(std::move(_tree), _robot, _diagnostics);
    }
    return std::move(_robot);
}

void Reader::readElements()
{
    auto const joints = _root.children("joint");
    _tree.textOffset = at(_root);
    _tree.joints.reserve(static_cast<std::size_t>(std::distance(joints.begin(), joints.end())));
    for (pugi::xml_node child : _root.children()) {
        std::string_view const name = child.name();
        if (name == "link") {
            _links.push_back(child);
            _tree.links.push_back({readName(child, _diagnostics), at(child), at(child, "name")});
        } else if (name == "joint") {
            _tree.joints.push_back(readJoint(child, _report));
        } else if (name == "gazebo") {
            _extensions.push_back(child);
        } else if (name == "sensor") {
            _sensors.push_back(child);
        } else if (name == "ros2_control") {
            _controls.push_back(child);
        } else if (child.type() == pugi::node_element) {
            _report.passOver(child);
        }
    }
}

void Reader::readIdentity()
{
    _robot.dialect = "urdf";
    _robot.statesActuators = false;
    _robot.statesPostures = false;
    _robot.name = _root.attribute("name").value();
    _robot.version = _root.attribute("version").value();
    for (pugi::xml_attribute const attribute : _root.attributes()) {
        std::string_view const name = attribute.name();
        if (name != "name" && name != "version") {
            _report.passOver(_root, attribute);
        }
    }
    if (_robot.name.empty()) {
        _diagnostics.report(at(_root), codes::unnamedRobot, "This robot has no name; it is called \"robot\".");
        _robot.name = "robot";
    }
}

void Reader::readBodies()
{
    for (std::size_t link = 0; link < _links.size(); ++link) {
        readBody(_links[link], _tree.bodyOf(_tree.links[link]), _report);
    }
}

void Reader::readSensors()
{
    SensorReader reader(_tree, _robot, _report);
    for (pugi::xml_node sensor : _sensors) {
        reader.readSensor(sensor);
    }
    for (pugi::xml_node extension : _extensions) {
        reader.readExtension(extension);
    }
    reader.reportKindsWithoutClass();
}

void Reader::readControls()
{
    for (pugi::xml_node system : _controls) {
        readRos2Control(system, _tree, _robot, _report);
    }
    std::stable_sort(_robot.transmissions.begin(), _robot.transmissions.end(),
                     [](auto const& a, auto const& b) { return a.textOffset.value() < b.textOffset.value(); });
}

}  // namespace

}  // namespace Urdf

Range<PartPlace> const urdfParts = Urdf::parts;

Records readUrdf(pugi::xml_node root, Diagnostics& diagnostics)
{
    return Urdf::Reader(root, diagnostics).read();
}

}  // namespace Varo::Model
