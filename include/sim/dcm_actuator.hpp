#ifndef SIM_DCM_ACTUATOR_HPP
#define SIM_DCM_ACTUATOR_HPP

#include <string>
#include <vector>

#include "sim/actuator.hpp"
#include "varo/export.hpp"

namespace Sim {

class DCMActuatorImpl;

/// An actuator that the robot's device layer knows by device keys.
class VAROROBOTMODEL_API DCMActuator : public Actuator {
public:
    int bufferSize() const override = 0;
    /// The keys under which commands are written.
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
