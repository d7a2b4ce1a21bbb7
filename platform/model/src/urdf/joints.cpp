#include <limits>
#include <memory>
#include <string>

#include "urdf/translation.hpp"
#include "urdf/urdf_codes.hpp"
#include "urdf/values.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

namespace {

void translateAxis(Joint const& stated, Matrix& axis, Diagnostics& diagnostics)
{
    Vector const direction = stated.axis.value_or(Axis()).xyz;
    if (direction == Vector{0.0, 0.0, 0.0}) {
        diagnostics.report(at(stated.axis->node, "xyz"), codes::zeroAxis, "The axis of a moving joint cannot be zero.");
        return;
    }
    axis = rotationFromZ(direction);
}

/// Those of a joint that turns or slides within limits.
void checkLimits(Joint const& stated, Diagnostics& diagnostics)
{
    static constexpr char hint[] = "Give it a limit element, or the type continuous.";
    if (!stated.limit) {
        diagnostics.report(at(stated.node), codes::missingLimit, "This joint states no limits; it stays at 0.", hint);
        return;
    }
    XmlNode const limit = stated.limit->node;
    if (!limit.attribute("lower") && !limit.attribute("upper")) {
        diagnostics.report(at(limit), codes::missingLimit,
                           "This states neither a lower nor an upper limit; the joint stays at 0.", hint);
    }
    if (stated.limit->lower > stated.limit->upper) {
        diagnostics.report(at(limit), codes::reversedLimits, "The lower limit is above the upper one.");
    }
}

/// Those of a joint that turns on and on are its effort and velocity.
void checkNotEmpty(Joint const& stated, Diagnostics& diagnostics)
{
    if (stated.limit && stated.limit->node.attributes().empty()) {
        diagnostics.report(at(stated.limit->node), codes::missingAttribute, "This limit says nothing.",
                           "Give it the attributes \"effort\" and \"velocity\", or leave it out.");
    }
}

void translateLimits(Joint const& stated, JointConfig& config, Diagnostics& diagnostics)
{
    Limit const limit = stated.limit.value_or(Limit());
    config.maxTorque = static_cast<float>(limit.effort);
    config.maxAngularSpeed = static_cast<float>(limit.velocity);
    if (stated.type == continuous) {
        checkNotEmpty(stated, diagnostics);
        config.minAngle = -std::numeric_limits<float>::infinity();
        config.maxAngle = std::numeric_limits<float>::infinity();
    } else if (isMoving(stated.type)) {
        config.minAngle = static_cast<float>(limit.lower);
        config.maxAngle = static_cast<float>(limit.upper);
        checkLimits(stated, diagnostics);
    }
}

void translateDynamics(Joint const& stated, JointConfig& config)
{
    Dynamics const dynamics = stated.dynamics.value_or(Dynamics());
    config.damping = static_cast<float>(dynamics.damping);
    config.friction = static_cast<float>(dynamics.friction);
}

float toFloat(double value)
{
    return static_cast<float>(value);
}

std::optional<float> toFloat(std::optional<double> value)
{
    return value ? std::optional<float>(toFloat(*value)) : std::nullopt;
}

void translateExtras(Joint const& stated, JointConfig& config)
{
    if (stated.mimic && !stated.mimic->joint.empty()) {
        config.mimic = std::make_shared<MimicConfig const>(MimicConfig{
            std::string(stated.mimic->joint), toFloat(stated.mimic->multiplier), toFloat(stated.mimic->offset)});
    }
    if (stated.calibration) {
        config.calibration = std::make_shared<CalibrationConfig const>(
            CalibrationConfig{toFloat(stated.calibration->rising), toFloat(stated.calibration->falling)});
    }
    if (stated.safety) {
        SafetyController const& safety = *stated.safety;
        config.safety = std::make_shared<SafetyConfig const>(
            SafetyConfig{toFloat(safety.softLowerLimit), toFloat(safety.softUpperLimit), toFloat(safety.positionGain),
                         toFloat(safety.velocityGain)});
    }
}

/// The link that is the joint's parent or child, which `role` says.
Reference toReference(Joint const& joint, std::optional<LinkReference> const& link, char const* role,
                      Diagnostics& diagnostics)
{
    XmlNode const node = link ? link->node : joint.node;
    if (link && node.attribute("link")) {
        return {link->link, at(node, "link")};
    }
    diagnostics.report(at(node), codes::unattachedJoint,
                       "This joint does not say which link is its " + std::string(role) + ".",
                       "Write <" + std::string(role) + " link=\"...\"/>.");
    return {};
}

Model::Mimic toMimic(Mimic const& stated)
{
    Model::Mimic mimic;
    mimic.textOffset = at(stated.node);
    mimic.leader = {stated.joint, at(stated.node, "joint")};
    mimic.offsetOffset = at(stated.node, "offset");
    mimic.ratio = stated.multiplier;
    mimic.offset = stated.offset;
    return mimic;
}

void translateType(Joint const& stated, JointConfig& config)
{
    config.jointType = stated.type == noJointType ? fixed : stated.type;
    config.hasMotor = isMoving(config.jointType);
}

}  // namespace

void translateJoint(Joint const& stated, Model::Joint& joint, Diagnostics& diagnostics)
{
    joint.config.name = stated.name;
    joint.config.textOffset = at(stated.node);
    joint.nameOffset = at(stated.node, "name");
    joint.origin = stated.origin.value_or(Origin()).pose();
    translateType(stated, joint.config);
    translateLimits(stated, joint.config, diagnostics);
    translateDynamics(stated, joint.config);
    translateExtras(stated, joint.config);
    if (joint.moves()) {
        translateAxis(stated, joint.axis, diagnostics);
    }
    if (stated.mimic) {
        joint.mimic = toMimic(*stated.mimic);
    }
    joint.parent = toReference(stated, stated.parent, "parent", diagnostics);
    joint.child = toReference(stated, stated.child, "child", diagnostics);
}

}  // namespace Varo::Model::Urdf
