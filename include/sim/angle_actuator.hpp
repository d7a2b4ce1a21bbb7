#ifndef SIM_ANGLE_ACTUATOR_HPP
#define SIM_ANGLE_ACTUATOR_HPP

#include "sim/dcm_actuator.hpp"
#include "varo/export.hpp"

namespace Sim {

class AngleActuatorImpl;
class Joint;

/// Drives a joint to an angle (rad; m for a sliding joint).
class VAROROBOTMODEL_API AngleActuator final : public DCMActuator {
public:
    /// Takes ownership; without implementation, every getter throws.
    explicit AngleActuator(AngleActuatorImpl* impl = nullptr);
    /// A copy with data of its own, which outlives the model.
    AngleActuator(AngleActuator const& other);
    ~AngleActuator();

    /// 4: one single-precision value.
    int bufferSize() const override;
    /// In the posture "StandInit".
    float startValue() const;
    /// Minus infinity when unlimited.
    float minValue() const;
    /// Infinity when unlimited.
    float maxValue() const;
    /// rad/s (m/s for a sliding joint)
    float maxSpeed() const;
    /// Null when its model is gone.
    Joint const* controlledJoint() const;
    /// The actuator of the mirrored joint; null without one.
    AngleActuator const* reflectedSymmetric() const;
    /// Whether the partner mirrors this one at the opposite value.
    bool reflectedSymmetricReversed() const;
    /// As the description states it.
    bool reflectionForced() const;
};

}  // namespace Sim

#endif
