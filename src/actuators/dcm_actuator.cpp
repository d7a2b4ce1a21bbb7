#include "sim/dcm_actuator.hpp"

#include "actuators/actuator_handle.hpp"
#include "actuators/dcm_actuator_impl.hpp"
#include "core/handle.hpp"

namespace Sim {

DCMActuator::DCMActuator(DCMActuatorImpl* impl) : Actuator(impl) {}

DCMActuator::DCMActuator(DCMActuator const& other) : Actuator(other)
{
    adoptCopy<DCMActuatorImpl>(_impl, other._impl);
}

DCMActuator::~DCMActuator()
{
    release(_impl);
}

std::vector<std::string> const& DCMActuator::dcmKeys() const
{
    return implOf<DCMActuatorImpl>(_impl, dcmActuatorMsg).dcmKeys();
}

}  // namespace Sim
