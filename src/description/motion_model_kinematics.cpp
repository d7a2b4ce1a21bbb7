#include "description/motion_model_index.hpp"
#include "description/table_lookup.hpp"
#include "sim/motion_model.hpp"

namespace Sim {

namespace {

using Varo::Math::Transform;
using Varo::Model::ActuatorConfig;
using Varo::Model::ActuatorTable;
using Varo::Model::JointConfig;
using Varo::Model::JointTable;
using Varo::Model::WheelTable;

constexpr float k_quarterTurn = 1.5707964F;

/// The identity for a name without a link frame.
Transform endOf(MotionModel const& model, std::string const& name)
{
    Transform end;
    model.endTransformFromJointName(name, end);
    return end;
}

/// The frame of a wheel, or of an actuator, in the link frame of the parent joint of the wheel of that name.
Transform underParentOfWheel(MotionModel const& model, std::string const& name, Transform const& placement)
{
    std::string parent;
    model.parentJointFromWheel(name, parent);
    auto transform = pinv(endOf(model, parent)) * placement;
    transform *= Transform::fromRotY(-k_quarterTurn);
    return transform;
}

/// Calls `read` with the record of the body that the name stands for: a joint's, the root's or a wheel's.
template <typename Read>
bool readBody(std::string const& name, JointTable const& joints, JointConfig const& root, WheelTable const& wheels,
              Read read)
{
    if (auto const* joint = find(joints, name)) {
        read(*joint);
    } else if (name == root.name) {
        read(root);
    } else if (auto const* wheel = find(wheels, name)) {
        read(*wheel);
    } else {
        return false;
    }
    return true;
}

/// The actuator's limit replaces that of a joint of the same name.
bool readLimit(std::string const& name, JointTable const& joints, float JointConfig::*ofJoint,
               ActuatorTable const& actuators, float ActuatorConfig::*ofActuator, float& limit)
{
    bool const isJoint = readField(joints, name, ofJoint, limit);
    bool const isActuator = readField(actuators, name, ofActuator, limit);
    return isJoint || isActuator;
}

}  // namespace

bool MotionModel::endTransformFromJointName(std::string const& name, Transform& end) const
{
    if (readField(_joints, name, &JointConfig::endTransform, end)) {
        return true;
    }
    if (_subActuators.count(name) != 0) {
        return endTransformFromSubactuatorName(name, end);
    }
    return _wheels.count(name) != 0 && endTransformFromWheelName(name, end);
}

bool MotionModel::endTransformFromSubactuatorName(std::string const& /*name*/, Transform& end) const
{
    end = Transform::fromRotX(-k_quarterTurn);
    return true;
}

bool MotionModel::endTransformFromWheelName(std::string const& /*name*/, Transform& end) const
{
    end = Transform::fromRotY(k_quarterTurn);
    return true;
}

bool MotionModel::transformFromJointName(std::string const& name, Transform& transform, std::string& parent) const
{
    if (name.empty()) {
        return false;
    }
    auto const* joint = find(_joints, name);
    if (joint == nullptr) {
        return transformFromSubactuatorName(name, transform, parent);
    }
    auto const [chain, position] = _index->of(name).lastPlace;
    if (chain == nullptr) {
        return true;
    }
    if (position == 0) {
        parent = "rootFrame";
        transform = endOf(*this, chain->parentJoint).inverse() * chain->placement * joint->placement;
    } else {
        parent = chain->jointNames[position - 1];
        transform = endOf(*this, parent).inverse() * joint->placement;
    }
    return true;
}

bool MotionModel::transformFromSubactuatorName(std::string const& name, Transform& transform, std::string& parent) const
{
    auto const* subActuator = name.empty() ? nullptr : find(_subActuators, name);
    if (subActuator == nullptr) {
        return false;
    }
    transform = pinv(endOf(*this, parent)) * subActuator->placement;
    auto const& places = _index->of(name).groupPlaces;
    if (places.empty()) {
        return false;
    }
    auto const [actuator, group, position] = places.front();
    parent = position == 0 ? actuator->parentJoint : (*group)[position - 1];
    return true;
}

bool MotionModel::transformFromWheel(std::string const& name, Transform& transform) const
{
    auto const* wheel = find(_wheels, name);
    if (wheel == nullptr) {
        return false;
    }
    transform = underParentOfWheel(*this, name, wheel->placement);
    return true;
}

bool MotionModel::transformFromActuator(std::string const& name, Transform& transform) const
{
    auto const* actuator = find(_actuators, name);
    if (actuator == nullptr) {
        return false;
    }
    // The parent is that of the wheel of this name, and not the actuator's own: callers rely on poses made that way.
    transform = underParentOfWheel(*this, name, actuator->placement);
    return true;
}

bool MotionModel::meshNameFromJointName(std::string const& name, std::string& mesh) const
{
    if (readField(_joints, name, &JointConfig::meshName, mesh) ||
        readField(_subActuators, name, &Varo::Model::SubActuatorConfig::meshName, mesh) ||
        readField(_wheels, name, &Varo::Model::WheelConfig::meshName, mesh)) {
        return true;
    }
    if (name != _root.name) {
        return false;
    }
    mesh = _root.meshName;
    return true;
}

bool MotionModel::meshTransformFromJointName(std::string const& name, Transform& transform) const
{
    std::string mesh;
    if (!meshNameFromJointName(name, mesh)) {
        return false;
    }
    transform = Transform();
    return true;
}

bool MotionModel::CoM(std::string const& name, Varo::Math::Position3D& com) const
{
    return readBody(name, _joints, _root, _wheels, [&](auto const& body) { com = body.centerOfMass; });
}

bool MotionModel::mass(std::string const& name, float& mass) const
{
    return readBody(name, _joints, _root, _wheels, [&](auto const& body) { mass = body.mass; });
}

bool MotionModel::inertiaMatrix(std::string const& name, std::vector<float>& inertia) const
{
    return readBody(name, _joints, _root, _wheels, [&](auto const& body) { inertia = body.inertiaMatrix; });
}

bool MotionModel::frictionMaterial(std::string const& name, std::string& material) const
{
    std::string const* stated = nullptr;
    readBody(name, _joints, _root, _wheels, [&](auto const& body) { stated = find(body.attributes, "material"); });
    material = stated == nullptr ? "gum" : *stated;
    return stated != nullptr;
}

bool MotionModel::minAngle(std::string const& name, float& angle) const
{
    return readLimit(name, _joints, &JointConfig::minAngle, _actuators, &ActuatorConfig::minAngle, angle);
}

bool MotionModel::maxAngle(std::string const& name, float& angle) const
{
    return readLimit(name, _joints, &JointConfig::maxAngle, _actuators, &ActuatorConfig::maxAngle, angle);
}

bool MotionModel::maxAngleSpeed(std::string const& name, float& speed) const
{
    return readLimit(name, _joints, &JointConfig::maxAngularSpeed, _actuators, &ActuatorConfig::maxAngularSpeed, speed);
}

}  // namespace Sim
