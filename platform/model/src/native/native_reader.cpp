#include "native/native_reader.hpp"

#include <iterator>

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

template <class Config>
void reserve(Table<Config>& table, XmlNode root, char const* element)
{
    auto const elements = root.children(element);
    table.reserve(static_cast<std::size_t>(std::distance(elements.begin(), elements.end())));
}

}  // namespace

Range<PartPlace> const nativeParts = parts;

Records readNative(XmlNode root, Diagnostics& diagnostics)
{
    Records robot;
    robot.dialect = "native";
    reserve(robot.joints, root, "joint");
    reserve(robot.chains, root, "chain");
    reserve(robot.sensors, root, "sensor");
    Native::StrictReader reader(diagnostics, robot);
    reader.read(Native::robotDescriptionElement, root, robot);
    reader.names().checkReferences(robot);
    checkMimics(robot, diagnostics);
    Native::checkChainPlaces(robot, root, diagnostics);
    return robot;
}

}  // namespace Varo::Model
