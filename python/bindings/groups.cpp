#include "classes.hpp"
#include "properties.hpp"

namespace Python {

namespace {

using JointGroupElement = Element<Sim::JointGroup>;
using ActuatorGroupElement = Element<Sim::ActuatorGroup>;
using SymmetryElement = Element<Sim::JointSymmetry>;

constexpr std::tuple ofJointGroups{
    Property{"name", "The name of the chain or of the coupled actuator.", &Sim::JointGroup::name},
    Property{"joints", "The members from the parent outward; None for a name that the model has no joint for.",
             [](JointGroupElement const& self) { return tupleOf(self.owner, self->joints()); }},
};

constexpr std::tuple ofActuatorGroups{
    Property{"name", "The name of the chain.", &Sim::ActuatorGroup::name},
    Property{"parent", "The group of the chain that this one is attached to; None when it is attached to the root.",
             &Sim::ActuatorGroup::parent},
    Property{"actuators",
             "The angle actuators of the chain's joints, then the coupled ones attached to them; None for a name that "
             "the\nmodel has no actuator for.",
             [](ActuatorGroupElement const& self) { return tupleOf(self.owner, self->actuators()); }},
};

py::tuple jointsOf(SymmetryElement const& self)
{
    auto const [first, second] = self->symmetricJoints();
    return py::make_tuple(toPython(self.owner, first), toPython(self.owner, second));
}

constexpr std::tuple ofSymmetries{
    Property{"joints", "The two; the second is None when the model has no joint of the mirror's name.", jointsOf},
    Property{"type", "Which values of the two mirror each other.", &Sim::JointSymmetry::symmetryType},
};

void defineJointGroup(py::module_& module)
{
    auto group = declareElement<Sim::JointGroup>(
        module, "JointGroup",
        "Joints that belong together: those of one kinematic chain, or those that one coupled actuator moves.");
    defineProperties(group, ofJointGroups);
    group.def("__repr__", [](JointGroupElement const& self) {
        return py::str("<JointGroup {!r}: {} joints>").format(self->name(), self->joints().size());
    });
}

void defineActuatorGroup(py::module_& module)
{
    auto group = declareElement<Sim::ActuatorGroup>(
        module, "ActuatorGroup", "The motors of one kinematic chain. The groups form a tree as the chains do.");
    defineProperties(group, ofActuatorGroups);
    group.def("__repr__", [](ActuatorGroupElement const& self) {
        return py::str("<ActuatorGroup {!r}: {} actuators>").format(self->name(), self->actuators().size());
    });
}

void defineSymmetry(py::module_& module)
{
    auto symmetry = declareElement<Sim::JointSymmetry>(module, "JointSymmetry",
                                                       "A pair of joints that are each other's mirror image.");
    defineProperties(symmetry, ofSymmetries);
    define(
        symmetry, "partner(self, joint)",
        [](SymmetryElement const& self, Element<Sim::Joint> const& joint) {
            return toPython(self.owner, self->symmetricJoint(&*joint));
        },
        "The other joint of the pair; None when it is not of this pair.", py::arg("joint"));
    symmetry.def("__repr__", [](SymmetryElement const& self) {
        auto const [first, second] = self->symmetricJoints();
        return py::str("<JointSymmetry {!r}, {!r}: {}>")
            .format(first->name(), second == nullptr ? py::none() : py::object(py::str(second->name())),
                    enumerator(self->symmetryType()).attr("name").attr("lower")());
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
