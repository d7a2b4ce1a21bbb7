#ifndef PYTHON_ENUMERATIONS_HPP
#define PYTHON_ENUMERATIONS_HPP

#include <tuple>

#include "sim/actuator.hpp"
#include "sim/joint.hpp"
#include "sim/joint_symmetry.hpp"
#include "sim/led_actuator.hpp"
#include "sim/link.hpp"
#include "sim/sensor.hpp"
#include "types.hpp"
#include "varo/model/configs.hpp"
#include "varo/model/finding.hpp"

namespace Python {

/// What the package calls an enumeration. Its members have the numbers of ours.
template <class Enum>
struct Enumeration {
    char const* name;
};

inline constexpr std::tuple enumerations{
    Enumeration<Sim::Actuator::Type>{"ActuatorType"},
    Enumeration<Sim::Joint::Type>{"JointType"},
    Enumeration<Sim::JointSymmetry::SymmetryType>{"SymmetryType"},
    Enumeration<Sim::LEDActuator::Color>{"Color"},
    Enumeration<Sim::Link::LinkType>{"LinkType"},
    Enumeration<Sim::Sensor::Type>{"SensorType"},
    Enumeration<Varo::Model::ExtensionOwner>{"ExtensionOwner"},
    Enumeration<Varo::Model::Severity>{"Severity"},
    Enumeration<Varo::Model::TransmissionSource>{"TransmissionSource"},
};

/// The member of the package's enumeration that stands for the value.
template <class Enum>
py::object enumerator(Enum value)
{
    return packageClass(std::get<Enumeration<Enum>>(enumerations).name)(static_cast<int>(value));
}

}  // namespace Python

#endif
