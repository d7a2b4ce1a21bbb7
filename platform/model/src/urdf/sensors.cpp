#include "urdf/sensors.hpp"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "urdf/numbers.hpp"
#include "urdf/sensor_settings.hpp"
#include "urdf/unknown_names.hpp"
#include "varo/model/name_hash.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

namespace {

constexpr std::string_view oldPrefix = "sensor:";  // <sensor:camera> is the old form of <sensor type="camera">

bool isSensor(std::string_view element)
{
    return element == "sensor" || element.substr(0, oldPrefix.size()) == oldPrefix;
}

/// Files that leave out the type say the kind by the element that holds its settings.
std::string_view kindNameOf(XmlNode sensor)
{
    std::string_view const element = sensor.name();
    if (element != "sensor") {
        return element.substr(oldPrefix.size());
    }
    if (XmlAttribute const type = sensor.attribute("type")) {
        return type.value();
    }
    for (XmlNode child : sensor.children()) {
        if (findSensorKind(child.name()) != nullptr) {
            return child.name();
        }
    }
    return {};
}

/// The blanks that a name may begin with are not the key's: the native dialect writes keys as text.
std::string sensorKey(std::string_view sensor, std::string_view quantity)
{
    sensor.remove_prefix(std::min(sensor.find_first_not_of(" \t\r\n"), sensor.size()));
    std::string key;
    key.reserve(sensor.size() + quantity.size() + 8);
    return key.append(sensor).append("/").append(quantity).append("/Sensor");
}

bool hasSize(SensorType type)
{
    return type == camera || type == depthCamera || type == arrayDepth;
}

}  // namespace

void SensorReader::readSensor(XmlNode node)
{
    XmlNode const parent = node.child("parent");
    XmlAttribute const joint = parent.attribute("joint");
    if (!read(node, {(joint ? joint : parent.attribute("link")).value(), bool(joint)})) {
        _report.passOver(node);
    }
}

/// An element that refers to nothing is kept as one, so that what it refers to is kept with it.
void SensorReader::readExtension(XmlNode gazebo)
{
    XmlAttribute const reference = gazebo.attribute("reference");
    bool const isDangling = reference && !findBearer(reference.value(), _tree);
    if (isDangling && !gazebo.child("sensor")) {
        reportDangling(gazebo, reference);
    }
    for (XmlAttribute const attribute : gazebo.attributes()) {
        if (!isDangling && attribute != reference) {
            _report.passOver(gazebo, attribute);
        }
    }
    for (XmlNode const child : gazebo.children()) {
        bool const isRead = isSensor(child.name()) && read(child, {reference.value()});
        if (!isRead && !isDangling && child.isElement()) {
            _report.passOver(child);
        }
    }
    if (isDangling) {
        _report.passOver(gazebo);
    }
}

/// Only what looks like a name that there is: others may be those of another robot, or of one that is attached later.
void SensorReader::reportDangling(XmlNode gazebo, XmlAttribute reference)
{
    std::string_view const name = reference.value();
    ClosestWord const near(name, farthestNear);
    for (std::string_view const close : {_tree.closestLink(near), _tree.closestJoint(near)}) {
        if (!close.empty() && isNear(name, close)) {
            _report.diagnostics.report(at(gazebo, reference), codes::unknownReference,
                                       "There is no link or joint " + quoted(name) + ".", didYouMean(close));
            return;
        }
    }
}

/// In one note: there is nothing to be done about it.
void SensorReader::reportKindsWithoutClass(XmlNode amendment)
{
    std::unordered_set<std::string_view, NameHash> amended;
    for (XmlNode const sensor : amendment.children("sensor")) {
        if (sensor.attribute("type")) {
            amended.insert(sensor.attribute("name").value());
        }
    }
    auto const isAmended = [&](XmlNode node) { return amended.count(node.attribute("name").value()) > 0; };
    _withoutClass.erase(std::remove_if(_withoutClass.begin(), _withoutClass.end(), isAmended), _withoutClass.end());
    if (_withoutClass.empty()) {
        return;
    }
    std::string const others =
        _withoutClass.size() > 1 ? ", and so are " + std::to_string(_withoutClass.size() - 1) + " more." : ".";
    _report.diagnostics.report(at(_withoutClass.front()), codes::sensorKind,
                               "This sensor, of the kind " + quoted(kindNameOf(_withoutClass.front())) +
                                   ", is in the records and has a frame in models, but no class" + others);
}

/// A sensor on a joint is taken to be on the link that the joint moves.
bool SensorReader::findParent(Carrier carrier, std::string& parent) const
{
    std::size_t const link = carrier.isJoint ? none : find(_tree.linkByName, carrier.name);
    std::size_t const joint = link == none ? find(_tree.jointByName, carrier.name) : _tree.links[link].parentJoint;
    if (link == none && joint == none) {
        return false;
    }
    parent = joint == none ? _tree.rootBody.name : _tree.joints[joint].config.name;
    return true;
}

Pose SensorReader::readPose(XmlNode node, std::string_view carrier)
{
    XmlNode const pose = node.child("pose");
    if (!pose) {
        return readOrigin(node.child("origin"), _report.diagnostics);
    }
    for (XmlAttribute const attribute : pose.attributes()) {
        _report.passOver(pose, attribute);
        std::string_view const name = attribute.name();
        std::string_view const frame = attribute.value();
        if ((name == "frame" || name == "relative_to") && !frame.empty() && frame != carrier) {
            _report.diagnostics.report(at(pose, attribute), codes::sensorFrame,
                                       "URDF has sensors posed in the frame of the link that carries them, and so this "
                                       "one is taken to be, not in " +
                                           quoted(frame) + ".");
        }
    }
    double values[6] = {};
    readNumbers(pose, {}, values, 6, _report.diagnostics);
    return poseFrom({values[0], values[1], values[2]}, {values[3], values[4], values[5]});
}

/// False for a sensor that nothing carries.
bool SensorReader::read(XmlNode node, Carrier carrier)
{
    Diagnostics& diagnostics = _report.diagnostics;
    SensorConfig sensor;
    sensor.textOffset = at(node);
    if (!findParent(carrier, sensor.parent)) {
        std::string const kind = carrier.isJoint ? "joint " : "link ";
        diagnostics.report(
            at(node), codes::sensorLost,
            carrier.name.empty() ? "This sensor is in no model: nothing says which link carries it."
                                 : "This sensor is in no model: there is no " + kind + quoted(carrier.name) + ".",
            didYouMean(carrier.isJoint ? _tree.closestJoint(carrier.name) : _tree.closestLink(carrier.name)));
        return false;
    }
    std::string_view const name = !node.attribute("name").value().empty() ? readName(node, diagnostics) : carrier.name;
    sensor.name = _names.claim(std::string(name), "this sensor", at(node), diagnostics);
    sensor.placement = toTransform(readPose(node, carrier.name));
    sensor.settings = readSensorSettings(node, _report);
    std::string_view const kindName = kindNameOf(node);
    SensorKind const* const kind = findSensorKind(kindName);
    if (kind != nullptr) {
        fill(node, *kind, sensor);
    } else {
        _withoutClass.push_back(node);
    }
    if (kind == nullptr || defaultKind(kind->type) != kind) {
        sensor.attributes["urdfType"] = kindName;
    }
    _report.extensions.addSensor(node, sensor.name);
    _robot.sensors.add(std::move(sensor));
    return true;
}

/// Type, keys and size, as the loaders of a model want them for sensors of this kind.
void SensorReader::fill(XmlNode node, SensorKind const& kind, SensorConfig& sensor)
{
    sensor.type = kind.type;
    for (std::string_view const quantity : kind.quantities) {
        sensor.keys.push_back(sensorKey(sensor.name, quantity));
    }
    if (!hasSize(kind.type)) {
        return;
    }
    SensorSize size = sensorSizeOf(sensor.settings.get(), kind.type);
    if (!size.isUsable()) {
        size = defaultSensorSize(kind.type);
        _report.diagnostics.report(at(node), codes::sensorSize,
                                   "This sensor states no usable size; " + std::to_string(size.width) + " by " +
                                       std::to_string(size.height) + " is assumed.");
    }
    sensor.attributes["resolutions"] = std::to_string(size.width) + " " + std::to_string(size.height);
}

}  // namespace Varo::Model::Urdf
