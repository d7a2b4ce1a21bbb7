#ifndef FAKE_ROBOT_HPP
#define FAKE_ROBOT_HPP

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "varo/model/robot.hpp"

/// A robot whose tables a test fills as it likes, also with what no reader would let through. It lists no names but
/// those of chains, which are the only ones whose order means something.
class FakeRobot : public Varo::Model::Robot {
public:
    std::string descriptionName = "Description";  ///< what name() says
    std::string robotName = "Robot";  ///< what the joint listing says
    std::string versionText = "1.0";
    std::map<int, std::string> prettyNameTable;
    Varo::Model::JointConfig root;
    Varo::Model::JointTable joints;
    std::vector<std::string> reflectionForced;
    std::vector<std::string> chainNames;
    Varo::Model::ChainTable chains;
    Varo::Model::ActuatorTable actuators;
    Varo::Model::SubActuatorTable subActuators;
    Varo::Model::SensorTable sensors;
    Varo::Model::WheelTable wheels;
    std::vector<Varo::Model::PostureConfig> postureList;

    FakeRobot() { root.name = "Torso"; }

    /// The adders return the new record, named and otherwise as by default, for the test to complete.
    Varo::Model::JointConfig& addJoint(std::string const& name) { return add(joints, name); }
    Varo::Model::SensorConfig& addSensor(std::string const& name) { return add(sensors, name); }

    Varo::Model::WheelConfig& addWheel(std::string const& name, std::string const& parent)
    {
        auto& wheel = add(wheels, name);
        wheel.parentJoint = parent;
        return wheel;
    }

    /// With records for those of its joints that have none yet.
    Varo::Model::ChainConfig& addChain(std::string const& name, std::string const& parent,
                                       std::vector<std::string> jointNames)
    {
        for (auto const& joint : jointNames) {
            addJoint(joint);
        }
        chainNames.push_back(name);
        auto& chain = add(chains, name);
        chain.parentJoint = parent;
        chain.jointNames = std::move(jointNames);
        return chain;
    }

    /// With records for those of its sub-joints that have none yet.
    Varo::Model::ActuatorConfig& addActuator(std::string const& name, std::string const& parent,
                                             std::vector<std::vector<std::string>> groups = {})
    {
        for (auto const& group : groups) {
            for (auto const& subJoint : group) {
                add(subActuators, subJoint);
            }
        }
        auto& actuator = add(actuators, name);
        actuator.parentJoint = parent;
        actuator.jointGroups = std::move(groups);
        return actuator;
    }

    std::string const& name() const override { return descriptionName; }
    std::string prettyName(int index) const override
    {
        auto const found = prettyNameTable.find(index);
        return found == prettyNameTable.end() ? descriptionName : found->second;
    }
    std::string const& version() const override { return versionText; }
    void listActuators(std::vector<std::string>&, Varo::Model::ActuatorTable& table,
                       Varo::Model::SubActuatorTable& subTable) const override
    {
        table = actuators;
        subTable = subActuators;
    }
    void listChains(std::vector<std::string>& names, Varo::Model::ChainTable& table) const override
    {
        names = chainNames;
        table = chains;
    }
    void listJoints(std::string& name, Varo::Model::JointConfig& rootRecord, Varo::Model::JointTable& table,
                    std::vector<std::string>&, std::vector<std::string>& forced) const override
    {
        name = robotName;
        rootRecord = root;
        table = joints;
        forced = reflectionForced;
    }
    void listSensors(std::vector<std::string>&, Varo::Model::SensorTable& table) const override { table = sensors; }
    void listWheels(std::vector<std::string>&, Varo::Model::WheelTable& table) const override { table = wheels; }
    std::vector<Varo::Model::PostureConfig> const& postures() const override { return postureList; }
    std::map<int, std::string> const& prettyNames() const override { return prettyNameTable; }
    std::string const& dialect() const override { return _dialect; }

private:
    template <typename Record>
    static Record& add(std::map<std::string, Record>& table, std::string const& name)
    {
        auto& record = table[name];
        record.name = name;
        return record;
    }

    std::string const _dialect = "fake";
};

#endif
