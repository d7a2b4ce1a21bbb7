#include "sim/motion_model.hpp"

#include <stdexcept>
#include <unordered_set>

#include "description/motion_model_index.hpp"
#include "description/table_lookup.hpp"
#include "posture/posture_library.hpp"
#include "varo/model/model_utils.hpp"

namespace Sim {

namespace {

using StartAngles = std::vector<std::pair<std::string, float>>;

/// The robot's posture "StandInit", laid out as its angle names are; zeros when the robot has no postures.
StartAngles readStartAngles(Varo::Model::Robot const& robot, std::vector<std::string> const& angleNames)
{
    StartAngles startAngles;
    posture::PostureLibrary library;
    if (!library.loadLibraryFromName(posture::getRobotPostureLibraryName(robot))) {
        for (auto const& name : angleNames) {
            startAngles.emplace_back(name, 0.0F);
        }
        return startAngles;
    }
    posture::Posture standInit;
    library.getPostureFromId(library.getIdFromName("StandInit"), standInit, true);
    auto const& angles = standInit.jointValues();
    if (angles.size() > angleNames.size()) {
        throw std::out_of_range("MotionModel: the posture StandInit gives an angle to a name that no chain leads to.");
    }
    for (std::size_t i = 0; i < angles.size(); ++i) {
        startAngles.emplace_back(angleNames[i], angles[i]);
    }
    return startAngles;
}

/// The list of the actuators of a chain, to which each contributes those that hang on it, has no end in a loop.
void refuseActuatorLoops(Varo::Model::ActuatorTable const& actuators)
{
    std::unordered_set<std::string_view> cleared;
    for (auto const& entry : actuators) {
        std::unordered_set<std::string_view> path;
        auto actuator = actuators.find(entry.first);
        while (actuator != actuators.end() && cleared.count(actuator->first) == 0) {
            if (!path.insert(actuator->first).second) {
                throw std::invalid_argument("MotionModel: the actuator " + actuator->first +
                                            " hangs, through its parents, on itself.");
            }
            actuator = actuators.find(actuator->second.parentJoint);
        }
        cleared.merge(path);
    }
}

}  // namespace

MotionModel::MotionModel(std::string const& xml) : MotionModel(Varo::Model::ModelUtils::robotFromXml(xml)) {}

MotionModel::MotionModel(std::unique_ptr<Varo::Model::Robot> robot) : _robot(std::move(robot))
{
    if (_robot == nullptr) {
        throw std::invalid_argument("MotionModel: no robot.");
    }
    std::vector<std::string> names;
    _robot->listChains(_chainNames, _chains);
    _robot->listActuators(names, _actuators, _subActuators);
    _robot->listJoints(_robotName, _root, _joints, names, _reflectionForced);
    _robot->listSensors(names, _sensors);
    _robot->listWheels(names, _wheels);

    refuseActuatorLoops(_actuators);
    for (auto const& name : _chainNames) {
        _chains[name];  // a chain that is listed without a record is an empty one
    }
    if (!_chainNames.empty()) {
        _descriptionName = _robot->name();
    }
    _startAngles = readStartAngles(*_robot, Varo::Model::angleNames(_chainNames, _chains, _actuators));
    _index = std::make_unique<Index const>(*this);
}

MotionModel::~MotionModel() = default;

std::string const& MotionModel::name() const
{
    return _descriptionName.empty() ? _robotName : _descriptionName;
}

std::string MotionModel::prettyName(int index) const
{
    return _robot->prettyName(index);
}

std::string MotionModel::version() const
{
    return _robot->version();
}

std::list<std::string> MotionModel::chainNames() const
{
    return {_chainNames.begin(), _chainNames.end()};
}

std::list<std::string> MotionModel::wheelNames() const
{
    return namesIn(_wheels);
}

std::string MotionModel::parentJointFromChain(std::string const& chain) const
{
    std::string parent;
    readField(find(_chains, chain), &Varo::Model::ChainConfig::parentJoint, parent);
    return parent;
}

bool MotionModel::startAngle(std::string const& name, float& angle) const
{
    auto const& known = _index->of(name).startAngle;
    angle = known.value_or(angle);
    return known.has_value();
}

bool MotionModel::parentJointFromActuator(std::string const& name, std::string& parent) const
{
    return readField(_index->of(name).actuator, &Varo::Model::ActuatorConfig::parentJoint, parent);
}

bool MotionModel::parentJointFromWheel(std::string const& name, std::string& parent) const
{
    return readField(_index->of(name).wheel, &Varo::Model::WheelConfig::parentJoint, parent);
}

bool MotionModel::maxTorqueFromWheel(std::string const& name, float& torque) const
{
    return readField(_index->of(name).wheel, &Varo::Model::WheelConfig::maxTorque, torque);
}

bool MotionModel::maxVelocityFromWheel(std::string const& name, float& velocity) const
{
    return readField(_index->of(name).wheel, &Varo::Model::WheelConfig::maxVelocity, velocity);
}

bool MotionModel::ratioFromJoint(std::string const& name, float& ratio) const
{
    return readField(_index->of(name).subActuator, &Varo::Model::SubActuatorConfig::ratio, ratio);
}

}  // namespace Sim
