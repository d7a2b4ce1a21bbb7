#include <string>
#include <unordered_set>

#include "actuators/angle_actuator_impl.hpp"
#include "actuators/coupled_actuator_impl.hpp"
#include "actuators/joint_actuator_impl.hpp"
#include "core/model_impl.hpp"

namespace Sim {

void ModelImpl::pairJoints()
{
    std::unordered_set<std::string> paired;
    for (auto const& joint : _joints) {
        std::string mirror;
        bool reversed = false;
        if (!_motionModel->mirrorNameFromJointName(joint->name(), mirror, reversed) ||
            paired.count(joint->name()) != 0) {
            continue;
        }
        auto const partner = _index->joints.find(mirror);
        auto const type = reversed ? JointSymmetry::ReflectedSymmetricReversed : JointSymmetry::ReflectedSymmetric;
        _jointSymmetryImpls.push_back(
            std::make_unique<JointSymmetryImpl>(JointSymmetryImpl::JointPair(joint, partner), type));
        _jointSymmetries.push_back(boost::make_shared<JointSymmetry>());
        _jointSymmetries.back()->_impl = _jointSymmetryImpls.back().get();
        paired.insert(joint->name());
        if (partner != nullptr) {
            paired.insert(partner->name());
        }
    }
}

void ModelImpl::pairActuators()
{
    pairActuatorsOfKind<AngleActuatorImpl>();
    pairActuatorsOfKind<AngleSpeedActuatorImpl>();
    pairActuatorsOfKind<CoupledActuatorImpl>();
    pairActuatorsOfKind<TorqueActuatorImpl>();
}

template <class Impl>
void ModelImpl::pairActuatorsOfKind()
{
    auto const ofKind = actuators<typename Impl::Handle>();
    FirstByName<typename Impl::Handle> const byName(ofKind);
    for (auto const& actuator : ofKind) {
        std::string mirror;
        bool reversed = false;
        if (_motionModel->mirrorNameFromJointName(actuator->name(), mirror, reversed)) {
            Impl& impl = static_cast<Impl&>(*actuator->_impl);
            impl.setReflectedSymmetric(byName.find(mirror));
            impl.setReflectedSymmetricReversed(reversed);
        }
    }
}

}  // namespace Sim
