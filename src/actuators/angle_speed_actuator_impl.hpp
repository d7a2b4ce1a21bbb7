#ifndef VARO_ACTUATORS_ANGLE_SPEED_ACTUATOR_IMPL_HPP
#define VARO_ACTUATORS_ANGLE_SPEED_ACTUATOR_IMPL_HPP

#include "actuators/joint_actuator_impl.hpp"
#include "sim/angle_speed_actuator.hpp"

namespace Sim {

inline constexpr char angleSpeedActuatorErrorMsg[] =
    "Could not query AngleSpeedActuator as it seems not correctly constructed.";

class AngleSpeedActuatorImpl : public JointActuatorImpl<AngleSpeedActuator, Actuator::AngleSpeed> {
public:
    using JointActuatorImpl::JointActuatorImpl;
};

}  // namespace Sim

#endif
