#include "urdf/urdf_reader.hpp"

#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

#include "robot/link_tree.hpp"
#include "robot/tree_records.hpp"
#include "robot/unsupported.hpp"
#include "urdf/elements.hpp"
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
    {Part::placement, {}, "origin"},
    {Part::axis, {}, "axis"},
    {Part::damping, "damping", "dynamics"},
    {Part::friction, "friction", "dynamics"},
    {Part::mimic, {}, "mimic"},
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

    pugi::xml_node _root;
    Diagnostics& _diagnostics;
    Unsupported _unsupported;
    Report _report = {_diagnostics, _unsupported};
    LinkTree _tree;
    std::vector<pugi::xml_node> _links;  ///< one for one as in the tree
    std::vector<pugi::xml_node> _extensions;
    std::vector<pugi::xml_node> _sensors;
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
    _unsupported.report(_diagnostics);
    if (!_diagnostics.hasErrors()) {
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
    _robot.statesMirrors = false;
    _robot.holdsAllStated = false;
    _robot.name = _root.attribute("name").value();
    _robot.version = _root.attribute("version").value();
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
}

}  // namespace

}  // namespace Urdf

Range<PartPlace> const urdfParts = Urdf::parts;

Records readUrdf(pugi::xml_node root, Diagnostics& diagnostics)
{
    return Urdf::Reader(root, diagnostics).read();
}

}  // namespace Varo::Model
