#include "sim/joint.hpp"

#include "core/handle.hpp"
#include "core/joint_impl.hpp"

namespace Sim {

Joint::Joint() : _impl(nullptr) {}

Joint::~Joint()
{
    delete _impl;
}

Frame const* Joint::frame() const
{
    return implOf(_impl, jointErrorMsg).frame().get();
}

std::string const& Joint::name() const
{
    return implOf(_impl, jointErrorMsg).name();
}

Link const* Joint::parentLink() const
{
    return implOf(_impl, jointErrorMsg).parentLink().get();
}

Link const* Joint::childLink() const
{
    return implOf(_impl, jointErrorMsg).childLink().get();
}

Joint::Type Joint::type() const
{
    switch (implOf(_impl, jointErrorMsg).record().jointType) {
    case Varo::Model::revolute: return Type::revolute;
    case Varo::Model::continuous: return Type::continuous;
    case Varo::Model::prismatic: return Type::prismatic;
    case Varo::Model::planar: return Type::planar;
    case Varo::Model::floating: return Type::floating;
    default: return Type::fixed;
    }
}

bool Joint::moves() const
{
    return Varo::Model::isMoving(implOf(_impl, jointErrorMsg).record().jointType);
}

bool Joint::hasMotor() const
{
    return implOf(_impl, jointErrorMsg).record().hasMotor;
}

Joint::Limits Joint::limits() const
{
    Varo::Model::JointConfig const& record = implOf(_impl, jointErrorMsg).record();
    return {record.minAngle, record.maxAngle};
}

float Joint::effort() const
{
    return implOf(_impl, jointErrorMsg).effort();
}

float Joint::velocity() const
{
    return implOf(_impl, jointErrorMsg).velocity();
}

float Joint::damping() const
{
    return implOf(_impl, jointErrorMsg).record().damping;
}

float Joint::friction() const
{
    return implOf(_impl, jointErrorMsg).record().friction;
}

Varo::Model::MimicConfig const* Joint::mimic() const
{
    return implOf(_impl, jointErrorMsg).record().mimic.get();
}

Varo::Model::SafetyConfig const* Joint::safety() const
{
    return implOf(_impl, jointErrorMsg).record().safety.get();
}

Varo::Model::CalibrationConfig const* Joint::calibration() const
{
    return implOf(_impl, jointErrorMsg).record().calibration.get();
}

}  // namespace Sim
