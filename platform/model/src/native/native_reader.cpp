#include "native/native_reader.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <string_view>

#include "native/chain_places.hpp"
#include "native/elements.hpp"
#include "native/strict_reader.hpp"
#include "robot/mimics.hpp"
#include "xml/document.hpp"

namespace Varo::Model {

namespace {

constexpr PartPlace parts[] = {
    {Part::name, "of", {}, "angle"},
    {Part::name, "name"},
    {Part::parent, "parent"},
    {Part::mirror, {}, "mirror"},
    {Part::minimum, "min"},
    {Part::maximum, "max"},
    {Part::effort, "maxTorque"},
    {Part::velocity, "maxVelocity", {}, "wheel"},
    {Part::velocity, "maxSpeed"},
    {Part::mass, "value", "mass"},
    {Part::centerOfMass, "com", "mass"},
    {Part::inertia, "inertia", "mass"},
    {Part::material, "value", "attribute", {}, "material"},
    {Part::value, "value"},
    {Part::placement, {}, "placement"},
    {Part::damping, "damping"},
    {Part::friction, "friction"},
    {Part::geometry, {}, "mesh|box|cylinder|sphere|capsule", "visual"},
    {Part::geometry, {}, "mesh|box|cylinder|sphere|capsule", "collision"},
    {Part::geometry, "mesh"},
    {Part::tip, {}, "tipPlacement"},
    {Part::ratio, "ratio"},
    {Part::mimic, {}, "mimic"},
    {Part::resolutions, "value", "attribute", {}, "resolutions"},
};

/// How many elements of each of the names there are in one.
template <std::size_t size>
std::array<std::size_t, size> countChildren(XmlNode node, std::array<std::string_view, size> const& names)
{
    std::array<std::size_t, size> counts = {};
    auto kind = names.begin();
    for (XmlNode const child : node.children()) {
        std::string_view const name = child.name();
        if (kind == names.end() || *kind != name) {  // elements of one kind mostly stand together
            kind = std::find(names.begin(), names.end(), name);
        }
        if (kind != names.end()) {
            ++counts[static_cast<std::size_t>(kind - names.begin())];
        }
    }
    return counts;
}

/// Of its own, and those that are defined elsewhere and follow it: each has a record.
std::size_t countSubJoints(XmlNode actuator)
{
    std::size_t members = 0;
    for (XmlNode const group : actuator.children("group")) {
        constexpr std::array<std::string_view, 2> kinds = {"subJoint", "jointRef"};
        auto const [subJoints, followers] = countChildren(group, kinds);
        members += subJoints + followers;
    }
    return members;
}

/// Records are large: tables that grow while they are read would move each of them several times.
void reserve(Records& robot, Native::Names& names, XmlNode root)
{
    constexpr std::array<std::string_view, 6> kinds = {"joint", "chain", "actuator", "wheel", "sensor", "posture"};
    auto const [joints, chains, actuators, wheels, sensors, postures] = countChildren(root, kinds);
    std::size_t subJoints = 0;
    if (actuators > 0) {
        for (XmlNode const actuator : root.children("actuator")) {
            subJoints += countSubJoints(actuator);
        }
    }
    robot.joints.reserve(joints);
    robot.chains.reserve(chains);
    robot.actuators.reserve(actuators);
    robot.subActuators.reserve(subJoints);
    robot.wheels.reserve(wheels);
    robot.sensors.reserve(sensors);
    robot.postures.reserve(postures);
    names.reserve(1 + joints + chains + actuators + subJoints + wheels + sensors + postures);
}

}  // namespace

Range<PartPlace> const nativeParts = parts;

Records readNative(XmlNode root, Diagnostics& diagnostics)
{
    Records robot;
    robot.dialect = "native";
    Native::StrictReader reader(diagnostics, robot);
    reserve(robot, reader.names(), root);
    reader.read(Native::robotDescriptionElement, root, robot);
    reader.names().checkReferences(robot);
    checkMimics(robot, diagnostics);
    Native::checkChainPlaces(robot, root, diagnostics);
    return robot;
}

}  // namespace Varo::Model
