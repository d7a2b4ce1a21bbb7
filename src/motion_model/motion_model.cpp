#include "sim/motion_model.hpp"

#include <stdexcept>

#include "motion_model/motion_model_index.hpp"
#include "motion_model/start_angles.hpp"
#include "motion_model/table_lookup.hpp"
#include "varo/model/model_utils.hpp"

namespace Sim {

MotionModel::MotionModel(std::string const& xml) : MotionModel(Varo::Model::ModelUtils::robotFromXml(xml)) {}

MotionModel::MotionModel(std::unique_ptr<Varo::Model::Robot> robot) : _robot(std::move(robot))
{
    if (_robot == nullptr) {
        throw std::invalid_argument("MotionModel: no robot.");
    }
    _records = Varo::Model::recordsOf(*_robot);
    // The list of the actuators of a chain, to which each adds those that are attached to it, has no end in a cycle.
    if (auto const* const actuator = findActuatorCycle(*_records)) {
        throw std::invalid_argument("MotionModel: the actuator " + actuator->name +
                                    " is attached, through its parents, to itself.");
    }
    _index = std::make_unique<Index const>(*_records, readStartAngles(*_robot, *_records));
}

MotionModel::~MotionModel() = default;

std::string const& MotionModel::name() const
{
    std::string const& name = _robot->name();
    return _records->chains.empty() || name.empty() ? _records->name : name;
}

std::string MotionModel::prettyName(int index) const
{
    return _robot->prettyName(index);
}

std::string MotionModel::version() const
{
    return _robot->version();
}

std::list<std::string> MotionModel::wheelNames() const
{
    return namesIn(_records->wheels);
}

std::string MotionModel::parentJointFromChain(std::string const& chain) const
{
    std::string parent;
    readField(_records->chains.find(chain), &Varo::Model::ChainConfig::parentJoint, parent);
    return parent;
}

Varo::Model::JointConfig const* MotionModel::findJoint(std::string const& name) const
{
    return _index->of(name).joint();
}

MotionModel::Listed MotionModel::findListed(std::string const& name, std::uint32_t& next) const
{
    auto const named = _index->of(name, next);
    auto const* const listed = named.joint() != nullptr ? named.jointName() : named.subActuatorName();
    return {named.joint(), listed == nullptr ? &name : listed};
}

bool MotionModel::startAngle(std::string const& name, float& angle) const
{
    auto const known = _index->of(name).startAngle();
    angle = known.value_or(angle);
    return known.has_value();
}

bool MotionModel::parentJointFromActuator(std::string const& name, std::string& parent) const
{
    return readField(_index->of(name).actuator(), &Varo::Model::ActuatorConfig::parentJoint, parent);
}

bool MotionModel::parentJointFromWheel(std::string const& name, std::string& parent) const
{
    return readField(_index->of(name).wheel(), &Varo::Model::WheelConfig::parentJoint, parent);
}

bool MotionModel::maxTorqueFromWheel(std::string const& name, float& torque) const
{
    return readField(_index->of(name).wheel(), &Varo::Model::WheelConfig::maxTorque, torque);
}

bool MotionModel::maxVelocityFromWheel(std::string const& name, float& velocity) const
{
    return readField(_index->of(name).wheel(), &Varo::Model::WheelConfig::maxVelocity, velocity);
}

bool MotionModel::ratioFromJoint(std::string const& name, float& ratio) const
{
    return readField(_index->of(name).subActuator(), &Varo::Model::SubActuatorConfig::ratio, ratio);
}

}  // namespace Sim
