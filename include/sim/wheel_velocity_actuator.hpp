#ifndef SIM_WHEEL_VELOCITY_ACTUATOR_HPP
#define SIM_WHEEL_VELOCITY_ACTUATOR_HPP

#include "sim/dcm_actuator.hpp"
#include "varo/export.hpp"

namespace Sim {

class Joint;
class WheelVelocityActuatorImpl;

/// The motor of a wheel, commanded by speed (rad/s).
///
/// Every wheel has one, of its name. It sits at the frame of the wheel's link and turns it about -x of that frame,
/// which is the z axis of the wheel's joint.
class VAROROBOTMODEL_API WheelVelocityActuator final : public DCMActuator {
public:
    /// Takes ownership; without implementation, every getter throws.
    explicit WheelVelocityActuator(WheelVelocityActuatorImpl* impl = nullptr);
    /// A copy with data of its own, which outlives the model.
    WheelVelocityActuator(WheelVelocityActuator const& other);
    ~WheelVelocityActuator();

    /// 4: one single-precision value.
    int bufferSize() const override;
    /// The greatest speed, rad/s.
    float maxVelocity() const;
    /// The joint about which the wheel turns; null when its model is gone.
    Joint const* controlledJoint() const;
};

}  // namespace Sim

#endif
