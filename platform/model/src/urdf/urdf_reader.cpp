#include "urdf/urdf_reader.hpp"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "robot/robot_record.hpp"
#include "urdf/bodies.hpp"
#include "urdf/chains.hpp"
#include "urdf/couplings.hpp"
#include "urdf/description.hpp"
#include "urdf/elements.hpp"
#include "urdf/joints.hpp"
#include "urdf/names.hpp"
#include "urdf/sensors.hpp"
#include "urdf/tree.hpp"
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
    void placeJoints();
    void addJoints();

    pugi::xml_node _root;
    Diagnostics& _diagnostics;
    Uncarried _uncarried;
    Report _report = {_diagnostics, _uncarried};
    Description _description;
    std::vector<pugi::xml_node> _extensions;
    std::vector<pugi::xml_node> _sensors;
    UniqueNames _names;
    Records _robot;
};

/// Every step reads on after errors, so that one reading finds them all; records that hang together are made only of a
/// description without any.
Records Reader::read()
{
    readElements();
    connect(_description, _root, _diagnostics);
    readIdentity();
    readBodies();
    readSensors();
    std::vector<Following> const followings = followMimics(_description, _diagnostics);
    _uncarried.report(_diagnostics);
    if (_diagnostics.hasErrors()) {
        return {};
    }
    Offspring const offspring = sortOffspring(_description);
    _robot.chains = makeChains(_description, offspring, _robot.root.name);
    makeCouplings(_description, followings, buildingOrder(_description, offspring), _names, _robot, _diagnostics);
    placeJoints();
    addJoints();
    return std::move(_robot);
}

void Reader::readElements()
{
    auto const isJoint = [](pugi::xml_node child) { return std::strcmp(child.name(), "joint") == 0; };
    auto const children = _root.children();
    auto const joints = std::count_if(children.begin(), children.end(), isJoint);
    _description.joints.reserve(static_cast<std::size_t>(joints));
    for (pugi::xml_node child : _root.children()) {
        std::string_view const name = child.name();
        if (name == "link") {
            _description.links.push_back({child, readName(child, _diagnostics)});
        } else if (name == "joint") {
            _description.joints.push_back(readJoint(child, _report));
        } else if (name == "gazebo") {
            _extensions.push_back(child);
        } else if (name == "sensor") {
            _sensors.push_back(child);
        } else if (child.type() == pugi::node_element) {
            _uncarried.add(child);
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
    if (_robot.name.empty()) {
        _diagnostics.report(at(_root), codes::unnamedRobot, "This robot has no name; it is called \"robot\".");
        _robot.name = "robot";
    }
    if (_description.root == none) {
        return;
    }
    // In the records a link is called after the joint that moves it, so that the root must not share a joint's name.
    for (Joint const& joint : _description.joints) {
        _names.claim(joint.config.name, "this joint", joint.node, _diagnostics);
    }
    Link const& root = _description.links[_description.root];
    _robot.root.textOffset = at(root.node);
    _robot.root.name = _names.claim(std::string(root.name), "the root of the records", root.node, _diagnostics);
}

void Reader::readBodies()
{
    for (Link const& link : _description.links) {
        JointConfig& body = link.parentJoint == none ? _robot.root : _description.joints[link.parentJoint].config;
        readBody(link.node, body, _report);
    }
}

void Reader::readSensors()
{
    SensorReader reader(_description, _robot, _report);
    for (pugi::xml_node sensor : _sensors) {
        reader.readSensor(sensor);
    }
    for (pugi::xml_node extension : _extensions) {
        reader.readExtension(extension);
    }
}

/// A joint turns about the z axis of its own frame. That frame is therefore turned from the child link's, and the end
/// transform turns back, so that link frames lie where the text says. What follows is placed in the turned frame.
void Reader::placeJoints()
{
    for (Joint& joint : _description.joints) {
        Pose const turn = {joint.axis, {}};
        std::size_t const before = _description.links[joint.parentLink].parentJoint;
        Pose const end = before == none ? Pose() : inverse({_description.joints[before].axis, {}});
        joint.config.placement = toTransform(end * joint.origin * turn);
        joint.config.endTransform = toTransform(inverse(turn));
    }
}

void Reader::addJoints()
{
    _robot.joints.reserve(_description.joints.size());
    for (Joint& joint : _description.joints) {
        _robot.joints.add(std::move(joint.config));
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
