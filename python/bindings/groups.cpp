#include <pybind11/stl.h>

#include "classes.hpp"
#include "element.hpp"

namespace Python {

namespace {

using JointGroupElement = Element<Sim::JointGroup>;
using ActuatorGroupElement = Element<Sim::ActuatorGroup>;
using SymmetryElement = Element<Sim::JointSymmetry>;

void defineJointGroup(py::module_& module)
{
    auto group = declareElement<JointGroupElement>(
        module, "JointGroup",
        "Joints that belong together: those of one kinematic chain, or those that one coupled actuator moves.");
    defineIdentity(group);
    group.def_property_readonly(
        "name", [](JointGroupElement const& self) { return self->name(); },
        "The name of the chain or of the coupled actuator.");
    group.def_property_readonly(
        "joints", [](JointGroupElement const& self) { return tupleOf(self.owner, self->joints()); },
        "The members from the parent outward; None for a name that the model has no joint for.");
    group.def("__repr__", [](JointGroupElement const& self) {
        return py::str("<JointGroup {!r}: {} joints>").format(self->name(), self->joints().size());
    });
}

void defineActuatorGroup(py::module_& module)
{
    auto group =
        declareElement<ActuatorGroupElement>(module, "ActuatorGroup",
                                             "The motors of one kinematic chain. The groups form a tree as the "
                                             "chains do.");
    defineIdentity(group);
    group.def_property_readonly(
        "name", [](ActuatorGroupElement const& self) { return self->name(); }, "The name of the chain.");
    group.def_property_readonly(
        "parent", [](ActuatorGroupElement const& self) { return toPython(self.owner, self->parent()); },
        "The group of the chain that this one is attached to; None when it is attached to the root.");
    group.def_property_readonly(
        "actuators", [](ActuatorGroupElement const& self) { return tupleOf(self.owner, self->actuators()); },
        "The angle actuators of the chain's joints, then the coupled ones attached to them; None for a name that the\n"
        "model has no actuator for.");
    group.def("__repr__", [](ActuatorGroupElement const& self) {
        return py::str("<ActuatorGroup {!r}: {} actuators>").format(self->name(), self->actuators().size());
    });
}

py::tuple jointsOf(SymmetryElement const& self)
{
    auto const [first, second] = self->symmetricJoints();
    return py::make_tuple(toPython(self.owner, first), toPython(self.owner, second));
}

void defineSymmetry(py::module_& module)
{
    auto symmetry = declareElement<SymmetryElement>(module, "JointSymmetry",
                                                    "A pair of joints that are each other's mirror image.");
    defineIdentity(symmetry);
    symmetry.def_property_readonly("joints", jointsOf,
                                   "The two; the second is None when the model has no joint of the mirror's name.");
    symmetry.def_property_readonly(
        "type", [](SymmetryElement const& self) { return enumerator("SymmetryType", self->symmetryType()); },
        "Which values of the two mirror each other.");
    define(
        symmetry, "partner(self, joint)",
        [](SymmetryElement const& self, Element<Sim::Joint> const& joint) {
            return toPython(self.owner, self->symmetricJoint(joint.pointer));
        },
        "The other joint of the pair; None when it is not of this pair.", py::arg("joint"));
    symmetry.def("__repr__", [](SymmetryElement const& self) {
        auto const [first, second] = self->symmetricJoints();
        return py::str("<JointSymmetry {!r}, {!r}: {}>")
            .format(first->name(), second == nullptr ? py::none() : py::object(py::str(second->name())),
                    enumerator("SymmetryType", self->symmetryType()).attr("name").attr("lower")());
    });
}

}  // namespace

void defineGroups(py::module_& module)
{
    defineJointGroup(module);
    defineActuatorGroup(module);
    defineSymmetry(module);
}

}  // namespace Python
