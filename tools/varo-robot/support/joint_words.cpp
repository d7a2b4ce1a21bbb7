#include "support/joint_words.hpp"

#include "sim/coupled_actuator.hpp"

namespace Tool {

char const* wordOf(Sim::Joint::Type type)
{
    switch (type) {
    case Sim::Joint::Type::revolute: return "revolute";
    case Sim::Joint::Type::continuous: return "continuous";
    case Sim::Joint::Type::prismatic: return "prismatic";
    case Sim::Joint::Type::planar: return "planar";
    case Sim::Joint::Type::floating: return "floating";
    case Sim::Joint::Type::fixed: break;
    }
    return "fixed";
}

JointWords::JointWords(Sim::Model const& model)
{
    for (Sim::CoupledActuator const* const actuator : model.coupledActuators()) {
        for (auto const& [joint, ratio] : actuator->controlledJointAndRatios()) {
            _coupled.insert(joint);
        }
    }
}

std::string JointWords::of(Sim::Joint const& joint) const
{
    if (!joint.moves()) {
        return wordOf(joint.type());
    }
    if (joint.hasMotor()) {
        return "actuated";
    }
    if (_coupled.count(&joint) != 0) {
        return "coupled";
    }
    return joint.mimic() != nullptr ? "mimic" : "passive";
}

}  // namespace Tool
