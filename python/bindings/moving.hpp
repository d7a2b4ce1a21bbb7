#ifndef PYTHON_MOVING_HPP
#define PYTHON_MOVING_HPP

#include <memory>
#include <stdexcept>
#include <string>

#include "element.hpp"
#include "sim/configuration.hpp"
#include "sim/kinematics.hpp"

namespace Python {

/// A robot in motion, and the model that it was made from.
struct MovingModel {
    ModelPtr owner;
    Sim::Kinematics kinematics;
};
using MovingPtr = std::shared_ptr<MovingModel>;

/// Where all joints stand, and of which robot.
struct JointValues {
    MovingPtr moving;
    Sim::Configuration values;
};

}  // namespace Python

namespace pybind11::detail {

template <>
struct type_caster<Python::MovingModel> : Python::MadeObjectCaster<Python::MovingModel> {};
template <>
struct type_caster<Python::JointValues> : Python::MadeObjectCaster<Python::JointValues> {};

}  // namespace pybind11::detail

namespace Python {

/// Makes joint values of what Python may have for them: None (all 0), the name of a posture, a dictionary of values by
/// names, or a sequence of all values.
Sim::Configuration configurationOf(MovingModel const& moving, py::object const& start);

/// The answer of a function that refuses nothing but a name: what it throws is raised as UnknownNameError.
template <class Ask>
auto askForName(std::string const& name, Ask ask) -> decltype(ask())
{
    try {
        return ask();
    } catch (std::invalid_argument const& error) {
        raise(packageClass("UnknownNameError")(name, error.what()));
    }
}

}  // namespace Python

#endif
