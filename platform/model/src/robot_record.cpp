#include "robot_record.hpp"

namespace Varo::Model {

namespace {

template <class Config>
void list(NamedTable<Config> const& table, std::vector<std::string>& names, std::map<std::string, Config>& byName)
{
    names = table.names;
    byName = table.byName;
}

}  // namespace

std::string RobotRecord::prettyName(int index) const
{
    auto const found = _data.prettyNames.find(index);
    return found == _data.prettyNames.end() ? _data.name : found->second;
}

void RobotRecord::listActuators(std::vector<std::string>& names, ActuatorTable& actuators,
                                SubActuatorTable& subActuators) const
{
    list(_data.actuators, names, actuators);
    subActuators = _data.subActuators;
}

void RobotRecord::listChains(std::vector<std::string>& names, ChainTable& chains) const
{
    list(_data.chains, names, chains);
}

void RobotRecord::listJoints(std::string& robotName, JointConfig& root, JointTable& joints,
                             std::vector<std::string>& names, std::vector<std::string>& reflectionForced) const
{
    robotName = _data.name;
    root = _data.root;
    list(_data.joints, names, joints);
    reflectionForced = _data.reflectionForced;
}

void RobotRecord::listSensors(std::vector<std::string>& names, SensorTable& sensors) const
{
    list(_data.sensors, names, sensors);
}

void RobotRecord::listWheels(std::vector<std::string>& names, WheelTable& wheels) const
{
    list(_data.wheels, names, wheels);
}

}  // namespace Varo::Model
