#ifndef VARO_ACTUATORS_WHEEL_TORQUE_ACTUATOR_IMPL_HPP
#define VARO_ACTUATORS_WHEEL_TORQUE_ACTUATOR_IMPL_HPP

#include "actuators/wheel_actuator_impl.hpp"
#include "sim/wheel_torque_actuator.hpp"

namespace Sim {

inline constexpr char wheelTorqueActuatorErrorMsg[] =
    "Could not query WheelTorqueActuator as it seems not correctly constructed.";

class WheelTorqueActuatorImpl : public WheelActuatorImpl<WheelTorqueActuator> {
public:
    using WheelActuatorImpl::WheelActuatorImpl;

    float maxTorque() const { return _limit; }
};

}  // namespace Sim

#endif
