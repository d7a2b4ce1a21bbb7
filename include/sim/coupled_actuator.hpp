#ifndef SIM_COUPLED_ACTUATOR_HPP
#define SIM_COUPLED_ACTUATOR_HPP

#include <utility>
#include <vector>

#include "sim/dcm_actuator.hpp"
#include "varo/export.hpp"

namespace Sim {

class CoupledActuatorImpl;
class Joint;

/// One motor that drives several joints at once, each to the motor's angle (rad) times a ratio of its own.
class VAROROBOTMODEL_API CoupledActuator final : public DCMActuator {
public:
    /// Takes ownership; without implementation, every getter throws.
    explicit CoupledActuator(CoupledActuatorImpl* impl = nullptr);
    /// A copy with data of its own, which outlives the model.
    CoupledActuator(CoupledActuator const& other);
    ~CoupledActuator();

    /// 4: one single-precision value.
    int bufferSize() const override;
    /// In the posture "StandInit".
    float startValue() const;
    /// Minus infinity when unlimited.
    float minValue() const;
    /// Infinity when unlimited.
    float maxValue() const;
    /// rad/s
    float maxSpeed() const;
    /// The mirrored actuator; null without one.
    CoupledActuator const* reflectedSymmetric() const;
    /// Whether the partner mirrors this one at the opposite value.
    bool reflectedSymmetricReversed() const;
    /// As the description states it.
    bool reflectionForced() const;
    /// The driven joints that the model has, in the description's order, never null inside, each with its ratio.
    std::vector<std::pair<Joint const*, float>> controlledJointAndRatios() const;
};

}  // namespace Sim

#endif
