#include <optional>
#include <string>

#include "actuators/angle_actuator_impl.hpp"
#include "actuators/coupled_actuator_impl.hpp"
#include "actuators/joint_actuator_impl.hpp"
#include "core/model_impl.hpp"
#include "varo/model/name_index.hpp"

namespace Sim {

void ModelImpl::pairJoints()
{
    Varo::Model::NameIndex paired;
    std::string mirror;
    for (auto const& joint : _joints) {
        auto const* const record = joint->_impl->source().joint;
        if (record != nullptr && record->mirrorKind == Varo::Model::noMirror) {
            continue;  // without looking for it by its name
        }
        bool reversed = false;
        if (!_motionModel->mirrorNameFromJointName(joint->name(), mirror, reversed) || paired.contains(joint->name())) {
            continue;
        }
        auto const& partner = _index->joints.find(mirror);
        auto const type = reversed ? JointSymmetry::ReflectedSymmetricReversed : JointSymmetry::ReflectedSymmetric;
        _jointSymmetries.push_back(
            makeElement<JointSymmetry, JointSymmetryImpl>(JointSymmetryImpl::JointPair(joint, partner), type));
        paired.add(joint->name(), 0);
        if (partner != nullptr) {
            paired.add(partner->name(), 0);
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
    std::optional<FirstByName<typename Impl::Handle>> byName;  // few robots have mirrors of every kind, or any
    std::string mirror;
    for (auto const& actuator : ofKind) {
        bool reversed = false;
        if (_motionModel->mirrorNameFromJointName(actuator->name(), mirror, reversed)) {
            if (!byName) {
                byName.emplace(ofKind);
            }
            Impl& impl = static_cast<Impl&>(*actuator->_impl);
            impl.setReflectedSymmetric(byName->find(mirror));
            impl.setReflectedSymmetricReversed(reversed);
        }
    }
}

}  // namespace Sim
