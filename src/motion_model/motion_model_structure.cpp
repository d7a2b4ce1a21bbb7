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

/// Writes the mirror that a joint or an actuator states: false, an empty name and no reflection if it states none.
template <typename Record>
bool readMirror(Record const& record, std::string& mirror, bool& reflected)
{
    bool const hasMirror = record.mirrorKind != Varo::Model::noMirror;
    mirror = hasMirror ? record.mirrorName : std::string();
    reflected = record.mirrorKind == Varo::Model::reflectedMirror;
    return hasMirror;
}

}  // namespace

std::list<std::string> MotionModel::jointNames(std::string const& chain) const
{
    auto const* record = _records->chains.find(chain);
    return record == nullptr ? std::list<std::string>()
                             : std::list<std::string>(record->jointNames.begin(), record->jointNames.end());
}

std::list<std::string> MotionModel::jointNames() const
{
    return merged(chainNames(), [this](std::string const& chain) { return jointNames(chain); });
}

std::list<std::string> MotionModel::angleActuatorNames(std::string const& chain) const
{
    auto names = jointNames(chain);
    names.remove_if([this](std::string const& name) {
        auto const* const joint = findJoint(name);
        return joint != nullptr && !joint->hasMotor;
    });
    return names;
}

std::list<std::string> MotionModel::angleActuatorNames() const
{
    return concatenated(chainNames(), [this](std::string const& chain) { return angleActuatorNames(chain); });
}

std::list<std::string> MotionModel::actuatorNames(std::string const& chain) const
{
    auto attached = coupledActuatorNames(chain);
    for (auto const& name : attached) {  // reaches the names appended on the way, too
        for (auto const actuator : _index->of(name).actuators()) {
            attached.push_back(_records->actuators.nameOf(actuator));
        }
    }
    auto names = angleActuatorNames(chain);
    names.splice(names.end(), attached);
    return names;
}

std::list<std::string> MotionModel::actuatorNames() const
{
    return merged(chainNames(), [this](std::string const& chain) { return actuatorNames(chain); });
}

std::list<std::string> MotionModel::coupledActuatorNames(std::string const& chain) const
{
    std::list<std::string> names;
    if (auto const* record = _records->chains.find(chain)) {
        for (auto const& joint : record->jointNames) {
            for (auto const actuator : _index->of(joint).actuators()) {
                names.push_back(_records->actuators.nameOf(actuator));
            }
        }
    }
    return names;
}

std::list<std::string> MotionModel::coupledActuatorNames() const
{
    return concatenated(chainNames(), [this](std::string const& chain) { return coupledActuatorNames(chain); });
}

// Callers must expect an insertion into the chain table here, for a chain that is listed without a record. Since the
// constructor gives each of those an empty record, there is never anything left to insert.
std::string MotionModel::chainNameFromJoint(std::string const& joint)
{
    auto const* chain = _index->of(joint).firstChain();
    return chain == nullptr ? std::string() : *chain;
}

std::vector<std::string> MotionModel::followingJoints(std::string const& joint) const
{
    std::vector<std::string> following;
    auto const anchors = chainAnchorJoints(joint);
    for (Branch const& branch : _index->of(joint).branches()) {
        if (branch.next != nullptr) {
            following.push_back(*branch.next);
        }
        if (branch.listsJoint) {
            following.insert(following.end(), anchors.begin(), anchors.end());
        }
    }
    followingJointsFromSubactuators(joint, following);
    return following;
}

std::vector<std::string> MotionModel::chainAnchorJoints(std::string const& joint) const
{
    std::vector<std::string> anchors;
    for (auto const actuator : _index->of(joint).actuators()) {
        for (auto const& group : _records->actuators[actuator].jointGroups) {
            if (!group.empty()) {
                anchors.push_back(group.front());
            }
        }
    }
    return anchors;
}

void MotionModel::followingJointsFromSubactuators(std::string const& name, std::vector<std::string>& out) const
{
    for (auto const& place : _index->of(name).groupPlaces()) {
        if (place.position + 1 < place.group->size()) {
            out.push_back((*place.group)[place.position + 1]);
        }
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
