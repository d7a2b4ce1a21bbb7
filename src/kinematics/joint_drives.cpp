#include "kinematics/joint_drives.hpp"

#include <limits>
#include <string_view>
#include <unordered_set>

#include "kinematics/unknown_name.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"
#include "varo/model/name_hash.hpp"
#include "varo/model/records.hpp"

namespace Sim {

using Varo::Model::NameHash;

namespace {

constexpr double unlimited = std::numeric_limits<double>::infinity();

Motion motionOf(Varo::Model::JointConfig const& joint)
{
    if (!Varo::Model::isMoving(joint.jointType)) {
        return Motion::none;
    }
    return joint.jointType == Varo::Model::prismatic ? Motion::slides : Motion::turns;
}

template <class Record>
JointVariable variableOf(std::string const& name, Record const& record, Motion motion)
{
    bool const isReversed = record.minAngle > record.maxAngle;
    return {name, isReversed ? -unlimited : static_cast<double>(record.minAngle),
            isReversed ? unlimited : static_cast<double>(record.maxAngle), motion == Motion::slides};
}

}  // namespace

class JointDrives::Builder {
public:
    Builder(Varo::Model::Records const& records, std::vector<Joint const*> const& joints, JointDrives& drives);

    void add(Joint const& joint, bool isWheel);
    /// Adds the joints that mimic others, once those are there.
    void addFollowers();
    /// An actuator's name stands for its variable, unless a joint has that name.
    void addActuatorNames();

private:
    /// What moves several joints at once.
    struct Coupling {
        Varo::Model::ActuatorConfig const* actuator;
        /// A joint that moves as the actuator does; null when there is none.
        Varo::Model::JointConfig const* leader;
        std::uint32_t variable = Drive::noVariable;
    };

    /// A joint that mimics another and is moved by no coupling.
    struct Follower {
        Joint const* joint;
        Varo::Model::MimicConfig const* mimic;
        Motion motion;
    };

    Varo::Model::JointConfig const* leaderOf(Varo::Model::ActuatorConfig const& actuator) const;
    bool follows(Varo::Model::JointConfig const* joint) const;
    void add(Joint const& joint, Drive const& drive);
    void add(Follower const& follower);
    Drive driveOf(std::string const& name, Varo::Model::JointConfig const* record);
    Drive coupledDrive(std::string const& name, Motion motion, Coupling& coupling);
    Drive ownDrive(JointVariable variable, Motion motion);

    Varo::Model::Records const& _records;
    JointDrives& _drives;
    std::vector<Coupling> _couplings;
    std::unordered_map<std::string, std::size_t, NameHash> _couplingOf;  // by the names of the joints that it moves
    std::unordered_set<std::string_view, NameHash> _leaders;  // the joints of the model that others mimic
    std::unordered_map<std::string_view, Follower, NameHash> _followers;  // by name
};

JointDrives::Builder::Builder(Varo::Model::Records const& records, std::vector<Joint const*> const& joints,
                              JointDrives& drives)
    : _records(records), _drives(drives)
{
    std::unordered_set<std::string_view, NameHash> mimicked;
    for (Varo::Model::JointConfig const& joint : records.joints) {
        if (joint.mimic != nullptr) {
            mimicked.insert(joint.mimic->joint);
        }
    }
    for (Joint const* const joint : joints) {
        bool const isDriven = joint->childLink() != nullptr && records.joints.contains(joint->name());
        if (isDriven && mimicked.count(joint->name()) != 0) {
            _leaders.insert(joint->name());
        }
    }
    for (Varo::Model::ActuatorConfig const& actuator : records.actuators) {
        for (auto const& group : actuator.jointGroups) {
            for (std::string const& member : group) {
                _couplingOf.emplace(member, _couplings.size());
            }
        }
        _couplings.push_back({&actuator, leaderOf(actuator)});
    }
}

Varo::Model::JointConfig const* JointDrives::Builder::leaderOf(Varo::Model::ActuatorConfig const& actuator) const
{
    for (auto const& group : actuator.jointGroups) {
        for (std::string const& member : group) {
            auto const* const coupling = _records.subActuators.find(member);
            auto const* const joint = _records.joints.find(member);
            if (joint != nullptr && coupling != nullptr && coupling->ratio == 1.0F && coupling->offset == 0.0F) {
                return joint;
            }
        }
    }
    return nullptr;
}

void JointDrives::Builder::add(Joint const& joint, bool isWheel)
{
    auto const* const record = isWheel ? nullptr : _records.joints.find(joint.name());
    if (follows(record)) {
        _followers.try_emplace(joint.name(), Follower{&joint, record->mimic.get(), motionOf(*record)});
    } else {
        add(joint, isWheel ? ownDrive({joint.name(), -unlimited, unlimited, false}, Motion::turns)
                           : driveOf(joint.name(), record));
    }
}

void JointDrives::Builder::add(Joint const& joint, Drive const& drive)
{
    _drives._byJoint.emplace(&joint, drive);
    _drives._byName.emplace(joint.name(), drive);
}

bool JointDrives::Builder::follows(Varo::Model::JointConfig const* joint) const
{
    return joint != nullptr && joint->mimic != nullptr && motionOf(*joint) != Motion::none &&
           _leaders.count(joint->mimic->joint) != 0 && _couplingOf.count(joint->name) == 0;
}

void JointDrives::Builder::addFollowers()
{
    std::vector<Follower const*> path;  // from a follower to one whose leader is there
    for (auto const& each : _followers) {
        for (Follower const* at = &each.second; at != nullptr;) {
            path.push_back(at);
            if (path.size() > _followers.size()) {  // which readers refuse
                throw std::invalid_argument(quoted(at->joint->name()) + " mimics itself, be it by way of others.");
            }
            auto const leader = _followers.find(at->mimic->joint);
            bool const isThere = leader == _followers.end() || _drives._byName.count(leader->second.joint->name()) != 0;
            at = isThere ? nullptr : &leader->second;
        }
        for (; !path.empty(); path.pop_back()) {
            add(*path.back());
        }
    }
}

void JointDrives::Builder::add(Follower const& follower)
{
    Drive drive = _drives._byName.at(follower.mimic->joint);
    double const multiplier = static_cast<double>(follower.mimic->multiplier);
    drive.motion = follower.motion;
    drive.follows = true;
    drive.ratio *= multiplier;
    drive.offset = multiplier * drive.offset + static_cast<double>(follower.mimic->offset);
    add(*follower.joint, drive);
}

Drive JointDrives::Builder::driveOf(std::string const& name, Varo::Model::JointConfig const* record)
{
    auto const coupling = _couplingOf.find(name);
    Motion const motion = record == nullptr ? Motion::turns : motionOf(*record);
    if (coupling != _couplingOf.end() && motion != Motion::none) {
        return coupledDrive(name, motion, _couplings[coupling->second]);
    }
    return record == nullptr || motion == Motion::none ? Drive() : ownDrive(variableOf(name, *record, motion), motion);
}

Drive JointDrives::Builder::coupledDrive(std::string const& name, Motion motion, Coupling& coupling)
{
    Drive drive;
    drive.motion = motion;
    if (auto const* const member = _records.subActuators.find(name)) {
        drive.ratio = static_cast<double>(member->ratio);
        drive.offset = static_cast<double>(member->offset);
    }
    drive.follows = coupling.leader == nullptr || coupling.leader->name != name;
    bool const standsStill = coupling.leader != nullptr && motionOf(*coupling.leader) == Motion::none;
    if (coupling.variable == Drive::noVariable && !standsStill) {
        coupling.variable = static_cast<std::uint32_t>(_drives._variables.size());
        _drives._variables.push_back(
            coupling.leader != nullptr ? variableOf(coupling.leader->name, *coupling.leader, motionOf(*coupling.leader))
                                       : variableOf(coupling.actuator->name, *coupling.actuator, motion));
    }
    drive.variable = coupling.variable;
    return drive;
}

Drive JointDrives::Builder::ownDrive(JointVariable variable, Motion motion)
{
    Drive drive;
    drive.motion = motion;
    drive.variable = static_cast<std::uint32_t>(_drives._variables.size());
    _drives._variables.push_back(std::move(variable));
    return drive;
}

void JointDrives::Builder::addActuatorNames()
{
    for (Coupling const& coupling : _couplings) {
        Drive drive;
        drive.motion = Motion::turns;
        drive.variable = coupling.variable;
        _drives._byName.emplace(coupling.actuator->name, drive);
    }
}

JointDrives::JointDrives(Model const& model)
{
    auto const records = Varo::Model::recordsOf(model.robot());
    Builder builder(*records, model.joints(), *this);
    for (Link const* const link : model.links()) {
        if (Joint const* const joint = link->parentJoint()) {
            builder.add(*joint, link->type() == Link::Wheel);
        }
    }
    builder.addFollowers();
    builder.addActuatorNames();
}

Drive const& JointDrives::named(std::string const& name) const
{
    auto const found = _byName.find(name);
    if (found == _byName.end()) {
        throw unknownName("joint or actuator", name, _byName,
                          [](auto const& entry) -> std::string const& { return entry.first; });
    }
    return found->second;
}

Drive const& JointDrives::moving(std::string const& name) const
{
    Drive const& drive = named(name);
    if (drive.variable == Drive::noVariable) {
        throw std::invalid_argument(quoted(name) + " does not move, so that it takes no value.");
    }
    return drive;
}

}  // namespace Sim
