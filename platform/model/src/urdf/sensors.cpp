#include "urdf/sensors.hpp"

#include <algorithm>
#include <string>
#include <utility>

#include "urdf/numbers.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Urdf {

namespace {

constexpr std::string_view oldPrefix = "sensor:";  // <sensor:camera> is the old form of <sensor type="camera">

bool isSensor(std::string_view element)
{
    return element == "sensor" || element.substr(0, oldPrefix.size()) == oldPrefix;
}

/// Files that leave out the type say the kind by the element that holds its settings.
std::string_view kindNameOf(pugi::xml_node sensor)
{
    std::string_view const element = sensor.name();
    if (element != "sensor") {
        return element.substr(oldPrefix.size());
    }
    if (pugi::xml_attribute const type = sensor.attribute("type")) {
        return type.value();
    }
    for (pugi::xml_node child : sensor.children()) {
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

void SensorReader::readSensor(pugi::xml_node node)
{
    read(node, kindNameOf(node), node.child("parent"), "link");
}

void SensorReader::readExtension(pugi::xml_node gazebo)
{
    bool saysMore = false;
    for (pugi::xml_node child : gazebo.children()) {
        if (isSensor(child.name())) {
            read(child, kindNameOf(child), gazebo, "reference");
        } else {
            saysMore = saysMore || child.type() == pugi::node_element;
        }
    }
    if (saysMore) {
        _report.passOver(gazebo);
    }
}

/// A sensor on a joint is taken to be on the link that the joint moves.
bool SensorReader::findParent(std::string_view carrier, std::string& parent) const
{
    std::size_t const link = find(_tree.linkByName, carrier);
    std::size_t const joint = link == none ? find(_tree.jointByName, carrier) : _tree.links[link].parentJoint;
    if (link == none && joint == none) {
        return false;
    }
    parent = joint == none ? _tree.rootBody.name : _tree.joints[joint].config.name;
    return true;
}

Pose SensorReader::readPose(pugi::xml_node node, std::string_view carrier)
{
    pugi::xml_node const pose = node.child("pose");
    if (!pose) {
        return readOrigin(node.child("origin"), _report.diagnostics);
    }
    for (char const* attribute : {"frame", "relative_to"}) {
        std::string_view const frame = pose.attribute(attribute).value();
        if (!frame.empty() && frame != carrier) {
            _report.diagnostics.report(
                at(pose, attribute), codes::sensorFrameLost,
                "This pose is read in the frame of the link that carries the sensor, not in " + quoted(frame) + ".");
        }
    }
    double values[6] = {};
    readNumbers(pose, {}, values, 6, _report.diagnostics);
    return poseFrom({values[0], values[1], values[2]}, {values[3], values[4], values[5]});
}

void SensorReader::read(pugi::xml_node node, std::string_view kindName, pugi::xml_node owner, char const* carrier)
{
    Diagnostics& diagnostics = _report.diagnostics;
    std::string_view const carrierName = owner.attribute(carrier).value();
    SensorConfig sensor;
    sensor.textOffset = at(node);
    if (!findParent(carrierName, sensor.parent)) {
        diagnostics.report(at(node), codes::sensorLost,
                           carrierName.empty()
                               ? "This sensor is left out: nothing says which link carries it."
                               : "This sensor is left out: there is no link " + quoted(carrierName) + ".");
        return;
    }
    std::string_view const name = *node.attribute("name").value() != 0 ? readName(node, diagnostics) : carrierName;
    sensor.name = _names.claim(std::string(name), "this sensor", at(node), diagnostics);
    sensor.placement = toTransform(readPose(node, carrierName));
    if (SensorKind const* const kind = findSensorKind(kindName)) {
        fill(node, *kind, sensor);
    } else {
        diagnostics.report(at(node), codes::sensorKindLost,
                           "The model has no class for sensors of the kind " + quoted(kindName) + ".");
        sensor.attributes["urdfType"] = kindName;
    }
    _robot.sensors.add(std::move(sensor));
}

/// Type, keys and size, as the loaders of a model want them for sensors of this kind.
void SensorReader::fill(pugi::xml_node node, SensorKind const& kind, SensorConfig& sensor)
{
    sensor.type = kind.type;
    for (std::string_view const quantity : kind.quantities) {
        sensor.keys.push_back(sensorKey(sensor.name, quantity));
    }
    if (!hasSize(kind.type)) {
        return;
    }
    SensorSize size = readSensorSize(node, kind.type);
    if (!size.isUsable()) {
        size = defaultSensorSize(kind.type);
        _report.diagnostics.report(at(node), codes::sensorSize,
                                   "This sensor states no usable size; " + std::to_string(size.width) + " by " +
                                       std::to_string(size.height) + " is assumed.");
    }
    sensor.attributes["resolutions"] = std::to_string(size.width) + " " + std::to_string(size.height);
}

}  // namespace Varo::Model::Urdf
