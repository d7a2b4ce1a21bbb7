#include "motion_model/motion_model_index.hpp"

namespace Sim {

MotionModel::Index::Index(Varo::Model::Records const& records, StartAngles const& startAngles) : _records(records)
{
    std::size_t const names = records.joints.size() + records.subActuators.size() + records.actuators.size() +
                              records.wheels.size() + records.sensors.size() + 1;
    _names.reserve(names);
    _facts.reserve(names);
    addRecords(records.joints, &Facts::joint);
    addRecords(records.subActuators, &Facts::subActuator);
    addRecords(records.actuators, &Facts::actuator);
    addRecords(records.wheels, &Facts::wheel);
    addRecords(records.sensors, &Facts::sensor);
    factsOf(records.root.name).isRoot = true;

    _branches.reserve(records.joints.size() + records.chains.size());
    for (std::uint32_t const& listed : records.chainOrder) {
        addListedChain(listed);
    }
    for (std::uint32_t const chain : records.chains.nameOrder()) {
        addChainPlaces(chain);
    }
    std::uint32_t nextSubJoint = 0;
    for (std::uint32_t const actuator : records.actuators.nameOrder()) {
        addGroups(actuator, nextSubJoint);
    }
    for (auto const& [name, angle] : startAngles) {
        Facts& facts = factsOf(*name);
        if (!facts.hasStartAngle) {  // the first one counts
            facts.startAngle = angle;
            facts.hasStartAngle = true;
        }
    }
    for (auto const& name : records.reflectionForced) {
        factsOf(name).reflectionForced = true;
    }
}

MotionModel::Index::Entry MotionModel::Index::of(std::string const& name) const
{
    return entryOf(numberOf(name));
}

MotionModel::Index::Entry MotionModel::Index::of(std::string const& name, std::uint32_t& next) const
{
    return entryOf(_names.find(name, next));
}

MotionModel::Index::Entry MotionModel::Index::entryOf(std::uint32_t number) const
{
    static Facts const nothing;
    return {*this, number == Varo::Model::NameIndex::none ? nothing : _facts[number]};
}

/// The own name of a record, by which building a model mostly asks, tells its number by where it stands.
std::uint32_t MotionModel::Index::numberOf(std::string const& name) const
{
    std::size_t const joints = _records.joints.size();
    std::uint32_t number = ownNumber(_records.joints, &Facts::joint, 0, name);
    if (number == none) {
        number = ownNumber(_records.subActuators, &Facts::subActuator, joints, name);
    }
    if (number == none) {
        number = ownNumber(_records.actuators, &Facts::actuator, joints + _records.subActuators.size(), name);
    }
    return number == none ? _names.find(name) : number;
}

/// The number of a record whose listed name that very text is, where the table's numbers run on from `first`: none for
/// other texts, and where the table has names that others had before.
template <typename Record>
std::uint32_t MotionModel::Index::ownNumber(Varo::Model::Table<Record> const& table, std::uint32_t Facts::*record,
                                            std::size_t first, std::string const& name) const
{
    auto const addressOf = [](std::string const& text) { return reinterpret_cast<std::uintptr_t>(&text); };
    if (table.empty() || addressOf(name) < addressOf(table[0].name)) {
        return none;
    }
    std::size_t const index = (addressOf(name) - addressOf(table[0].name)) / sizeof(Record);
    bool const isOwn = index < table.size() && &table.nameOf(index) == &name;
    std::size_t const number = first + index;
    return isOwn && number < _facts.size() && _facts[number].*record == index ? static_cast<std::uint32_t>(number)
                                                                              : none;
}

/// `next`, at first 0, says which name is looked at first, and is kept by the caller.
MotionModel::Index::Facts& MotionModel::Index::factsOf(std::string const& name, std::uint32_t& next)
{
    std::uint32_t const number = _names.find(name, next);
    return number == Varo::Model::NameIndex::none ? factsOf(name) : _facts[number];
}

MotionModel::Index::Facts& MotionModel::Index::factsOf(std::string const& name)
{
    std::uint32_t const number = _names.add(name, static_cast<std::uint32_t>(_facts.size()));
    if (number == _facts.size()) {
        _facts.emplace_back();
    }
    return _facts[number];
}

template <typename Record>
void MotionModel::Index::addRecords(Varo::Model::Table<Record> const& table, std::uint32_t Facts::*record)
{
    for (std::size_t index = 0; index < table.size(); ++index) {
        factsOf(table.nameOf(index)).*record = static_cast<std::uint32_t>(index);
    }
}

void MotionModel::Index::addListedChain(std::uint32_t const& listed)
{
    Varo::Model::ChainConfig const& chain = _records.chains[listed];
    auto const& joints = chain.jointNames;
    for (std::size_t position = 0; position < joints.size(); ++position) {
        Facts& joint = factsOf(joints[position]);
        if (!_branches.of(joint.branches).empty() && _branches.lastOf(joint.branches).chain == &listed) {
            continue;  // listed twice
        }
        if (joint.firstChain == none) {
            joint.firstChain = listed;
        }
        _branches.append(joint.branches,
                         {&listed, position + 1 < joints.size() ? &joints[position + 1] : nullptr, true});
    }
    if (!joints.empty()) {
        _branches.append(factsOf(chain.parentJoint).branches, {&listed, &joints.front(), false});
    }
}

void MotionModel::Index::addChainPlaces(std::uint32_t chain)
{
    auto const& joints = _records.chains[chain].jointNames;
    for (std::size_t position = 0; position < joints.size(); ++position) {
        Facts& joint = factsOf(joints[position]);
        if (joint.lastChain != chain) {
            joint.lastChain = chain;
            joint.positionInLast = static_cast<std::uint32_t>(position);
        }
    }
}

void MotionModel::Index::addGroups(std::uint32_t actuator, std::uint32_t& nextSubJoint)
{
    Varo::Model::ActuatorConfig const& record = _records.actuators[actuator];
    _actuators.append(factsOf(record.parentJoint).actuators, actuator);
    for (auto const& group : record.jointGroups) {
        for (std::size_t position = 0; position < group.size(); ++position) {
            auto& places = factsOf(group[position], nextSubJoint).groupPlaces;
            if (_groupPlaces.of(places).empty() || _groupPlaces.lastOf(places).group != &group) {
                _groupPlaces.append(places, {&record, &group, position});
            }
        }
    }
}

}  // namespace Sim
