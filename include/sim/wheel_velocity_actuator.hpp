#ifndef SIM_WHEEL_VELOCITY_ACTUATOR_HPP
#define SIM_WHEEL_VELOCITY_ACTUATOR_HPP

#include "sim/dcm_actuator.hpp"
#include "varo/export.hpp"

namespace Sim {

class Joint;
class WheelVelocityActuatorImpl;

/// Drives a wheel at an angular speed.
class VAROROBOTMODEL_API WheelVelocityActuator final : public DCMActuator {
public:
    /// Takes ownership; without implementation, every getter throws.
    explicit WheelVelocityActuator(WheelVelocityActuatorImpl* impl = nullptr);
    /// A copy with data of its own, which outlives the model.
    WheelVelocityActuator(WheelVelocityActuator const& other);
    ~WheelVelocityActuator();

    /// 4: one single-precision value.
    int bufferSize() const override;
    /// rad/s
    float maxVelocity() const;
    /// The joint about which the wheel turns; null when its model is gone.
    Joint const* controlledJoint() const;
};

}  // namespace Sim

#endif
