#include "actuators/coupled_actuator_impl.hpp"

namespace Sim {

CoupledActuatorImpl::JointsAndRatios CoupledActuatorImpl::controlledJointAndRatios() const
{
    JointsAndRatios result;
    result.reserve(_controlledJointAndRatios.size());
    for (auto const& [reference, ratio] : _controlledJointAndRatios) {
        if (boost::shared_ptr<Joint const> joint = locked(reference)) {
            result.emplace_back(joint, ratio);
        }
    }
    return result;
}

}  // namespace Sim
