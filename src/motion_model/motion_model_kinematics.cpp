#include "motion_model/motion_model_index.hpp"
#include "motion_model/table_lookup.hpp"
#include "sim/motion_model.hpp"

namespace Sim {

namespace {

using Varo::Math::Transform;
using Varo::Model::ActuatorConfig;
using Varo::Model::JointConfig;

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
template <typename Entry, typename Read>
bool readBody(Entry const& named, Read read)
{
    if (named.joint() != nullptr) {
        read(*named.joint());
    } else if (named.root() != nullptr) {
        read(*named.root());
    } else if (named.wheel() != nullptr) {
        read(*named.wheel());
    } else {
        return false;
    }
    return true;
}

std::string const& defaultMaterial()
{
    static std::string const gum = "gum";
    return gum;
}

std::string const& materialAmong(Varo::Model::Attributes const& attributes)
{
    std::string const* const stated = find(attributes, "material");
    return stated == nullptr ? defaultMaterial() : *stated;
}

/// The actuator's limit replaces that of a joint of the same name.
template <typename Entry>
bool readLimit(Entry const& named, float JointConfig::*ofJoint, float ActuatorConfig::*ofActuator, float& limit)
{
    bool const isJoint = readField(named.joint(), ofJoint, limit);
    bool const isActuator = readField(named.actuator(), ofActuator, limit);
    return isJoint || isActuator;
}

}  // namespace

bool MotionModel::endTransformFromJointName(std::string const& name, Transform& end) const
{
    auto const named = _index->of(name);
    if (readField(named.joint(), &JointConfig::endTransform, end)) {
        return true;
    }
    if (named.subActuator() != nullptr) {
        return endTransformFromSubactuatorName(name, end);
    }
    return named.wheel() != nullptr && endTransformFromWheelName(name, end);
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
    auto const named = _index->of(name);
    if (named.joint() == nullptr) {
        return transformFromSubactuatorName(name, transform, parent);
    }
    auto const [chain, position] = named.lastPlace();
    if (chain == nullptr) {
        return true;
    }
    if (position == 0) {
        parent = "rootFrame";
        transform = endOf(*this, chain->parentJoint).inverse() * chain->placement * named.joint()->placement;
    } else {
        parent = chain->jointNames[position - 1];
        auto next = static_cast<std::uint32_t>(named.joint() - &_records->joints[0]) - 1;  // mostly the one before it
        auto const* const before = _index->of(parent, next).joint();
        transform =
            (before == nullptr ? endOf(*this, parent) : before->endTransform).inverse() * named.joint()->placement;
    }
    return true;
}

bool MotionModel::transformFromSubactuatorName(std::string const& name, Transform& transform, std::string& parent) const
{
    auto const named = _index->of(name);
    if (name.empty() || named.subActuator() == nullptr) {
        return false;
    }
    transform = pinv(endOf(*this, parent)) * named.subActuator()->placement;
    if (named.groupPlaces().empty()) {
        return false;
    }
    auto const [actuator, group, position] = named.groupPlaces().front();
    parent = position == 0 ? actuator->parentJoint : (*group)[position - 1];
    return true;
}

bool MotionModel::transformFromWheel(std::string const& name, Transform& transform) const
{
    auto const* wheel = _index->of(name).wheel();
    if (wheel == nullptr) {
        return false;
    }
    transform = underParentOfWheel(*this, name, wheel->placement);
    return true;
}

bool MotionModel::transformFromActuator(std::string const& name, Transform& transform) const
{
    auto const* actuator = _index->of(name).actuator();
    if (actuator == nullptr) {
        return false;
    }
    // The parent is that of the wheel of this name, and not the actuator's own: callers rely on poses made that way.
    transform = underParentOfWheel(*this, name, actuator->placement);
    return true;
}

bool MotionModel::meshNameFromJointName(std::string const& name, std::string& mesh) const
{
    auto const named = _index->of(name);
    return readField(named.joint(), &JointConfig::meshName, mesh) ||
           readField(named.subActuator(), &Varo::Model::SubActuatorConfig::meshName, mesh) ||
           readField(named.wheel(), &Varo::Model::WheelConfig::meshName, mesh) ||
           readField(named.root(), &JointConfig::meshName, mesh);
}

bool MotionModel::meshTransformFromJointName(std::string const& name, Transform& transform) const
{
    auto const named = _index->of(name);
    bool const hasMesh = named.joint() != nullptr || named.subActuator() != nullptr || named.wheel() != nullptr ||
                         named.root() != nullptr;
    if (hasMesh) {
        transform = Transform();
    }
    return hasMesh;
}

bool MotionModel::CoM(std::string const& name, Varo::Math::Position3D& com) const
{
    return readBody(_index->of(name), [&](auto const& body) { com = body.centerOfMass; });
}

bool MotionModel::mass(std::string const& name, float& mass) const
{
    return readBody(_index->of(name), [&](auto const& body) { mass = body.mass; });
}

bool MotionModel::inertiaMatrix(std::string const& name, std::vector<float>& inertia) const
{
    return readBody(_index->of(name), [&](auto const& body) { inertia = body.inertiaMatrix; });
}

std::string const& MotionModel::frictionMaterialOf(std::string const& name) const
{
    std::string const* material = &defaultMaterial();
    readBody(_index->of(name), [&](auto const& body) { material = &materialAmong(body.attributes); });
    return *material;
}

std::string const& MotionModel::frictionMaterialOf(JointConfig const& body)
{
    return materialAmong(body.attributes);
}

bool MotionModel::frictionMaterial(std::string const& name, std::string& material) const
{
    std::string const& known = frictionMaterialOf(name);
    material = known;
    return &known != &defaultMaterial();
}

/// All at once: a name that has one of them has all.
bool MotionModel::readLimits(std::string const& name, float& lowest, float& highest, float& fastest) const
{
    auto const named = _index->of(name);
    return readLimit(named, &JointConfig::minAngle, &ActuatorConfig::minAngle, lowest) &&
           readLimit(named, &JointConfig::maxAngle, &ActuatorConfig::maxAngle, highest) &&
           readLimit(named, &JointConfig::maxAngularSpeed, &ActuatorConfig::maxAngularSpeed, fastest);
}

bool MotionModel::minAngle(std::string const& name, float& angle) const
{
    return readLimit(_index->of(name), &JointConfig::minAngle, &ActuatorConfig::minAngle, angle);
}

bool MotionModel::maxAngle(std::string const& name, float& angle) const
{
    return readLimit(_index->of(name), &JointConfig::maxAngle, &ActuatorConfig::maxAngle, angle);
}

bool MotionModel::maxAngleSpeed(std::string const& name, float& speed) const
{
    return readLimit(_index->of(name), &JointConfig::maxAngularSpeed, &ActuatorConfig::maxAngularSpeed, speed);
}

}  // namespace Sim
