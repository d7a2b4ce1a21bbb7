#ifndef VARO_ACTUATORS_DCM_ACTUATOR_IMPL_HPP
#define VARO_ACTUATORS_DCM_ACTUATOR_IMPL_HPP

#include <string>
#include <utility>
#include <vector>

#include "actuators/actuator_impl.hpp"
#include "sim/dcm_actuator.hpp"

namespace Sim {

inline constexpr char dcmActuatorMsg[] = "Could not query DCMActuator as it seems not correctly constructed.";

class DCMActuatorImpl : public ActuatorImpl {
public:
    DCMActuatorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name, Actuator::Type type,
                    std::vector<std::string> dcmKeys)
        : ActuatorImpl(frame, name, type), _dcmKeys(std::move(dcmKeys))
    {}

    std::vector<std::string> const& dcmKeys() const { return _dcmKeys; }

    /// Every kind takes one single-precision value.
    int bufferSize() const { return 4; }

private:
    std::vector<std::string> _dcmKeys;
};

}  // namespace Sim

#endif
