#ifndef SIM_COUPLED_ACTUATOR_HPP
#define SIM_COUPLED_ACTUATOR_HPP

#include <utility>
#include <vector>

#include "sim/dcm_actuator.hpp"
#include "varo/export.hpp"

namespace Sim {

class CoupledActuatorImpl;
class Joint;

/// One motor that moves several joints together, as a tendon closes the fingers of a hand: it is commanded by an angle
/// (rad), and each joint follows with that angle times a ratio of its own.
///
/// Its frame is posed in the frame of the joint that it is attached to.
class VAROROBOTMODEL_API CoupledActuator final : public DCMActuator {
public:
    /// Takes ownership; without implementation, every getter throws.
    explicit CoupledActuator(CoupledActuatorImpl* impl = nullptr);
    /// A copy with data of its own, which outlives the model.
    CoupledActuator(CoupledActuator const& other);
    ~CoupledActuator();

    /// 4: one single-precision value.
    int bufferSize() const override;
    /// The motor's angle in the posture "StandInit"; 0 when the description has no postures.
    float startValue() const;
    /// The motor's smallest angle; minus infinity when unlimited.
    float minValue() const;
    /// The motor's greatest angle; infinity when unlimited.
    float maxValue() const;
    /// The motor's greatest speed, rad/s; 0 when the description states none.
    float maxSpeed() const;
    /// The mirrored actuator; null without one.
    CoupledActuator const* reflectedSymmetric() const;
    /// Whether the partner mirrors this one at the opposite value.
    bool reflectedSymmetricReversed() const;
    /// As AngleActuator::reflectionForced, of the joint that has the actuator's name; false when none does.
    bool reflectionForced() const;
    /// The driven joints that the model has, in the description's order, never null inside, each with its ratio.
    std::vector<std::pair<Joint const*, float>> controlledJointAndRatios() const;
};

}  // namespace Sim

#endif
