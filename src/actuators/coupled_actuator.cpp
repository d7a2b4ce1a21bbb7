#include "sim/coupled_actuator.hpp"

#include "actuators/actuator_handle.hpp"
#include "actuators/coupled_actuator_impl.hpp"
#include "core/handle.hpp"
#include "core/model_impl.hpp"

namespace Sim {

CoupledActuator::CoupledActuator(CoupledActuatorImpl* impl) : DCMActuator(impl) {}

CoupledActuator::CoupledActuator(CoupledActuator const& other) : DCMActuator(other)
{
    adoptCopy<CoupledActuatorImpl>(_impl, other._impl);
}

CoupledActuator::~CoupledActuator()
{
    release(_impl);
}

int CoupledActuator::bufferSize() const
{
    return implOf<CoupledActuatorImpl>(_impl, coupledActuatorErrorMsg).bufferSize();
}

float CoupledActuator::startValue() const
{
    return implOf<CoupledActuatorImpl>(_impl, coupledActuatorErrorMsg).startValue();
}

float CoupledActuator::minValue() const
{
    return implOf<CoupledActuatorImpl>(_impl, coupledActuatorErrorMsg).minValue();
}

float CoupledActuator::maxValue() const
{
    return implOf<CoupledActuatorImpl>(_impl, coupledActuatorErrorMsg).maxValue();
}

float CoupledActuator::maxSpeed() const
{
    return implOf<CoupledActuatorImpl>(_impl, coupledActuatorErrorMsg).maxSpeed();
}

CoupledActuator const* CoupledActuator::reflectedSymmetric() const
{
    return implOf<CoupledActuatorImpl>(_impl, coupledActuatorErrorMsg).reflectedSymmetric().get();
}

bool CoupledActuator::reflectedSymmetricReversed() const
{
    return implOf<CoupledActuatorImpl>(_impl, coupledActuatorErrorMsg).reflectedSymmetricReversed();
}

bool CoupledActuator::reflectionForced() const
{
    return implOf<CoupledActuatorImpl>(_impl, coupledActuatorErrorMsg).reflectionForced();
}

std::vector<std::pair<Joint const*, float>> CoupledActuator::controlledJointAndRatios() const
{
    std::vector<std::pair<Joint const*, float>> result;
    for (auto const& [joint, ratio] :
         implOf<CoupledActuatorImpl>(_impl, coupledActuatorErrorMsg).controlledJointAndRatios()) {
        result.emplace_back(joint.get(), ratio);
    }
    return result;
}

CoupledActuator const* Model::coupledActuator(std::string const& name) const
{
    return implOf(_impl, modelErrorMsg).actuator<CoupledActuator>(name);
}

std::vector<CoupledActuator const*> Model::coupledActuators() const
{
    return rawPointers(implOf(_impl, modelErrorMsg).actuators<CoupledActuator>());
}

}  // namespace Sim
