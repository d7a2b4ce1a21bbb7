#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include <pybind11/stl.h>

#include "arrays.hpp"
#include "classes.hpp"
#include "moving.hpp"

namespace Python {

namespace {

using Class = py::class_<MovingModel, MovingPtr>;

/// The joint values that a caller gives: a Configuration as it is, or what one can be made of.
class GivenValues {
public:
    GivenValues(MovingModel const& moving, py::object const& given)
    {
        if (py::isinstance<JointValues>(given)) {
            _values = &given.cast<JointValues const&>().values;
        } else {
            _values = &_own.emplace(configurationOf(moving, given));
        }
    }
    GivenValues(GivenValues const&) = delete;
    GivenValues& operator=(GivenValues const&) = delete;

    Sim::Configuration const& operator*() const { return *_values; }

private:
    std::optional<Sim::Configuration> _own;
    Sim::Configuration const* _values;
};

/// The frame of an element, when `given` is of its class.
template <class Type>
Sim::Frame const* frameOfElement(py::object const& given)
{
    return py::isinstance<Element<Type>>(given) ? given.cast<Element<Type> const&>()->frame() : nullptr;
}

/// The frame that a caller means: by a name, an element that has one, or as it is.
Sim::Frame const& frameOf(MovingModel const& self, py::object const& given)
{
    if (py::isinstance<py::str>(given)) {
        auto const name = given.cast<std::string>();
        return askForName(name, [&]() -> Sim::Frame const& { return self.kinematics.frame(name); });
    }
    if (py::isinstance<Element<Sim::Frame>>(given)) {
        return *given.cast<Element<Sim::Frame> const&>();
    }
    for (auto const find : {frameOfElement<Sim::Link>, frameOfElement<Sim::Joint>, frameOfElement<Sim::Sensor>,
                            frameOfElement<Sim::Actuator>}) {
        if (Sim::Frame const* const frame = find(given)) {
            return *frame;
        }
    }
    throw py::type_error("A frame is a Frame, an element that has one, or a name, not " +
                         std::string(Py_TYPE(given.ptr())->tp_name) + ".");
}

/// None means the root's.
Sim::Frame const* axesOf(MovingModel const& self, py::object const& given)
{
    return given.is_none() ? nullptr : &frameOf(self, given);
}

py::object variablesOf(MovingModel const& self)
{
    py::object const variableClass = packageClass("JointVariable");
    py::list variables;
    for (Sim::JointVariable const& variable : self.kinematics.variables()) {
        variables.append(variableClass(variable.name, variable.min, variable.max, variable.slides));
    }
    return packageClass("Elements")(variables);
}

std::size_t variableOf(MovingModel const& self, std::string const& name)
{
    Sim::Configuration const zero(self.kinematics);
    askForName(name, [&] { return zero.at(name); });
    return self.kinematics.variableOf(name);
}

Array pose(MovingModel const& self, py::object const& values, py::object const& frame, py::object const& relativeTo)
{
    GivenValues const given(self, values);
    Sim::Frame const& moved = frameOf(self, frame);
    return arrayOf(relativeTo.is_none() ? self.kinematics.pose(*given, moved)
                                        : self.kinematics.pose(*given, moved, frameOf(self, relativeTo)));
}

Array poses(MovingModel const& self, py::object const& values)
{
    GivenValues const given(self, values);
    std::vector<Sim::Pose> const poses = self.kinematics.linkPoses(*given);
    Array array({static_cast<py::ssize_t>(poses.size()), py::ssize_t{4}, py::ssize_t{4}});
    double* matrix = array.mutable_data();
    for (Sim::Pose const& pose : poses) {
        writePose(pose.rows, matrix);
        matrix += 16;
    }
    return array;
}

py::object massProperties(MovingModel const& self, py::object const& values, Element<Sim::Link> const* link)
{
    GivenValues const given(self, values);
    Sim::MassProperties const mass =
        link == nullptr ? self.kinematics.massProperties(*given) : self.kinematics.massProperties(*given, **link);
    return packageClass("MassProperties")(mass.mass, vectorOf(mass.centerOfMass), matrixOf(mass.inertia));
}

Array jacobian(MovingModel const& self, py::object const& values, py::object const& frame, py::object const& axes)
{
    GivenValues const given(self, values);
    return columnsOf(self.kinematics.jacobian(*given, frameOf(self, frame), axesOf(self, axes)), 6);
}

Array centerOfMassJacobian(MovingModel const& self, py::object const& values, py::object const& axes)
{
    GivenValues const given(self, values);
    return columnsOf(self.kinematics.centerOfMassJacobian(*given, axesOf(self, axes)), 3);
}

void defineQueries(Class& kinematics)
{
    auto const q = py::arg("q");
    auto const frame = py::arg("frame");
    auto const axes = py::arg("axes") = py::none();
    define(kinematics, "pose(self, q, frame, relative_to=None)", pose,
           "The pose of a frame in the root's frame, or in another one: 4x4.", q, frame,
           py::arg("relative_to") = py::none());
    define(kinematics, "poses(self, q)", poses,
           "The poses of all links in the root's frame, in the order of Model.links: n x 4 x 4.", q);
    define(kinematics, "mass_properties(self, q, link=None)", massProperties,
           "Of the whole robot, or of a link with all that it carries, in the root's frame.", q,
           py::arg("link") = py::none());
    define(kinematics, "jacobian(self, q, frame, axes=None)", jacobian,
           "The 6 x n geometric Jacobian of a frame, a column for each of variables.\n\n"
           "The first three rows are the velocity of the frame's origin (m/s), the last three its angular velocity\n"
           "(rad/s), against the root, along the axes of the root's frame or of the frame axes.",
           q, frame, axes);
    define(kinematics, "center_of_mass_jacobian(self, q, axes=None)", centerOfMassJacobian,
           "The 3 x n Jacobian of the robot's centre of mass.", q, axes);
}

}  // namespace

void defineKinematics(py::module_& module)
{
    auto kinematics = declareClass<MovingModel, MovingPtr>(
        module, "Kinematics",
        "A robot in motion: poses, masses and Jacobians for any joint values.\n\n"
        "Joint values, q, are a Configuration, or what one can be made of: an array of all values, a dictionary of\n"
        "values by names, the name of a posture, or None for all 0. A frame is a Frame, an element that has one, or\n"
        "the name of a link, joint, sensor or actuator. Elements of other models are refused with ValueError.");
    kinematics.def(
        py::init([](ModelPtr const& model) {
            return std::make_shared<MovingModel>(MovingModel{model, Sim::Kinematics(model->model)});
        }),
        py::arg("model"),
        documentationOf("__init__(self, model)", "Of a model. Takes time proportional to its size.").c_str());
    kinematics.def_property_readonly(
        "model", [](MovingModel const& self) { return self.owner; }, "The model that moves.");
    kinematics.def_property_readonly("variables", variablesOf, "What the values of a Configuration stand for.");
    define(
        kinematics, "variable_of(self, name)", variableOf,
        "Which of variables moves the joint, wheel or coupled actuator of that name, directly or as one that follows.\n"
        "Raises ValueError for a joint that does not move.",
        py::arg("name"));
    define(
        kinematics, "frame(self, name)",
        [](MovingModel const& self, py::str const& name) { return toPython(self.owner, &frameOf(self, name)); },
        "The frame of the link of that name, or else of the joint, sensor or actuator.", py::arg("name"));
    define(
        kinematics, "link_index(self, link)",
        [](MovingModel const& self, Element<Sim::Link> const& link) { return self.kinematics.linkIndex(*link); },
        "Which one of Model.links, and of poses, it is.", py::arg("link"));
    defineQueries(kinematics);
    kinematics.def("__repr__", [](MovingModel const& self) {
        return py::str("<Kinematics of {!r}: {} variables>")
            .format(self.owner->model.name(), self.kinematics.variables().size());
    });
}

}  // namespace Python
