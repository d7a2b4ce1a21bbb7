#include "motion_model/motion_model_index.hpp"
#include "motion_model/name_merge.hpp"
#include "motion_model/table_lookup.hpp"
#include "sim/motion_model.hpp"

namespace Sim {

namespace {

using Varo::Model::ActuatorConfig;

/// The lists that `namesOf` gives for the chains, chain after chain.
template <typename NamesOf>
std::list<std::string> concatenated(std::list<std::string> const& chains, NamesOf namesOf)
{
    std::list<std::string> all;
    for (auto const& chain : chains) {
        all.splice(all.end(), namesOf(chain));
    }
    return all;
}

template <typename NamesOf>
std::list<std::string> merged(std::list<std::string> const& chains, NamesOf namesOf)
{
    NameMerge merge;
    for (auto const& chain : chains) {
        merge.add(namesOf(chain));
    }
    return merge.take();
}

template <typename Names>
void appendSubJoints(ActuatorConfig const& actuator, Names& names)
{
    for (auto const& group : actuator.jointGroups) {
        names.insert(names.end(), group.begin(), group.end());
    }
}

using NameRefs = std::vector<std::string const*>;

template <class Names>
Names copiesOf(NameRefs const& names)
{
    Names copies;
    for (std::string const* name : names) {
        copies.push_back(*name);
    }
    return copies;
}

std::string exchangedSide(std::string name)
{
    if (name.empty()) {
        return name;
    }
    if (name.front() == 'L') {
        name.front() = 'R';
    } else if (name.front() == 'R') {
        name.front() = 'L';
    }
    return name;
}

/// The first sub-joint of every group of every actuator that is attached to the joint.
template <class Entry>
void appendAnchors(Entry const& joint, Varo::Model::Records const& records, NameRefs& anchors)
{
    for (auto const actuator : joint.actuators()) {
        for (auto const& group : records.actuators[actuator].jointGroups) {
            if (!group.empty()) {
                anchors.push_back(&group.front());
            }
        }
    }
}

/// The sub-joints that follow the sub-joint in the groups that hold it.
template <class Entry>
void appendNextOfGroups(Entry const& subJoint, NameRefs& following)
{
    for (auto const& place : subJoint.groupPlaces()) {
        if (place.position + 1 < place.group->size()) {
            following.push_back(&(*place.group)[place.position + 1]);
        }
    }
}

/// Writes the mirror that a joint or an actuator states: false, an empty name and no reflection if it states none.
template <typename Record>
bool readMirror(Record const& record, std::string& mirror, bool& reflected)
{
    bool const hasMirror = record.mirrorKind != Varo::Model::noMirror;
    if (hasMirror) {
        mirror = record.mirrorName;
    } else {
        mirror.clear();
    }
    reflected = record.mirrorKind == Varo::Model::reflectedMirror;
    return hasMirror;
}

}  // namespace

std::list<std::string> MotionModel::chainNames() const
{
    std::list<std::string> names;
    for (std::uint32_t const chain : _records->chainOrder) {
        names.push_back(_records->chains.nameOf(chain));
    }
    return names;
}

MotionModel::JointNames const& MotionModel::jointsOf(std::string const& chain) const
{
    static JointNames const none;
    auto const* record = _records->chains.find(chain);
    return record == nullptr ? none : record->jointNames;
}

std::list<std::string> MotionModel::jointNames(std::string const& chain) const
{
    auto const& joints = jointsOf(chain);
    return {joints.begin(), joints.end()};
}

std::list<std::string> MotionModel::jointNames() const
{
    return merged(chainNames(), [this](std::string const& chain) { return jointNames(chain); });
}

void MotionModel::appendAngleActuators(JointNames const& chain, NameRefs& actuators) const
{
    std::uint32_t next = 0;
    for (std::string const& name : chain) {
        auto const named = _index->of(name, next);
        if (named.joint() == nullptr || named.joint()->hasMotor) {
            actuators.push_back(named.joint() == nullptr ? &name : named.jointName());
        }
    }
}

std::list<std::string> MotionModel::angleActuatorNames(std::string const& chain) const
{
    NameRefs names;
    appendAngleActuators(jointsOf(chain), names);
    return copiesOf<std::list<std::string>>(names);
}

std::list<std::string> MotionModel::angleActuatorNames() const
{
    return concatenated(chainNames(), [this](std::string const& chain) { return angleActuatorNames(chain); });
}

void MotionModel::appendActuators(JointNames const& chain, NameRefs& actuators) const
{
    appendAngleActuators(chain, actuators);
    std::size_t const attached = actuators.size();
    appendCoupledActuators(chain, actuators);
    for (std::size_t i = attached; i < actuators.size(); ++i) {  // reaches the names appended on the way, too
        for (auto const actuator : _index->of(*actuators[i]).actuators()) {
            actuators.push_back(&_records->actuators.nameOf(actuator));
        }
    }
}

std::list<std::string> MotionModel::actuatorNames(std::string const& chain) const
{
    NameRefs names;
    appendActuators(jointsOf(chain), names);
    return copiesOf<std::list<std::string>>(names);
}

std::list<std::string> MotionModel::actuatorNames() const
{
    return merged(chainNames(), [this](std::string const& chain) { return actuatorNames(chain); });
}

void MotionModel::appendCoupledActuators(JointNames const& chain, NameRefs& actuators) const
{
    if (_records->actuators.empty()) {
        return;
    }
    std::uint32_t next = 0;
    for (std::string const& joint : chain) {
        for (auto const actuator : _index->of(joint, next).actuators()) {
            actuators.push_back(&_records->actuators.nameOf(actuator));
        }
    }
}

std::list<std::string> MotionModel::coupledActuatorNames(std::string const& chain) const
{
    NameRefs names;
    appendCoupledActuators(jointsOf(chain), names);
    return copiesOf<std::list<std::string>>(names);
}

std::list<std::string> MotionModel::coupledActuatorNames() const
{
    return concatenated(chainNames(), [this](std::string const& chain) { return coupledActuatorNames(chain); });
}

// Callers must expect an insertion into the chain table here, for a chain that is listed without a record. Since the
// constructor gives each of those an empty record, there is never anything left to insert.
std::string MotionModel::chainNameFromJoint(std::string const& joint)
{
    return firstChainOf(joint);
}

std::string const& MotionModel::firstChainOf(std::string const& joint) const
{
    static std::string const none;
    auto const* const chain = _index->of(joint).firstChain();
    return chain == nullptr ? none : *chain;
}

void MotionModel::appendFollowingJoints(std::string const& joint, NameRefs& following) const
{
    auto const named = _index->of(joint);
    for (Branch const& branch : named.branches()) {
        if (branch.next != nullptr) {
            following.push_back(branch.next);
        }
        if (branch.listsJoint) {
            appendAnchors(named, *_records, following);
        }
    }
    appendNextOfGroups(named, following);
}

std::vector<std::string> MotionModel::followingJoints(std::string const& joint) const
{
    NameRefs names;
    appendFollowingJoints(joint, names);
    return copiesOf<std::vector<std::string>>(names);
}

std::vector<std::string> MotionModel::chainAnchorJoints(std::string const& joint) const
{
    NameRefs names;
    appendAnchors(_index->of(joint), *_records, names);
    return copiesOf<std::vector<std::string>>(names);
}

void MotionModel::followingJointsFromSubactuators(std::string const& name, std::vector<std::string>& out) const
{
    NameRefs names;
    appendNextOfGroups(_index->of(name), names);
    for (std::string const* next : names) {
        out.push_back(*next);
    }
}

bool MotionModel::jointsFromActuator(std::string const& actuator, std::list<std::string>& joints) const
{
    auto const* record = _index->of(actuator).actuator();
    if (record == nullptr) {
        return false;
    }
    appendSubJoints(*record, joints);
    return true;
}

bool MotionModel::coupledJointGroupFromParentJoint(std::string const& joint, std::string& actuator,
                                                   std::vector<std::string>& joints) const
{
    if (_records->actuators.empty()) {
        return false;
    }
    auto const attached = _index->of(joint).actuators();
    if (attached.empty()) {
        return false;
    }
    actuator = _records->actuators.nameOf(attached.front());
    appendSubJoints(_records->actuators[attached.front()], joints);
    return true;
}

bool MotionModel::mirrorNameFromJointName(std::string const& name, std::string& mirror, bool& reflected) const
{
    if (auto const* joint = _index->of(name).joint()) {
        return readMirror(*joint, mirror, reflected);
    }
    if (mirrorNameFromSubjointName(name, mirror, reflected)) {
        return false;
    }
    return mirrorNameFromActuatorName(name, mirror, reflected);
}

bool MotionModel::mirrorNameFromSubjointName(std::string const& name, std::string& mirror, bool& reflected) const
{
    if (_index->of(name).groupPlaces().empty()) {
        return false;
    }
    mirror = exchangedSide(name);
    reflected = false;
    return true;
}

bool MotionModel::mirrorNameFromActuatorName(std::string const& name, std::string& mirror, bool& reflected) const
{
    auto const* actuator = _index->of(name).actuator();
    if (actuator == nullptr) {
        return false;
    }
    readMirror(*actuator, mirror, reflected);
    return true;
}

bool MotionModel::reflectionForcedFromJointName(std::string const& name, bool& forced) const
{
    auto const named = _index->of(name);
    forced = named.reflectionForced();
    return forced || named.joint() != nullptr;
}

}  // namespace Sim
