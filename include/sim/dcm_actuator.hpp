#ifndef SIM_DCM_ACTUATOR_HPP
#define SIM_DCM_ACTUATOR_HPP

#include <string>
#include <vector>

#include "sim/actuator.hpp"
#include "varo/export.hpp"

namespace Sim {

class DCMActuatorImpl;

/// An actuator that the robot's device layer commands under device keys, as it does all kinds.
///
/// A key is the name of one value, such as "Elbow/Angle/Actuator". The keys of a motor follow from its name and from
/// what it is commanded by; those of a light are the ones that the description gives it, in its order.
class VAROROBOTMODEL_API DCMActuator : public Actuator {
public:
    int bufferSize() const override = 0;
    /// The keys under which commands are written; empty for a light that the description gives none.
    std::vector<std::string> const& dcmKeys() const;

protected:
    /// Takes ownership.
    explicit DCMActuator(DCMActuatorImpl* impl);
    /// A copy with data of its own, which outlives the model.
    DCMActuator(DCMActuator const& other);
    ~DCMActuator();
};

}  // namespace Sim

#endif
