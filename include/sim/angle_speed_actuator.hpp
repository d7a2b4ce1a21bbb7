#ifndef SIM_ANGLE_SPEED_ACTUATOR_HPP
#define SIM_ANGLE_SPEED_ACTUATOR_HPP

#include "sim/dcm_actuator.hpp"
#include "varo/export.hpp"

namespace Sim {

class AngleSpeedActuatorImpl;
class Joint;

/// Drives a joint at an angular speed (rad/s). Only models whose name contains "SpecialSimulation" or "Helvo" have
/// any.
class VAROROBOTMODEL_API AngleSpeedActuator final : public DCMActuator {
public:
    /// Takes ownership; without implementation, every getter throws.
    explicit AngleSpeedActuator(AngleSpeedActuatorImpl* impl = nullptr);
    /// A copy with data of its own, which outlives the model.
    AngleSpeedActuator(AngleSpeedActuator const& other);
    ~AngleSpeedActuator();

    /// 4: one single-precision value.
    int bufferSize() const override;
    /// rad/s; always 0.
    float startValue() const;
    /// rad/s; always -10, as descriptions state none.
    float minValue() const;
    /// rad/s; always 10, as descriptions state none.
    float maxValue() const;
    /// Null when its model is gone.
    Joint const* controlledJoint() const;
    /// The actuator of the mirrored joint; null without one.
    AngleSpeedActuator const* reflectedSymmetric() const;
    /// Whether the partner mirrors this one at the opposite value.
    bool reflectedSymmetricReversed() const;
};

}  // namespace Sim

#endif
