#include "support/element_json.hpp"

#include "sim/actuator.hpp"
#include "sim/actuator_group.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/joint_group.hpp"
#include "sim/joint_symmetry.hpp"
#include "sim/link.hpp"
#include "sim/mass_data.hpp"
#include "sim/visual_data.hpp"
#include "support/joint_words.hpp"
#include "support/json_parts.hpp"
#include "support/shape_json.hpp"

namespace Tool {

namespace {

Json massJson(Sim::MassData const* mass)
{
    if (mass == nullptr) {
        return nullptr;
    }
    Varo::Math::Position3D const& com = mass->CoM();
    return objectOf({{"mass", mass->mass()}, {"com", {com.x, com.y, com.z}}, {"inertia", mass->inertiaMatrix()}});
}

Json visualJson(Sim::VisualData const* visual)
{
    if (visual == nullptr) {
        return nullptr;
    }
    return objectOf({{"meshPath", visual->meshPath()}, {"meshTransform", matrixOf(visual->meshTransform())}});
}

Json mimicJson(Varo::Model::MimicConfig const* mimic)
{
    if (mimic == nullptr) {
        return nullptr;
    }
    return objectOf({{"joint", mimic->joint}, {"multiplier", mimic->multiplier}, {"offset", mimic->offset}});
}

Json safetyJson(Varo::Model::SafetyConfig const* safety)
{
    if (safety == nullptr) {
        return nullptr;
    }
    return objectOf({{"lower", safety->lowerLimit},
                     {"upper", safety->upperLimit},
                     {"positionGain", safety->positionGain},
                     {"velocityGain", safety->velocityGain}});
}

Json calibrationJson(Varo::Model::CalibrationConfig const* calibration)
{
    if (calibration == nullptr) {
        return nullptr;
    }
    auto const orNull = [](std::optional<float> const& position) { return position ? Json(*position) : Json(nullptr); };
    return objectOf({{"rising", orNull(calibration->rising)}, {"falling", orNull(calibration->falling)}});
}

}  // namespace

Json ElementJson::globalPosition(Sim::Frame const* frame)
{
    return frame == nullptr ? Json(nullptr) : matrixOf(_poses.of(*frame));
}

Json ElementJson::of(Sim::Link const& link)
{
    return objectOf({
        {"name", link.name()},
        {"descriptionName", link.descriptionName()},
        {"frame", nameOrNull(link.frame())},
        {"type", link.type() == Sim::Link::Wheel ? "wheel" : "regular"},
        {"parentJoint", nameOrNull(link.parentJoint())},
        {"childrenJoints", namesOf(link.childrenJoints())},
        {"mass", massJson(link.mass())},
        {"frictionMaterial", link.frictionMaterial()},
        {"visual", visualJson(link.visual())},
        {"visuals", shapesJson(link.visuals())},
        {"collisions", shapesJson(link.collisions())},
        {"localPosition", localPosition(link.frame())},
        {"globalPosition", globalPosition(link.frame())},
    });
}

Json ElementJson::of(Sim::Joint const& joint)
{
    return objectOf({
        {"name", joint.name()},
        {"frame", nameOrNull(joint.frame())},
        {"parentLink", nameOrNull(joint.parentLink())},
        {"childLink", nameOrNull(joint.childLink())},
        {"localPosition", localPosition(joint.frame())},
        {"globalPosition", globalPosition(joint.frame())},
        {"type", wordOf(joint.type())},
        {"moves", joint.moves()},
        {"motor", joint.hasMotor()},
        {"limits", objectOf({{"lower", joint.limits().lower}, {"upper", joint.limits().upper}})},
        {"effort", joint.effort()},
        {"velocity", joint.velocity()},
        {"damping", joint.damping()},
        {"friction", joint.friction()},
        {"mimic", mimicJson(joint.mimic())},
        {"safety", safetyJson(joint.safety())},
        {"calibration", calibrationJson(joint.calibration())},
    });
}

Json ElementJson::of(Sim::JointSymmetry const& symmetry)
{
    auto const [first, second] = symmetry.symmetricJoints();
    bool const reversed = symmetry.symmetryType() == Sim::JointSymmetry::ReflectedSymmetricReversed;
    return objectOf({
        {"joints", Json::array({nameOrNull(first), nameOrNull(second)})},
        {"type", reversed ? "ReflectedSymmetricReversed" : "ReflectedSymmetric"},
    });
}

Json ElementJson::of(Sim::JointGroup const& group)
{
    return objectOf({{"name", group.name()}, {"joints", namesOf(group.joints())}});
}

Json ElementJson::of(Sim::ActuatorGroup const& group)
{
    return objectOf({
        {"name", group.name()},
        {"parent", nameOrNull(group.parent())},
        {"actuators", namesOf(group.actuators())},
    });
}

}  // namespace Tool
