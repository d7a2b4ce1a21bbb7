#ifndef SIM_TORQUE_ACTUATOR_HPP
#define SIM_TORQUE_ACTUATOR_HPP

#include "sim/dcm_actuator.hpp"
#include "varo/export.hpp"

namespace Sim {

class Joint;
class TorqueActuatorImpl;

/// The motor of a joint, commanded by torque (N*m; by force in N for a sliding joint).
///
/// Where a model has any, it has one beside each AngleActuator, of the same name and frame: that is in models whose
/// name contains "SpecialSimulation" or "Helvo".
class VAROROBOTMODEL_API TorqueActuator final : public DCMActuator {
public:
    /// Takes ownership; without implementation, every getter throws.
    explicit TorqueActuator(TorqueActuatorImpl* impl = nullptr);
    /// A copy with data of its own, which outlives the model.
    TorqueActuator(TorqueActuator const& other);
    ~TorqueActuator();

    /// 4: one single-precision value.
    int bufferSize() const override;
    /// N*m; always 0.
    float startValue() const;
    /// N*m; always -100, as descriptions state none.
    float minValue() const;
    /// N*m; always 100, as descriptions state none.
    float maxValue() const;
    /// The joint that it drives; null when its model is gone.
    Joint const* controlledJoint() const;
    /// The actuator of the mirrored joint; null without one.
    TorqueActuator const* reflectedSymmetric() const;
    /// Whether the partner mirrors this one at the opposite value.
    bool reflectedSymmetricReversed() const;
};

}  // namespace Sim

#endif
