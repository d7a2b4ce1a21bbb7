#ifndef VARO_ACTUATORS_TORQUE_ACTUATOR_IMPL_HPP
#define VARO_ACTUATORS_TORQUE_ACTUATOR_IMPL_HPP

#include "actuators/joint_actuator_impl.hpp"
#include "sim/torque_actuator.hpp"

namespace Sim {

inline constexpr char torqueActuatorErrorMsg[] =
    "Could not query TorqueActuator as it seems not correctly constructed.";

class TorqueActuatorImpl : public JointActuatorImpl<TorqueActuator, Actuator::Torque> {
public:
    using JointActuatorImpl::JointActuatorImpl;
};

}  // namespace Sim

#endif
