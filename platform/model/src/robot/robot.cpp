#include "varo/model/robot.hpp"

#include <unordered_map>

#include "robot/cycles.hpp"
#include "varo/model/name_hash.hpp"
#include "varo/model/name_index.hpp"

namespace Varo::Model {

namespace {

/// As many indices of `names` as there are names.
std::vector<std::uint32_t> orderOf(std::vector<std::string> const& names, Table<ChainConfig> const& chains)
{
    std::vector<std::uint32_t> order;
    order.reserve(names.size());
    for (std::string const& name : names) {
        order.push_back(static_cast<std::uint32_t>(chains.find(name) - &chains[0]));
    }
    return order;
}

Records copyOfListings(Robot const& robot)
{
    Records records;
    std::vector<std::string> chainNames;
    ChainTable chains;
    robot.listChains(chainNames, chains);
    for (std::string const& name : chainNames) {
        chains[name];  // a chain that is listed without a record is an empty one
    }
    records.chains = Table<ChainConfig>(chainNames, std::move(chains));
    records.chainOrder = orderOf(chainNames, records.chains);

    std::vector<std::string> names;
    ActuatorTable actuators;
    SubActuatorTable subActuators;
    robot.listActuators(names, actuators, subActuators);
    records.actuators = Table<ActuatorConfig>(names, std::move(actuators));
    records.subActuators = Table<SubActuatorConfig>({}, std::move(subActuators));
    JointTable joints;
    robot.listJoints(records.name, records.root, joints, names, records.reflectionForced);
    records.joints = Table<JointConfig>(names, std::move(joints));
    SensorTable sensors;
    robot.listSensors(names, sensors);
    records.sensors = Table<SensorConfig>(names, std::move(sensors));
    WheelTable wheels;
    robot.listWheels(names, wheels);
    records.wheels = Table<WheelConfig>(names, std::move(wheels));

    records.dialect = robot.dialect();
    records.version = robot.version();
    records.prettyNames = robot.prettyNames();
    records.postures = robot.postures();
    return records;
}

NameIndex jointsWithoutMotor(Records const& records)
{
    NameIndex names;
    for (std::uint32_t joint = 0; joint < records.joints.size(); ++joint) {
        if (!records.joints[joint].hasMotor) {
            names.add(records.joints.nameOf(joint), joint);
        }
    }
    return names;
}

}  // namespace

Statement Robot::locate(TextOffset /*record*/, Part /*part*/) const
{
    return {};
}

Place Robot::place(TextOffset offset) const
{
    SourceText const* const text = source();
    return text == nullptr ? Place() : text->place(offset);
}

std::shared_ptr<Records const> recordsOf(Robot const& robot)
{
    if (Records const* const own = robot.records()) {
        return {std::shared_ptr<Records const>(), own};  // shares no ownership: the robot outlives it
    }
    return std::make_shared<Records const>(copyOfListings(robot));
}

ActuatorConfig const* findActuatorCycle(Records const& records)
{
    std::vector<std::size_t> parents;
    parents.reserve(records.actuators.size());
    for (ActuatorConfig const& actuator : records.actuators) {
        ActuatorConfig const* const parent = records.actuators.find(actuator.parentJoint);
        parents.push_back(parent == nullptr ? none : static_cast<std::size_t>(parent - &records.actuators[0]));
    }
    std::vector<Cycle> const cycles = findCycles(parents);
    return cycles.empty() ? nullptr : &records.actuators[cycles.front().front()];
}

std::vector<std::string const*> angleNames(Records const& records)
{
    NameIndex const passive = jointsWithoutMotor(records);
    std::unordered_map<std::string_view, std::vector<std::string const*>, NameHash> actuatorsOfJoint;
    for (std::uint32_t const index : records.actuators.nameOrder()) {
        ActuatorConfig const& actuator = records.actuators[index];
        actuatorsOfJoint[actuator.parentJoint].push_back(&actuator.name);
    }
    std::vector<std::string const*> names;
    names.reserve(records.joints.size());
    for (std::uint32_t const chain : records.chainOrder) {
        for (std::string const& joint : records.chains[chain].jointNames) {
            if (!passive.contains(joint)) {
                names.push_back(&joint);
            }
            if (auto const found = actuatorsOfJoint.find(joint); found != actuatorsOfJoint.end()) {
                names.insert(names.end(), found->second.begin(), found->second.end());
            }
        }
    }
    return names;
}

}  // namespace Varo::Model
