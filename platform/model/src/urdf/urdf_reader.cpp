#include "urdf/urdf_reader.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

#include "native/amendment.hpp"
#include "robot/kind_note.hpp"
#include "robot/link_tree.hpp"
#include "robot/tree_records.hpp"
#include "urdf/elements.hpp"
#include "urdf/extensions.hpp"
#include "urdf/own_namespace.hpp"
#include "urdf/ros2_control.hpp"
#include "urdf/schema.hpp"
#include "urdf/sensors.hpp"
#include "urdf/tolerant_reader.hpp"
#include "urdf/translation.hpp"
#include "xml/document.hpp"

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
    {Part::geometry, {}, "visual/geometry/mesh", "link"},
    {Part::geometry, {}, "geometry/mesh|box|cylinder|sphere|capsule"},
};

class Reader {
public:
    Reader(XmlNode root, Diagnostics& diagnostics) : _root(root), _diagnostics(diagnostics) {}

    Records read();

private:
    void readElements();
    void fillTree();
    void readIdentity();
    void readBodies();
    void readSensors();
    void readControls();

    XmlNode _root;
    Diagnostics& _diagnostics;
    Extensions _kept;
    Report _report = {_diagnostics, _kept};
    Robot _stated;
    XmlNode _amendment;  ///< what is said beyond URDF; null for nothing
    LinkTree _tree;
    Records _robot;
};

/// Every step reads on after errors, so that one reading finds them all; records that depend on each other are made
/// only of a tree without any.
Records Reader::read()
{
    readElements();
    fillTree();
    connect(_tree, _diagnostics);
    readIdentity();
    readBodies();
    readSensors();
    translateTransmissions(_stated, _tree, _robot, _report);
    readControls();
    _stated = {};  // to make room for the records
    if (!_diagnostics.hasErrors()) {
        _kept.addRecords(_tree, *_diagnostics.source(), _robot);
        addRecords(std::move(_tree), _robot, _diagnostics);
        if (_amendment) {
            Native::readAmendment(_amendment, _diagnostics, _robot);
        }
    }
    return std::move(_robot);
}

template <class Item>
void reserve(std::vector<Item>& items, XmlNode root, char const* element)
{
    auto const elements = root.children(element);
    items.reserve(static_cast<std::size_t>(std::distance(elements.begin(), elements.end())));
}

void Reader::readElements()
{
    reserve(_stated.links, _root, "link");
    reserve(_stated.joints, _root, "joint");
    TolerantReader reader(_report, _robot, ownPrefix(_root));
    reader.read(robotElement, _root, _stated);
    reader.reportKinds();
    _amendment = reader.amendment();
}

void Reader::fillTree()
{
    _tree.textOffset = at(_root);
    _tree.links.reserve(_stated.links.size());
    for (Link const& link : _stated.links) {
        _tree.links.push_back({link.name, at(link.node), at(link.node, "name")});
    }
    _tree.joints.reserve(_stated.joints.size());
    KindNote frozen;
    for (Joint const& joint : _stated.joints) {
        translateJoint(joint, _tree.joints.emplace_back(), _diagnostics);
        if (joint.type == planar || joint.type == floating) {
            frozen.add(at(joint.node, "type"), joint.name);
        }
    }
    frozen.report(codes::jointFrozen, "A planar or floating joint cannot be modelled and is held where it is",
                  _diagnostics);
}

void Reader::readIdentity()
{
    _robot.dialect = "urdf";
    _robot.statesActuators = false;
    _robot.statesPostures = false;
    _robot.statesMirrors = false;
    _robot.name = _stated.name;
    _robot.version = _stated.version;
    if (_robot.name.empty()) {
        _diagnostics.report(at(_root), codes::unnamedRobot, "This robot has no name; it is called \"robot\".");
        _robot.name = "robot";
    }
}

void Reader::readBodies()
{
    Materials const materials(_stated, _diagnostics);
    for (std::size_t link = 0; link < _stated.links.size(); ++link) {
        translateBody(_stated.links[link], materials, _tree.bodyOf(_tree.links[link]), _diagnostics);
    }
}

void Reader::readSensors()
{
    SensorReader reader(_tree, _robot, _report);
    for (XmlNode const sensor : _root.children("sensor")) {
        reader.readSensor(sensor);
    }
    for (XmlNode const extension : _root.children("gazebo")) {
        reader.readExtension(extension);
    }
    reader.reportKindsWithoutClass(_amendment);
}

void Reader::readControls()
{
    for (XmlNode const system : _root.children("ros2_control")) {
        readRos2Control(system, _tree, _robot, _report);
    }
    auto& all = _robot.transmissions;
    auto const precedes = [](auto const& a, auto const& b) { return a.textOffset.value() < b.textOffset.value(); };
    if (!std::is_sorted(all.begin(), all.end(), precedes)) {
        std::stable_sort(all.begin(), all.end(), precedes);
    }
}

}  // namespace

}  // namespace Urdf

Range<PartPlace> const urdfParts = Urdf::parts;

Records readUrdf(XmlNode root, Diagnostics& diagnostics)
{
    return Urdf::Reader(root, diagnostics).read();
}

}  // namespace Varo::Model
