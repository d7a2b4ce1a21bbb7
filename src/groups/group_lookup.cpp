#include "actuators/coupled_actuator_impl.hpp"
#include "core/model_impl.hpp"

namespace Sim {

namespace {

/// How many times the actuator drives the joint. Only angle and coupled actuators do.
int timesDriven(Actuator const* actuator, std::string const& jointName)
{
    if (auto const* angle = dynamic_cast<AngleActuator const*>(actuator)) {
        Joint const* const joint = angle->controlledJoint();
        return joint != nullptr && joint->name() == jointName ? 1 : 0;
    }
    int times = 0;
    if (auto const* coupled = dynamic_cast<CoupledActuator const*>(actuator)) {
        for (auto const& [joint, ratio] : coupled->controlledJointAndRatios()) {
            times += joint->name() == jointName ? 1 : 0;
        }
    }
    return times;
}

}  // namespace

std::vector<boost::shared_ptr<JointGroup>> ModelImpl::jointGroupsOfJoint(std::string const& jointName) const
{
    std::vector<boost::shared_ptr<JointGroup>> result;
    for (auto const& group : _jointGroups) {
        for (Joint const* member : group->joints()) {
            if (member != nullptr && member->name() == jointName) {
                result.push_back(group);
            }
        }
    }
    return result;
}

std::vector<boost::shared_ptr<ActuatorGroup>> ModelImpl::actuatorGroupsOfJoint(std::string const& jointName) const
{
    std::vector<boost::shared_ptr<ActuatorGroup>> result;
    for (auto const& group : _actuatorGroups) {
        for (Actuator const* member : group->actuators()) {
            result.insert(result.end(), static_cast<std::size_t>(timesDriven(member, jointName)), group);
        }
    }
    return result;
}

}  // namespace Sim
