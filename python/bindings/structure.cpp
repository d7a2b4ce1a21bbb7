#include "classes.hpp"
#include "findings.hpp"
#include "properties.hpp"
#include "shapes.hpp"

namespace Python {

namespace {

using FrameElement = Element<Sim::Frame>;
using JointElement = Element<Sim::Joint>;
using LinkElement = Element<Sim::Link>;

constexpr std::tuple ofFrames{
    Property{"name", "The name of the element that sits at it.", &Sim::Frame::name},
    Property{"parent", "The frame in which this one is posed; None for a root frame.", &Sim::Frame::parentFrame},
    Property{"local_pose", "The pose in the parent frame (m), 4x4, with all joints at zero.",
             &Sim::Frame::localPosition},
    Property{
        "global_pose",
        "The pose in the root's frame (m), 4x4, with all joints at zero. Kinematics tells it for any joint values.",
        [](Sim::Frame const& frame) { return Sim::Frame::globalPosition(&frame); }},
};

/// Of what descriptions need not state, None.
template <class Config, class Convert>
py::object optionalOf(Config const* config, Convert convert)
{
    return config == nullptr ? py::none() : convert(*config);
}

py::object limitsOf(Sim::Joint const& joint)
{
    auto const [lower, upper] = joint.limits();
    return packageClass("Limits")(lower, upper);
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

constexpr std::tuple ofJoints{
    Property{"name", "As in the description.", &Sim::Joint::name},
    Property{"frame",
             "Where it sits, posed in the frame of its parent link; the joint moves about or along its z axis.",
             &Sim::Joint::frame},
    Property{"parent_link", "The link that it is attached to.", &Sim::Joint::parentLink},
    Property{"child_link", "The link that it moves; None when it moves none.", &Sim::Joint::childLink},
    Property{"symmetry", "The pair of mirrored joints that it is part of; None when it is part of none.",
             [](JointElement const& self) { return self.owner->model.jointSymmetry(self->name()); }},
    Property{"groups", "The groups that list it.",
             [](JointElement const& self) { return self.owner->model.jointGroupsOfJoint(self->name()); }},
    Property{"actuator_groups", "The groups with an actuator that drives it.",
             [](JointElement const& self) { return self.owner->model.actuatorGroupsOfJoint(self->name()); }},
    Property{"type", "How it moves.", &Sim::Joint::type},
    Property{"moves", "Whether it moves: false for fixed, planar and floating joints.", &Sim::Joint::moves},
    Property{"has_motor", "Whether a motor of its own drives it.", &Sim::Joint::hasMotor},
    Property{"limits", "Where it may stand (rad, or m), as stated; 0 and 0 for a joint that states none.", limitsOf},
    Property{"effort", "The greatest torque, N*m (force, N); 0 when not stated, infinite when unlimited.",
             &Sim::Joint::effort},
    Property{"velocity", "The greatest speed, rad/s (m/s); 0 when not stated, infinite when unlimited.",
             &Sim::Joint::velocity},
    Property{"damping", "Viscous damping, N*m*s/rad (N*s/m); 0 when not stated.", &Sim::Joint::damping},
    Property{"friction", "Coulomb friction, N*m (N); 0 when not stated.", &Sim::Joint::friction},
    Property{"mimic", "Which joint it follows and how; None for a joint that follows no other.",
             [](Sim::Joint const& joint) { return optionalOf(joint.mimic(), mimicOf); }},
    Property{"safety", "The bounds that its controller keeps; None when not stated.",
             [](Sim::Joint const& joint) { return optionalOf(joint.safety(), safetyOf); }},
    Property{"calibration", "Its reference positions; None when not stated.",
             [](Sim::Joint const& joint) { return optionalOf(joint.calibration(), calibrationOf); }},
};

py::object massOf(Sim::MassData const& mass)
{
    return packageClass("MassProperties")(mass.mass(), arrayOf(mass.CoM()), matrixOf(mass.inertiaMatrix()));
}

constexpr std::tuple ofLinks{
    Property{"name", "The name of the joint that moves it (of the root for the root link), with \"Link\" appended.",
             &Sim::Link::name},
    Property{"description_name", "What the description itself calls it, where it names links; otherwise its name.",
             &Sim::Link::descriptionName},
    Property{"type", "Whether it is a wheel.", &Sim::Link::type},
    Property{"frame", "Where it sits, posed in the frame of the joint that moves it.", &Sim::Link::frame},
    Property{"parent_joint", "The joint that moves it; None for the root link.", &Sim::Link::parentJoint},
    Property{"child_joints", "The joints attached to it.", &Sim::Link::childrenJoints},
    Property{"mass", "Mass, centre of mass and inertia, in its frame; zeros for what the description leaves out.",
             [](Sim::Link const& link) { return optionalOf(link.mass(), massOf); }},
    Property{"friction_material",
             "The material of its surface, as friction_coefficient takes it; \"gum\" when the description names none.",
             &Sim::Link::frictionMaterial},
    Property{
        "mesh_path",
        "Its one mesh file, for programs that show one file a link; empty when the description states none.",
        [](Sim::Link const& link) { return link.visual() == nullptr ? std::string() : link.visual()->meshPath(); }},
    Property{"mesh_pose", "The pose of that mesh in the link's frame (m), 4x4.",
             [](Sim::Link const& link) {
                 return link.visual() == nullptr ? Varo::Math::Transform() : link.visual()->meshTransform();
             }},
    Property{"visuals", "All that is shown of it, in the order of the description.", visualsOf},
    Property{"collisions", "What it collides with.", collisionsOf},
};

void defineFrame(py::module_& module)
{
    auto frame = declareElement<Sim::Frame>(
        module, "Frame",
        "A coordinate frame of the robot, posed in its parent frame with every joint at zero.\n\n"
        "Several frames may have one name.");
    defineProperties(frame, ofFrames);
    frame.def("__repr__", [](FrameElement const& self) {
        Sim::Frame const* const parent = self->parentFrame();
        return parent == nullptr ? py::str("<Frame {!r}: root>").format(self->name())
                                 : py::str("<Frame {!r} in {!r}>").format(self->name(), parent->name());
    });
}

void defineJoint(py::module_& module)
{
    auto joint = declareElement<Sim::Joint>(
        module, "Joint",
        "What connects two links: it turns about the z axis of its frame, or slides along it.\n\n"
        "Units are those of a joint that turns, with those of one that slides in brackets.");
    defineProperties(joint, ofJoints);
    definePlace(joint);
    joint.def("__repr__", [](JointElement const& self) {
        Sim::Link const* const child = self->childLink();
        py::object const childName = child == nullptr ? py::none() : py::object(py::str(child->name()));
        return py::str("<Joint {!r}: {}, from {!r} to {!r}>")
            .format(self->name(), enumerator(self->type()).attr("name").attr("lower")(), self->parentLink()->name(),
                    childName);
    });
}

void defineLink(py::module_& module)
{
    auto link = declareElement<Sim::Link>(module, "Link", "A rigid body of the robot, between its joints.");
    defineProperties(link, ofLinks);
    definePlace(link);
    link.def("__repr__", [](LinkElement const& self) {
        return py::str("<Link {!r}: {:g} kg>")
            .format(self->name(), self->mass() == nullptr ? 0.0F : self->mass()->mass());
    });
}

}  // namespace

void defineStructure(py::module_& module)
{
    defineFrame(module);
    defineJoint(module);
    defineLink(module);
}

}  // namespace Python
