#ifndef TOOL_SUPPORT_DEVICE_KINDS_HPP
#define TOOL_SUPPORT_DEVICE_KINDS_HPP

#include <array>

#include "sim/actuator.hpp"
#include "sim/sensor.hpp"

namespace Tool {

/// The value of a device's type, and its name as the library spells it.
struct DeviceKind {
    int type;
    char const* name;
};

inline constexpr std::array<DeviceKind, 7> actuatorKinds = {{
    {Sim::Actuator::Angle, "Angle"},
    {Sim::Actuator::Coupled, "Coupled"},
    {Sim::Actuator::Torque, "Torque"},
    {Sim::Actuator::AngleSpeed, "AngleSpeed"},
    {Sim::Actuator::WheelTorque, "WheelTorque"},
    {Sim::Actuator::WheelVelocity, "WheelVelocity"},
    {Sim::Actuator::LED, "LED"},
}};

inline constexpr std::array<DeviceKind, 15> sensorKinds = {{
    {Sim::Sensor::Angle, "Angle"},
    {Sim::Sensor::Coupled, "Coupled"},
    {Sim::Sensor::Sonar, "Sonar"},
    {Sim::Sensor::Camera, "Camera"},
    {Sim::Sensor::FSR, "FSR"},
    {Sim::Sensor::Inertial, "Inertial"},
    {Sim::Sensor::Bumper, "Bumper"},
    {Sim::Sensor::Torque, "Torque"},
    {Sim::Sensor::AngleSpeed, "AngleSpeed"},
    {Sim::Sensor::WheelVelocity, "WheelVelocity"},
    {Sim::Sensor::Tactile, "Tactile"},
    {Sim::Sensor::SingleDepth, "SingleDepth"},
    {Sim::Sensor::ArrayDepth, "ArrayDepth"},
    {Sim::Sensor::CameraDepth, "CameraDepth"},
    {Sim::Sensor::Microphone, "Microphone"},
}};

template <class Kinds>
char const* nameOfType(Kinds const& kinds, int type)
{
    for (DeviceKind const& kind : kinds) {
        if (kind.type == type) {
            return kind.name;
        }
    }
    return "unknown";
}

inline char const* typeName(Sim::Actuator const& actuator)
{
    return nameOfType(actuatorKinds, actuator.type());
}

inline char const* typeName(Sim::Sensor const& sensor)
{
    return nameOfType(sensorKinds, sensor.type());
}

}  // namespace Tool

#endif
