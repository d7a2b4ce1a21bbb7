#ifndef SIM_ANGLE_SPEED_ACTUATOR_HPP
#define SIM_ANGLE_SPEED_ACTUATOR_HPP

#include "sim/dcm_actuator.hpp"
#include "varo/export.hpp"

namespace Sim {

class AngleSpeedActuatorImpl;
class Joint;

/// The motor of a joint, commanded by speed (rad/s; m/s for a sliding joint).
///
/// Where a model has any, it has one beside each AngleActuator, of the same name and frame: that is in models whose
/// name contains "SpecialSimulation" or "Helvo".
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
    /// The joint that it drives; null when its model is gone.
    Joint const* controlledJoint() const;
    /// The actuator of the mirrored joint; null without one.
    AngleSpeedActuator const* reflectedSymmetric() const;
    /// Whether the partner mirrors this one at the opposite value.
    bool reflectedSymmetricReversed() const;
};

}  // namespace Sim

#endif
