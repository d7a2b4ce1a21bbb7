#include <pybind11/stl.h>

#include "arrays.hpp"
#include "classes.hpp"
#include "element.hpp"
#include "findings.hpp"
#include "shapes.hpp"

namespace Python {

namespace {

using FrameElement = Element<Sim::Frame>;
using JointElement = Element<Sim::Joint>;
using LinkElement = Element<Sim::Link>;

void defineFrame(py::class_<FrameElement>& frame)
{
    frame.def_property_readonly(
        "name", [](FrameElement const& self) { return self->name(); }, "The name of the element that sits at it.");
    frame.def_property_readonly(
        "parent", [](FrameElement const& self) { return toPython(self.owner, self->parentFrame()); },
        "The frame in which this one is posed; None for a root frame.");
    frame.def_property_readonly(
        "local_pose", [](FrameElement const& self) { return arrayOf(self->localPosition()); },
        "The pose in the parent frame (m), 4x4, with all joints at zero.");
    frame.def_property_readonly(
        "global_pose", [](FrameElement const& self) { return arrayOf(Sim::Frame::globalPosition(self.pointer)); },
        "The pose in the root's frame (m), 4x4, with all joints at zero. Kinematics tells it for any joint values.");
    frame.def("__repr__", [](FrameElement const& self) {
        Sim::Frame const* const parent = self->parentFrame();
        return parent == nullptr ? py::str("<Frame {!r}: root>").format(self->name())
                                 : py::str("<Frame {!r} in {!r}>").format(self->name(), parent->name());
    });
}

/// Of a number that descriptions need not state.
template <class Config, class Convert>
py::object optionalOf(Config const* config, Convert convert)
{
    return config == nullptr ? py::none() : convert(*config);
}

py::object mimicOf(Varo::Model::MimicConfig const& mimic)
{
    return packageClass("Mimic")(mimic.joint, mimic.multiplier, mimic.offset);
}

py::object safetyOf(Varo::Model::SafetyConfig const& safety)
{
    return packageClass("Safety")(safety.lowerLimit, safety.upperLimit, safety.positionGain, safety.velocityGain);
}

py::object calibrationOf(Varo::Model::CalibrationConfig const& calibration)
{
    return packageClass("Calibration")(calibration.rising, calibration.falling);
}

py::str representation(JointElement const& self)
{
    Sim::Link const* const child = self->childLink();
    py::object const childName = child == nullptr ? py::none() : py::object(py::str(child->name()));
    return py::str("<Joint {!r}: {}, from {!r} to {!r}>")
        .format(self->name(), enumerator("JointType", self->type()).attr("name").attr("lower")(),
                self->parentLink()->name(), childName);
}

void defineMotion(py::class_<JointElement>& joint)
{
    joint.def_property_readonly(
        "type", [](JointElement const& self) { return enumerator("JointType", self->type()); }, "How it moves.");
    joint.def_property_readonly(
        "moves", [](JointElement const& self) { return self->moves(); },
        "Whether it moves: false for fixed, planar and floating joints.");
    joint.def_property_readonly(
        "has_motor", [](JointElement const& self) { return self->hasMotor(); },
        "Whether a motor of its own drives it.");
    joint.def_property_readonly(
        "limits",
        [](JointElement const& self) {
            auto const [lower, upper] = self->limits();
            return packageClass("Limits")(lower, upper);
        },
        "Where it may stand (rad, or m), as stated; 0 and 0 for a joint that states none.");
    joint.def_property_readonly(
        "effort", [](JointElement const& self) { return self->effort(); },
        "The greatest torque, N*m (force, N); 0 when not stated, infinite when unlimited.");
    joint.def_property_readonly(
        "velocity", [](JointElement const& self) { return self->velocity(); },
        "The greatest speed, rad/s (m/s); 0 when not stated, infinite when unlimited.");
    joint.def_property_readonly(
        "damping", [](JointElement const& self) { return self->damping(); },
        "Viscous damping, N*m*s/rad (N*s/m); 0 when not stated.");
    joint.def_property_readonly(
        "friction", [](JointElement const& self) { return self->friction(); },
        "Coulomb friction, N*m (N); 0 when not stated.");
    joint.def_property_readonly(
        "mimic", [](JointElement const& self) { return optionalOf(self->mimic(), mimicOf); },
        "Which joint it follows and how; None for a joint that follows no other.");
    joint.def_property_readonly(
        "safety", [](JointElement const& self) { return optionalOf(self->safety(), safetyOf); },
        "The bounds that its controller keeps; None when not stated.");
    joint.def_property_readonly(
        "calibration", [](JointElement const& self) { return optionalOf(self->calibration(), calibrationOf); },
        "Its reference positions; None when not stated.");
}

void defineJoint(py::class_<JointElement>& joint)
{
    joint.def_property_readonly(
        "name", [](JointElement const& self) { return self->name(); }, "As in the description.");
    joint.def_property_readonly(
        "frame", [](JointElement const& self) { return toPython(self.owner, self->frame()); },
        "Where it sits, posed in the frame of its parent link; the joint moves about or along its z axis.");
    joint.def_property_readonly(
        "parent_link", [](JointElement const& self) { return toPython(self.owner, self->parentLink()); },
        "The link that it is attached to.");
    joint.def_property_readonly(
        "child_link", [](JointElement const& self) { return toPython(self.owner, self->childLink()); },
        "The link that it moves; None when it moves none.");
    joint.def_property_readonly(
        "symmetry",
        [](JointElement const& self) { return toPython(self.owner, self.owner->model.jointSymmetry(self->name())); },
        "The pair of mirrored joints that it is part of; None when it is part of none.");
    joint.def_property_readonly(
        "groups",
        [](JointElement const& self) {
            return elementsOf(self.owner, self.owner->model.jointGroupsOfJoint(self->name()));
        },
        "The groups that list it.");
    joint.def_property_readonly(
        "actuator_groups",
        [](JointElement const& self) {
            return elementsOf(self.owner, self.owner->model.actuatorGroupsOfJoint(self->name()));
        },
        "The groups with an actuator that drives it.");
    defineMotion(joint);
    joint.def("__repr__", representation);
}

void defineBody(py::class_<LinkElement>& link)
{
    link.def_property_readonly(
        "mass",
        [](LinkElement const& self) {
            return optionalOf(self->mass(), [](Sim::MassData const& mass) {
                return packageClass("MassProperties")(mass.mass(), arrayOf(mass.CoM()), matrixOf(mass.inertiaMatrix()));
            });
        },
        "Mass, centre of mass and inertia, in its frame; zeros for what the description leaves out.");
    link.def_property_readonly(
        "friction_material", [](LinkElement const& self) { return self->frictionMaterial(); },
        "The material of its surface, as friction_coefficient takes it; \"gum\" when the description names none.");
    link.def_property_readonly(
        "mesh_path",
        [](LinkElement const& self) { return self->visual() == nullptr ? std::string() : self->visual()->meshPath(); },
        "Its one mesh file, for programs that show one file a link; empty when the description states none.");
    link.def_property_readonly(
        "mesh_pose",
        [](LinkElement const& self) {
            return self->visual() == nullptr ? arrayOf(Varo::Math::Transform())
                                             : arrayOf(self->visual()->meshTransform());
        },
        "The pose of that mesh in the link's frame (m), 4x4.");
    link.def_property_readonly(
        "visuals", [](LinkElement const& self) { return visualsOf(*self); },
        "All that is shown of it, in the order of the description.");
    link.def_property_readonly(
        "collisions", [](LinkElement const& self) { return collisionsOf(*self); }, "What it collides with.");
}

void defineLink(py::class_<LinkElement>& link)
{
    link.def_property_readonly(
        "name", [](LinkElement const& self) { return self->name(); },
        "The name of the joint that moves it (of the root for the root link), with \"Link\" appended.");
    link.def_property_readonly(
        "description_name", [](LinkElement const& self) { return self->descriptionName(); },
        "What the description itself calls it, where it names links; otherwise its name.");
    link.def_property_readonly(
        "type", [](LinkElement const& self) { return enumerator("LinkType", self->type()); }, "Whether it is a wheel.");
    link.def_property_readonly(
        "frame", [](LinkElement const& self) { return toPython(self.owner, self->frame()); },
        "Where it sits, posed in the frame of the joint that moves it.");
    link.def_property_readonly(
        "parent_joint", [](LinkElement const& self) { return toPython(self.owner, self->parentJoint()); },
        "The joint that moves it; None for the root link.");
    link.def_property_readonly(
        "child_joints", [](LinkElement const& self) { return elementsOf(self.owner, self->childrenJoints()); },
        "The joints attached to it.");
    defineBody(link);
    link.def("__repr__", [](LinkElement const& self) {
        return py::str("<Link {!r}: {:g} kg>")
            .format(self->name(), self->mass() == nullptr ? 0.0F : self->mass()->mass());
    });
}

}  // namespace

void defineStructure(py::module_& module)
{
    auto frame = declareElement<FrameElement>(module, "Frame",
                                              "A coordinate frame of the robot, posed in its parent frame with every "
                                              "joint at zero.\n\nSeveral frames may have one name.");
    auto joint =
        declareElement<JointElement>(module, "Joint",
                                     "What connects two links: it turns about the z axis of its frame, or "
                                     "slides along it.\n\nUnits are those of a joint that turns, with those of "
                                     "one that slides in brackets.");
    auto link = declareElement<LinkElement>(module, "Link", "A rigid body of the robot, between its joints.");
    defineIdentity(frame);
    defineIdentity(joint);
    defineIdentity(link);
    definePlace(joint);
    definePlace(link);
    defineFrame(frame);
    defineJoint(joint);
    defineLink(link);
}

}  // namespace Python
