#ifndef VARO_MODEL_ROBOT_RECORD_HPP
#define VARO_MODEL_ROBOT_RECORD_HPP

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "varo/model/robot.hpp"

namespace Varo::Model {

/// The elements of one kind by name, and their names in the order of the description.
template <class Config>
struct NamedTable {
    std::map<std::string, Config> byName;
    std::vector<std::string> names;

    /// False, with nothing changed, when the name is taken.
    bool add(Config&& config)
    {
        std::string name = config.name;
        // Descriptions often name their elements in ascending order, where a place at the end is found at once.
        auto const size = byName.size();
        byName.try_emplace(byName.end(), name, std::move(config));
        if (byName.size() == size) {
            return false;
        }
        names.push_back(std::move(name));
        return true;
    }

    bool contains(std::string const& name) const { return byName.find(name) != byName.end(); }
};

/// All that a description says, as a reader of either dialect collects it.
struct RobotData {
    std::string dialect;
    std::string name;
    std::string version;
    std::map<int, std::string> prettyNames;
    JointConfig root;
    NamedTable<JointConfig> joints;
    std::vector<std::string> reflectionForced;
    NamedTable<ChainConfig> chains;
    NamedTable<ActuatorConfig> actuators;
    SubActuatorTable subActuators;
    NamedTable<SensorConfig> sensors;
    NamedTable<WheelConfig> wheels;
    std::vector<PostureConfig> postures;
};

/// The robot that readers hand out.
class RobotRecord final : public Robot {
public:
    explicit RobotRecord(RobotData data) : _data(std::move(data)) {}

    std::string const& name() const override { return _data.name; }
    std::string prettyName(int index) const override;
    std::string const& version() const override { return _data.version; }
    void listActuators(std::vector<std::string>& names, ActuatorTable& actuators,
                       SubActuatorTable& subActuators) const override;
    void listChains(std::vector<std::string>& names, ChainTable& chains) const override;
    void listJoints(std::string& robotName, JointConfig& root, JointTable& joints, std::vector<std::string>& names,
                    std::vector<std::string>& reflectionForced) const override;
    void listSensors(std::vector<std::string>& names, SensorTable& sensors) const override;
    void listWheels(std::vector<std::string>& names, WheelTable& wheels) const override;
    std::vector<PostureConfig> const& postures() const override { return _data.postures; }
    std::map<int, std::string> const& prettyNames() const override { return _data.prettyNames; }
    std::string const& dialect() const override { return _data.dialect; }

private:
    RobotData _data;
};

}  // namespace Varo::Model

#endif
