#include "core/joint_impl.hpp"

#include <limits>

namespace Sim {

namespace {

using Varo::Model::JointConfig;

JointConfig unlimited(Varo::Model::JointType type, bool hasMotor)
{
    JointConfig record;
    record.jointType = type;
    record.minAngle = -std::numeric_limits<float>::infinity();
    record.maxAngle = std::numeric_limits<float>::infinity();
    record.hasMotor = hasMotor;
    return record;
}

}  // namespace

JointConfig const& JointImpl::record() const
{
    static JointConfig const ofWheels = unlimited(Varo::Model::continuous, true);
    static JointConfig const ofSubJoints = unlimited(Varo::Model::revolute, false);
    if (_source.joint != nullptr) {
        return *_source.joint;
    }
    return isWheel() ? ofWheels : ofSubJoints;
}

}  // namespace Sim
