#include "urdf/sensor_statement.hpp"

#include <algorithm>
#include <iterator>

#include "robot/pose.hpp"
#include "urdf/sensor_kinds.hpp"
#include "urdf/sensor_settings.hpp"
#include "urdf/values.hpp"

namespace Varo::Model::Urdf {

namespace {

std::string_view firstStep(std::string_view path)
{
    return path.substr(0, path.find('/'));
}

/// A type that URDF has no kind for is told by its word.
std::string kindNameOf(SensorConfig const& sensor)
{
    auto const stated = sensor.attributes.find("urdfType");
    if (stated != sensor.attributes.end()) {
        return stated->second;
    }
    SensorKind const* const kind = defaultKind(sensor.type);
    return kind != nullptr ? std::string(kind->name) : Schema::printWord(sensorTypeWords, sensor.type);
}

/// The element in which the noise of a sensor of that kind stands.
std::string_view noisyElementOf(SensorConfig const& sensor, std::string_view kind)
{
    if (std::find(noisyElements.begin(), noisyElements.end(), kind) != noisyElements.end()) {
        return kind;
    }
    return sensor.type == camera || sensor.type == depthCamera ? "camera" : sensor.type == arrayDepth ? "ray" : "imu";
}

/// The element at the path, with those around it, which are added where there are none.
SensorStatement& partAt(SensorStatement& element, std::string_view path)
{
    SensorStatement* part = &element;
    while (!path.empty()) {
        std::string_view const step = firstStep(path);
        path.remove_prefix(std::min(step.size() + 1, path.size()));
        auto& parts = part->parts;
        auto const found =
            std::find_if(parts.begin(), parts.end(), [&](auto const& each) { return each.name == step; });
        part = found != parts.end() ? &*found : &parts.emplace_back(SensorStatement{std::string(step)});
    }
    return *part;
}

/// Whatever may be an element may be an attribute.
template <class Record>
void addSettings(Range<Setting<Record>> table, Record const& record, SensorStatement& element)
{
    for (Setting<Record> const& setting : table) {
        std::string const value = setting.print == nullptr ? std::string() : setting.print(record);
        if (!value.empty()) {
            std::size_t const slash = setting.path.rfind('/');
            bool const isOwn = slash == std::string_view::npos;
            SensorStatement& part = isOwn ? element : partAt(element, setting.path.substr(0, slash));
            part.attributes.emplace_back(setting.path.substr(isOwn ? 0 : slash + 1), value);
        }
    }
}

void addNoises(std::vector<NoiseSettings> const& noises, std::string_view around, SensorStatement& element)
{
    for (NoiseSettings const& noise : noises) {
        std::string const path = std::string(around) + (noise.quantity.empty() ? "" : "/") + noise.quantity;
        SensorStatement stated{"noise"};
        addSettings(noiseSettings, noise, stated);
        partAt(element, path).parts.push_back(std::move(stated));
    }
}

/// An extension in an element that bears another name is to stay in that.
void renameParts(SensorStatement& element, std::vector<std::string_view> const& within)
{
    for (std::string_view const path : within) {
        auto const* const alias = std::find_if(sensorAliases.begin(), sensorAliases.end(),
                                               [&](SensorAlias const& known) { return known.name == firstStep(path); });
        if (alias != sensorAliases.end()) {
            for (SensorStatement& part : element.parts) {
                part.name = part.name == alias->meant ? std::string(alias->name) : part.name;
            }
        }
    }
}

/// Of what is in a link that lies elsewhere in the text.
Math::Transform shifted(Math::Transform const& placement, Vector const& shift)
{
    Pose pose = toPose(placement);
    for (std::size_t i = 0; i < shift.size(); ++i) {
        pose.translation[i] += shift[i];
    }
    return shift == Vector() ? placement : toTransform(pose);
}

/// As an `origin` or, where an extension is in such an element, a `pose`.
void addPlacement(Math::Transform const& placement, bool isPose, ShortPoses& poses, SensorStatement& element)
{
    auto const [xyz, rpy] = poses.poseOf(placement);
    std::string const position = Reals3::print(xyz);
    std::string const angles = Reals3::print(rpy);
    if (isPose) {
        element.parts.push_back({"pose", {}, position + " " + angles});
    } else if (placement != Math::Transform()) {
        element.parts.push_back({"origin", {{"xyz", position}, {"rpy", angles}}});
    }
}

}  // namespace

SensorStatement toStatement(SensorConfig const& sensor, std::string_view link, Vector const& shift,
                            std::vector<std::string_view> const& within, ShortPoses& poses)
{
    std::string const kind = kindNameOf(sensor);
    SensorStatement element{"sensor", {{"name", sensor.name}, {"type", kind}}};
    element.parts.push_back({"parent", {{"link", std::string(link)}}});
    bool const isPose =
        std::any_of(within.begin(), within.end(), [](std::string_view path) { return firstStep(path) == "pose"; });
    addPlacement(shifted(sensor.placement, shift), isPose, poses, element);
    if (sensor.settings != nullptr) {
        addSettings(sensorSettings, *sensor.settings, element);
        addNoises(sensor.settings->noises, noisyElementOf(sensor, kind), element);
        renameParts(element, within);
    }
    return element;
}

}  // namespace Varo::Model::Urdf
