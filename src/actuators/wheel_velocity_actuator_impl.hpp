#ifndef VARO_ACTUATORS_WHEEL_VELOCITY_ACTUATOR_IMPL_HPP
#define VARO_ACTUATORS_WHEEL_VELOCITY_ACTUATOR_IMPL_HPP

#include "actuators/wheel_actuator_impl.hpp"
#include "sim/wheel_velocity_actuator.hpp"

namespace Sim {

inline constexpr char wheelVelocityActuatorErrorMsg[] =
    "Could not query WheelVelocityActuator as it seems not correctly constructed.";

class WheelVelocityActuatorImpl : public WheelActuatorImpl<WheelVelocityActuator> {
public:
    using WheelActuatorImpl::WheelActuatorImpl;

    float maxVelocity() const { return _limit; }
};

}  // namespace Sim

#endif
