#ifndef SIM_ANGLE_ACTUATOR_HPP
#define SIM_ANGLE_ACTUATOR_HPP

#include "sim/dcm_actuator.hpp"
#include "varo/export.hpp"

namespace Sim {

class AngleActuatorImpl;
class Joint;

/// The motor of a joint, commanded by angle (rad; m for a sliding joint).
///
/// It has the name of the joint. Its frame lies where the joint's frame does, but is fixed to the link that the joint
/// moves.
class VAROROBOTMODEL_API AngleActuator final : public DCMActuator {
public:
    /// Takes ownership; without implementation, every getter throws.
    explicit AngleActuator(AngleActuatorImpl* impl = nullptr);
    /// A copy with data of its own, which outlives the model.
    AngleActuator(AngleActuator const& other);
    ~AngleActuator();

    /// 4: one single-precision value.
    int bufferSize() const override;
    /// The angle in the posture "StandInit"; 0 when the description has no postures.
    float startValue() const;
    /// The smallest angle; minus infinity when unlimited.
    float minValue() const;
    /// The greatest angle; infinity when unlimited.
    float maxValue() const;
    /// The greatest speed, rad/s (m/s for a sliding joint); 0 when the description states none.
    float maxSpeed() const;
    /// The joint that it drives; null when its model is gone.
    Joint const* controlledJoint() const;
    /// The actuator of the mirrored joint; null without one.
    AngleActuator const* reflectedSymmetric() const;
    /// Whether the partner mirrors this one at the opposite value.
    bool reflectedSymmetricReversed() const;
    /// Whether a symmetric motion reflects the joint whatever its mirror says, as the description states it.
    bool reflectionForced() const;
};

}  // namespace Sim

#endif
