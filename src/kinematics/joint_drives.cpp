#include "kinematics/joint_drives.hpp"

#include <limits>

#include "kinematics/unknown_name.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"
#include "varo/model/records.hpp"

namespace Sim {

namespace {

constexpr double unlimited = std::numeric_limits<double>::infinity();

Motion motionOf(Varo::Model::JointConfig const& joint)
{
    switch (joint.jointType) {
    case Varo::Model::revolute:
    case Varo::Model::continuous: return Motion::turns;
    case Varo::Model::prismatic: return Motion::slides;
    default: return Motion::none;
    }
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
    Builder(Varo::Model::Records const& records, JointDrives& drives);

    void add(Joint const& joint, bool isWheel);
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

    Varo::Model::JointConfig const* leaderOf(Varo::Model::ActuatorConfig const& actuator) const;
    Drive driveOf(Joint const& joint);
    Drive coupledDrive(std::string const& name, Motion motion, Coupling& coupling);
    Drive ownDrive(JointVariable variable, Motion motion);

    Varo::Model::Records const& _records;
    JointDrives& _drives;
    std::vector<Coupling> _couplings;
    std::unordered_map<std::string, std::size_t> _couplingOf;  // by the names of the joints that it moves
};

JointDrives::Builder::Builder(Varo::Model::Records const& records, JointDrives& drives)
    : _records(records), _drives(drives)
{
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
    Drive const drive =
        isWheel ? ownDrive({joint.name(), -unlimited, unlimited, false}, Motion::turns) : driveOf(joint);
    _drives._byJoint.emplace(&joint, drive);
    _drives._byName.emplace(joint.name(), drive);
}

Drive JointDrives::Builder::driveOf(Joint const& joint)
{
    std::string const& name = joint.name();
    auto const* const record = _records.joints.find(name);
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
    Builder builder(*records, *this);
    for (Link const* const link : model.links()) {
        if (Joint const* const joint = link->parentJoint()) {
            builder.add(*joint, link->type() == Link::Wheel);
        }
    }
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
