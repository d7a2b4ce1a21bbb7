#ifndef VARO_ACTUATORS_DCM_ACTUATOR_IMPL_HPP
#define VARO_ACTUATORS_DCM_ACTUATOR_IMPL_HPP

#include <string>
#include <utility>
#include <vector>

#include "actuators/actuator_impl.hpp"
#include "core/device_keys.hpp"
#include "sim/dcm_actuator.hpp"

namespace Sim {

inline constexpr char dcmActuatorMsg[] = "Could not query DCMActuator as it seems not correctly constructed.";

class DCMActuatorImpl : public ActuatorImpl {
public:
    DCMActuatorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name, Actuator::Type type,
                    DeviceKeys dcmKeys)
        : ActuatorImpl(frame, name, type), _dcmKeys(std::move(dcmKeys))
    {}

    std::vector<std::string> const& dcmKeys() const { return _dcmKeys.of(name()); }

    /// Every kind takes one single-precision value.
    int bufferSize() const { return 4; }

private:
    DeviceKeys _dcmKeys;
};

}  // namespace Sim

#endif
