#include <algorithm>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <pybind11/stl.h>

#include "arrays.hpp"
#include "classes.hpp"
#include "moving.hpp"

namespace Python {

namespace {

using Class = py::class_<JointValues>;

double numberOf(py::handle value)
{
    double const number = PyFloat_AsDouble(value.ptr());
    if (PyErr_Occurred() != nullptr) {
        throw py::error_already_set();
    }
    return number;
}

std::string nameOf(py::handle name)
{
    if (!py::isinstance<py::str>(name)) {
        throw py::type_error("Joints are named by str, not by " + std::string(Py_TYPE(name.ptr())->tp_name) + ".");
    }
    return name.cast<std::string>();
}

std::vector<double> numbersOf(py::object const& values)
{
    auto const array = py::array_t<double, py::array::c_style | py::array::forcecast>::ensure(values);
    if (!array) {
        throw py::type_error("Joint values are an array of numbers.");
    }
    if (array.ndim() != 1) {
        throw py::value_error("Joint values are an array of one dimension, not of " + std::to_string(array.ndim()) +
                              ".");
    }
    return std::vector<double>(array.data(), array.data() + array.size());
}

/// All or none of them.
void setNamed(Sim::Configuration& configuration, py::dict const& values)
{
    std::vector<std::pair<std::string, double>> named;
    for (auto const& [key, value] : values) {
        std::string const name = nameOf(key);
        askForName(name, [&] { return configuration.at(name); });
        named.emplace_back(name, numberOf(value));
    }
    configuration.set(named);
}

void setPosture(Sim::Configuration& configuration, Sim::Model const& model, std::string const& name)
{
    auto const& postures = model.postures();
    auto const isNamed = [&name](auto const& posture) { return posture.name == name; };
    if (std::any_of(postures.begin(), postures.end(), isNamed)) {
        configuration.setPosture(name);
    } else {
        askForName(name, [&] { configuration.setPosture(name); });
    }
}

/// Which value a number from Python means, which counts from the end when it is negative.
std::size_t indexOf(JointValues const& self, py::ssize_t index)
{
    auto const size = static_cast<py::ssize_t>(self.values.size());
    py::ssize_t const fromStart = index < 0 ? index + size : index;
    if (fromStart < 0 || fromStart >= size) {
        throw py::index_error("There is no value " + std::to_string(index) + " among " + std::to_string(size) + ".");
    }
    return static_cast<std::size_t>(fromStart);
}

/// Python's keys are names and numbers.
using Key = std::variant<py::ssize_t, std::string>;

double valueAt(JointValues const& self, Key const& key)
{
    if (auto const* const name = std::get_if<std::string>(&key)) {
        return askForName(*name, [&] { return self.values.at(*name); });
    }
    return self.values[indexOf(self, std::get<py::ssize_t>(key))];
}

void setAt(JointValues& self, Key const& key, double value)
{
    if (auto const* const name = std::get_if<std::string>(&key)) {
        valueAt(self, key);  // what is refused for another reason than its name is no KeyError
        self.values.set(*name, value);
    } else {
        self.values.set(indexOf(self, std::get<py::ssize_t>(key)), value);
    }
}

double distanceToLimits(JointValues const& self, Key const& key)
{
    if (auto const* const name = std::get_if<std::string>(&key)) {
        valueAt(self, key);
        return self.values.distanceToLimits(self.moving->kinematics.variableOf(*name));
    }
    return self.values.distanceToLimits(indexOf(self, std::get<py::ssize_t>(key)));
}

py::dict asDict(JointValues const& self)
{
    py::dict values;
    auto const& variables = self.moving->kinematics.variables();
    for (std::size_t i = 0; i < variables.size(); ++i) {
        values[py::str(variables[i].name)] = self.values[i];
    }
    return values;
}

void defineValues(Class& configuration)
{
    configuration.def_property(
        "values", [](JointValues const& self) { return vectorOf(self.values.values()); },
        [](JointValues& self, py::object const& values) { self.values.setValues(numbersOf(values)); },
        "All values (rad, m) in the order of Kinematics.variables, as an array that is the caller's own. Setting "
        "takes\n"
        "any sequence of as many.");
    configuration.def("__len__", [](JointValues const& self) { return self.values.size(); });
    define(configuration, "__getitem__(self, key, /)", valueAt,
           "Where a joint, wheel or coupled actuator stands, also one that follows, by its name; or a value by its "
           "index.");
    define(
        configuration, "__setitem__(self, key, value, /)", setAt,
        "Sets one value, by name or index. Raises ValueError for a joint that does not move, or that follows another.");
    define(
        configuration, "__array__(self, dtype=None)",
        [](JointValues const& self, py::object const& type) -> py::object {
            Array const values = vectorOf(self.values.values());
            return type.is_none() ? py::object(values) : values.attr("astype")(type);
        },
        "All values, for numpy.", py::arg("dtype") = py::none());
    define(configuration, "as_dict(self)", asDict, "The values by the names of what they stand for.");
    define(
        configuration, "update(self, values)",
        [](JointValues& self, py::dict const& values) { setNamed(self.values, values); },
        "Sets several values by their names, all or none, and leaves the others as they are.", py::arg("values"));
    define(
        configuration, "set_posture(self, name)",
        [](JointValues& self, std::string const& name) { setPosture(self.values, self.moving->owner->model, name); },
        "Sets all values to those of a posture of the description, and to 0 what it does not state.", py::arg("name"));
}

void defineLimits(Class& configuration)
{
    define(
        configuration, "distance_to_limits(self, key)", distanceToLimits,
        "How far inside its limits a value is (rad, m), by name or index: negative outside, infinite without limits.",
        py::arg("key"));
    define(
        configuration, "clamp_to_limits(self)", [](JointValues& self) { self.values.clampToLimits(); },
        "Moves each value that is outside its limits to the nearer one.");
    define(
        configuration, "check_limits(self)", [](JointValues const& self) { self.values.checkLimits(); },
        "Raises ValueError, with name and limits, for the first value that is outside its limits.");
}

JointValues copyOf(JointValues const& self)
{
    return self;
}

void defineCopying(Class& configuration)
{
    define(configuration, "copy(self)", copyOf, "One of the same values, to be set apart from this one.");
    define(configuration, "__copy__(self)", copyOf, "As copy.");
    define(
        configuration, "__deepcopy__(self, memo)", [](JointValues const& self, py::object const&) { return self; },
        "As copy.", py::arg("memo"));
    define(
        configuration, "__eq__(self, value, /)",
        [](JointValues const& self, JointValues const& value) {
            return self.moving == value.moving && self.values.values() == value.values.values();
        },
        "Whether both have the same values for the same Kinematics.", py::is_operator());
    configuration.def("__repr__",
                      [](JointValues const& self) { return py::str("Configuration({!r})").format(asDict(self)); });
}

}  // namespace

Sim::Configuration configurationOf(MovingModel const& moving, py::object const& start)
{
    Sim::Configuration configuration(moving.kinematics);
    if (py::isinstance<py::str>(start)) {
        setPosture(configuration, moving.owner->model, start.cast<std::string>());
    } else if (py::isinstance(start, py::module_::import("collections.abc").attr("Mapping"))) {
        setNamed(configuration, py::dict(start));
    } else if (!start.is_none()) {
        configuration.setValues(numbersOf(start));
    }
    return configuration;
}

void defineConfiguration(py::module_& module)
{
    auto configuration = declareClass<JointValues>(
        module, "Configuration",
        "Where all joints of a robot stand: one value (rad, m) for each of Kinematics.variables, in that order.\n\n"
        "Begins with all values 0, in a posture of the description, with those of a dictionary, or with all of a\n"
        "sequence. Joints that follow have no value of their own. Values outside limits are taken, until check_limits\n"
        "or clamp_to_limits is called; those that are not finite are refused, and what is refused changes nothing.");
    configuration.def(py::init([](MovingPtr const& kinematics, py::object const& start) {
                          return JointValues{kinematics, configurationOf(*kinematics, start)};
                      }),
                      py::arg("kinematics"), py::arg("start") = py::none(),
                      documentationOf("__init__(self, kinematics, start=None)", "See the class.").c_str());
    configuration.def_property_readonly(
        "kinematics", [](JointValues const& self) { return self.moving; }, "The Kinematics that it was made for.");
    defineValues(configuration);
    defineLimits(configuration);
    defineCopying(configuration);
}

}  // namespace Python
