#include <type_traits>

#include "sim/model.hpp"
#include "support/device_kinds.hpp"
#include "support/element_json.hpp"
#include "support/json_parts.hpp"
#include "support/settings_json.hpp"

namespace Tool {

namespace {

template <class Value>
Json jsonOf(Value const& value)
{
    return value;
}

template <class Element>
Json jsonOf(Element const* element)
{
    return nameOrNull(element);
}

Json jsonOf(std::vector<std::pair<Sim::Joint const*, float>> const& jointsAndRatios)
{
    Json ratios = Json::array();
    for (auto const& [joint, ratio] : jointsAndRatios) {
        ratios.push_back(Json::array({nameOrNull(joint), ratio}));
    }
    return ratios;
}

Json jsonOf(Sim::LEDActuator::Color color)
{
    switch (color) {
    case Sim::LEDActuator::Red: return "Red";
    case Sim::LEDActuator::Green: return "Green";
    case Sim::LEDActuator::Blue: break;
    }
    return "Blue";
}

/// Adds, under its name, what each getter answers that the device has and others lack.
template <class Device>
void addOwn(Json& json, Device const& device)
{
    auto const add = [&](char const* name, auto const& get) {
        if constexpr (std::is_invocable_v<decltype(get), Device const&>) {
            append(json, {name, jsonOf(get(device))});
        }
    };
    add("dcmKeys", [](auto& of) -> decltype(of.dcmKeys()) { return of.dcmKeys(); });
    add("dcmStateKeys", [](auto& of) -> decltype(of.dcmStateKeys()) { return of.dcmStateKeys(); });
    add("dcmCommandKeys", [](auto& of) -> decltype(of.dcmCommandKeys()) { return of.dcmCommandKeys(); });
    add("startValue", [](auto& of) -> decltype(of.startValue()) { return of.startValue(); });
    add("minValue", [](auto& of) -> decltype(of.minValue()) { return of.minValue(); });
    add("maxValue", [](auto& of) -> decltype(of.maxValue()) { return of.maxValue(); });
    add("maxSpeed", [](auto& of) -> decltype(of.maxSpeed()) { return of.maxSpeed(); });
    add("maxTorque", [](auto& of) -> decltype(of.maxTorque()) { return of.maxTorque(); });
    add("maxVelocity", [](auto& of) -> decltype(of.maxVelocity()) { return of.maxVelocity(); });
    add("controlledJoint", [](auto& of) -> decltype(of.controlledJoint()) { return of.controlledJoint(); });
    add("reflectedSymmetric", [](auto& of) -> decltype(of.reflectedSymmetric()) { return of.reflectedSymmetric(); });
    add("reflectedSymmetricReversed",
        [](auto& of) -> decltype(of.reflectedSymmetricReversed()) { return of.reflectedSymmetricReversed(); });
    add("reflectionForced", [](auto& of) -> decltype(of.reflectionForced()) { return of.reflectionForced(); });
    add("controlledJointAndRatios",
        [](auto& of) -> decltype(of.controlledJointAndRatios()) { return of.controlledJointAndRatios(); });
    add("shortname", [](auto& of) -> decltype(of.shortname()) { return of.shortname(); });
    add("groups", [](auto& of) -> decltype(of.groups()) { return of.groups(); });
    add("color", [](auto& of) -> decltype(of.color()) { return of.color(); });
    add("width", [](auto& of) -> decltype(of.width()) { return of.width(); });
    add("height", [](auto& of) -> decltype(of.height()) { return of.height(); });
}

}  // namespace

template <class Device, class Kinds>
Json ElementJson::deviceJson(Device const& device, Kinds const& kinds)
{
    constexpr std::size_t mostOwn = 12;
    Json json = objectOf(
        {
            {"name", device.name()},
            {"type", typeName(device)},
            {"frame", nameOrNull(device.frame())},
            {"globalPosition", globalPosition(device.frame())},
            {"bufferSize", device.bufferSize()},
        },
        mostOwn);
    forEachKind(kinds, [&](auto const& kind) {
        using Class = typename std::decay_t<decltype(kind)>::Class;
        if (kind.type == device.type()) {
            addOwn(json, static_cast<Class const&>(device));
        }
    });
    return json;
}

Json ElementJson::of(Sim::Actuator const& actuator)
{
    return deviceJson(actuator, Sim::actuatorKinds);
}

Json ElementJson::of(Sim::Sensor const& sensor)
{
    Json json = deviceJson(sensor, Sim::sensorKinds);
    append(json, {"settings", settingsJson(sensor.settings())});
    return json;
}

}  // namespace Tool
