#include <optional>
#include <string>
#include <vector>

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

/// Gives actuators their mirrors, which are of the same kind.
template <class Impl>
class ModelImpl::MirrorsOfKind {
public:
    explicit MirrorsOfKind(ModelImpl const& model) : _model(model) {}

    /// Leaves actuators of other kinds alone.
    void pair(Actuator& actuator, std::string const& mirror, bool reversed)
    {
        if (actuator.type() != kindOf<Handle>().type) {
            return;
        }
        if (!_byName) {
            _ofKind = _model.actuators<Handle>();
            _byName.emplace(_ofKind);
        }
        Impl& impl = static_cast<Impl&>(*actuator._impl);
        impl.setReflectedSymmetric(_byName->find(mirror));
        impl.setReflectedSymmetricReversed(reversed);
    }

private:
    using Handle = typename Impl::Handle;

    ModelImpl const& _model;
    std::vector<boost::shared_ptr<Handle>> _ofKind;
    std::optional<FirstByName<Handle>> _byName;  // few robots have mirrors of every kind, or any
};

void ModelImpl::pairActuators()
{
    MirrorsOfKind<AngleActuatorImpl> angles(*this);
    MirrorsOfKind<AngleSpeedActuatorImpl> speeds(*this);
    MirrorsOfKind<CoupledActuatorImpl> coupled(*this);
    MirrorsOfKind<TorqueActuatorImpl> torques(*this);
    std::string mirror;
    for (auto const& actuator : _actuators) {
        bool reversed = false;
        if (_motionModel->mirrorNameFromJointName(actuator->name(), mirror, reversed)) {
            angles.pair(*actuator, mirror, reversed);
            speeds.pair(*actuator, mirror, reversed);
            coupled.pair(*actuator, mirror, reversed);
            torques.pair(*actuator, mirror, reversed);
        }
    }
}

}  // namespace Sim
