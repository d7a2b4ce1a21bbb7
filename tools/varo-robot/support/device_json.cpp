#include "sim/angle_actuator.hpp"
#include "sim/angle_speed_actuator.hpp"
#include "sim/array_depth_sensor.hpp"
#include "sim/camera_depth_sensor.hpp"
#include "sim/camera_sensor.hpp"
#include "sim/coupled_actuator.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/led_actuator.hpp"
#include "sim/torque_actuator.hpp"
#include "sim/wheel_torque_actuator.hpp"
#include "sim/wheel_velocity_actuator.hpp"
#include "support/device_kinds.hpp"
#include "support/element_json.hpp"
#include "support/json_parts.hpp"

namespace Tool {

namespace {

Json ratiosOf(Sim::CoupledActuator const& actuator)
{
    Json ratios = Json::array();
    for (auto const& [joint, ratio] : actuator.controlledJointAndRatios()) {
        ratios.push_back(Json::array({nameOrNull(joint), ratio}));
    }
    return ratios;
}

char const* colorOf(Sim::LEDActuator const& led)
{
    switch (led.color()) {
    case Sim::LEDActuator::Red: return "Red";
    case Sim::LEDActuator::Green: return "Green";
    case Sim::LEDActuator::Blue: break;
    }
    return "Blue";
}

template <class Motor>
void addRange(Json& json, Motor const& motor)
{
    json["startValue"] = motor.startValue();
    json["minValue"] = motor.minValue();
    json["maxValue"] = motor.maxValue();
}

template <class Motor>
void addMirror(Json& json, Motor const& motor)
{
    json["reflectedSymmetric"] = nameOrNull(motor.reflectedSymmetric());
    json["reflectedSymmetricReversed"] = motor.reflectedSymmetricReversed();
}

// What is peculiar to each kind of actuator.

void addOwn(Json& json, Sim::AngleActuator const& motor)
{
    addRange(json, motor);
    json["maxSpeed"] = motor.maxSpeed();
    json["controlledJoint"] = nameOrNull(motor.controlledJoint());
    addMirror(json, motor);
    json["reflectionForced"] = motor.reflectionForced();
}

void addOwn(Json& json, Sim::CoupledActuator const& motor)
{
    addRange(json, motor);
    json["maxSpeed"] = motor.maxSpeed();
    addMirror(json, motor);
    json["reflectionForced"] = motor.reflectionForced();
    json["controlledJointAndRatios"] = ratiosOf(motor);
}

template <class Motor>
void addJointMotor(Json& json, Motor const& motor)
{
    addRange(json, motor);
    json["controlledJoint"] = nameOrNull(motor.controlledJoint());
    addMirror(json, motor);
}

void addOwn(Json& json, Sim::TorqueActuator const& motor)
{
    addJointMotor(json, motor);
}

void addOwn(Json& json, Sim::AngleSpeedActuator const& motor)
{
    addJointMotor(json, motor);
}

void addOwn(Json& json, Sim::WheelTorqueActuator const& motor)
{
    json["maxTorque"] = motor.maxTorque();
    json["controlledJoint"] = nameOrNull(motor.controlledJoint());
}

void addOwn(Json& json, Sim::WheelVelocityActuator const& motor)
{
    json["maxVelocity"] = motor.maxVelocity();
    json["controlledJoint"] = nameOrNull(motor.controlledJoint());
}

void addOwn(Json& json, Sim::LEDActuator const& led)
{
    json["shortname"] = led.shortname();
    json["groups"] = led.groups();
    json["color"] = colorOf(led);
}

/// Adds what is peculiar to the first of the `Kinds` that the actuator is of.
template <class... Kinds>
void addOwnAsOneOf(Json& json, Sim::Actuator const& actuator)
{
    auto const tryKind = [&](auto const* concrete) {
        if (concrete != nullptr) {
            addOwn(json, *concrete);
        }
        return concrete != nullptr;
    };
    (tryKind(dynamic_cast<Kinds const*>(&actuator)) || ...);
}

template <class Pictured>
bool addSize(Json& json, Sim::Sensor const& sensor)
{
    auto const* const pictured = dynamic_cast<Pictured const*>(&sensor);
    if (pictured != nullptr) {
        json["width"] = pictured->width();
        json["height"] = pictured->height();
    }
    return pictured != nullptr;
}

}  // namespace

template <class Device>
Json ElementJson::deviceJson(Device const& device)
{
    return {
        {"name", device.name()},
        {"type", typeName(device)},
        {"frame", nameOrNull(device.frame())},
        {"globalPosition", globalPosition(device.frame())},
        {"bufferSize", device.bufferSize()},
    };
}

Json ElementJson::of(Sim::Actuator const& actuator)
{
    Json json = deviceJson(actuator);
    if (auto const* const keyed = dynamic_cast<Sim::DCMActuator const*>(&actuator)) {
        json["dcmKeys"] = keyed->dcmKeys();
    }
    addOwnAsOneOf<Sim::AngleActuator, Sim::CoupledActuator, Sim::TorqueActuator, Sim::AngleSpeedActuator,
                  Sim::WheelTorqueActuator, Sim::WheelVelocityActuator, Sim::LEDActuator>(json, actuator);
    return json;
}

Json ElementJson::of(Sim::Sensor const& sensor)
{
    Json json = deviceJson(sensor);
    if (auto const* const keyed = dynamic_cast<Sim::DCMSensor const*>(&sensor)) {
        json["dcmKeys"] = keyed->dcmKeys();
        json["dcmStateKeys"] = keyed->dcmStateKeys();
        json["dcmCommandKeys"] = keyed->dcmCommandKeys();
    }
    addSize<Sim::CameraSensor>(json, sensor) || addSize<Sim::CameraDepthSensor>(json, sensor) ||
        addSize<Sim::ArrayDepthSensor>(json, sensor);
    return json;
}

}  // namespace Tool
