#ifndef SIM_WHEEL_TORQUE_ACTUATOR_HPP
#define SIM_WHEEL_TORQUE_ACTUATOR_HPP

#include "sim/dcm_actuator.hpp"
#include "varo/export.hpp"

namespace Sim {

class Joint;
class WheelTorqueActuatorImpl;

/// The motor of a wheel, commanded by torque (N*m).
///
/// Loading makes none, so that a loaded model has none; the kind is there for the look-ups of Model.
class VAROROBOTMODEL_API WheelTorqueActuator final : public DCMActuator {
public:
    /// Takes ownership; without implementation, every getter throws.
    explicit WheelTorqueActuator(WheelTorqueActuatorImpl* impl = nullptr);
    /// A copy with data of its own, which outlives the model.
    WheelTorqueActuator(WheelTorqueActuator const& other);
    ~WheelTorqueActuator();

    /// 4: one single-precision value.
    int bufferSize() const override;
    /// The greatest torque, N*m.
    float maxTorque() const;
    /// The joint about which the wheel turns; null when its model is gone.
    Joint const* controlledJoint() const;
};

}  // namespace Sim

#endif
