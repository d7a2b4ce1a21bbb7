#include "core/build_report.hpp"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "sim/load_error.hpp"

namespace Sim {

using Varo::Model::ChainConfig;
using Varo::Model::Part;
using Varo::Model::quoted;
using Varo::Model::TextOffset;
using Varo::Model::WheelConfig;

namespace {

/// The first chain that lists the joint; null when none does.
ChainConfig const* chainOf(Varo::Model::Records const& records, std::string const& joint)
{
    auto const lists = [&](ChainConfig const& chain) {
        return std::find(chain.jointNames.begin(), chain.jointNames.end(), joint) != chain.jointNames.end();
    };
    auto const found = std::find_if(records.chains.begin(), records.chains.end(), lists);
    return found == records.chains.end() ? nullptr : &*found;
}

}  // namespace

BuildError::~BuildError() = default;

StartAngleError::~StartAngleError() = default;

void BuildReport::leaveOut(TextOffset offset, Varo::Model::FindingCode const& code, std::string message)
{
    diagnostics().report(offset, code, std::move(message));
}

void BuildReport::fail(Subject subject, std::string const& name, std::string const& what)
{
    explain(subject, name, what);
    throw BuildError(what, findings());
}

Varo::Model::Findings BuildReport::findings() const
{
    return (_diagnostics ? *_diagnostics : diagnosticsOf(_robot)).findings();
}

Varo::Model::Diagnostics& BuildReport::diagnostics()
{
    if (!_diagnostics) {
        _diagnostics = diagnosticsOf(_robot);
    }
    return *_diagnostics;
}

void BuildReport::blame(TextOffset offset, std::string message, std::string hint)
{
    diagnostics().escalate(offset, codes::modelNotBuilt, std::move(message), std::move(hint));
}

void BuildReport::explain(Subject subject, std::string const& name, std::string const& what)
{
    auto const blameRecord = [&](auto const* record) {
        blame(record == nullptr ? TextOffset() : record->textOffset, "No model can be built: " + what);
    };
    switch (subject) {
    case Subject::root: return blameRecord(&_records.root);
    case Subject::joint: return explainJoint(name);
    case Subject::actuator: return blameRecord(_records.actuators.find(name));
    case Subject::sensor: return explainSensor(*_records.sensors.find(name));
    case Subject::wheel: return explainWheel(*_records.wheels.find(name), what);
    }
}

/// A joint that a chain lists and no model can have.
void BuildReport::explainJoint(std::string const& name)
{
    ChainConfig const* const chain = chainOf(_records, name);
    if (chain == nullptr) {
        blame({}, "The joint " + quoted(name) + " is in no chain, so no model can be built.");
    } else if (_records.joints.contains(name)) {
        explainChain(*chain);
    } else {
        explainUnlistedJoint(*chain, name);
    }
}

void BuildReport::explainUnlistedJoint(ChainConfig const& chain, std::string const& name)
{
    auto const place = std::find(chain.jointNames.begin(), chain.jointNames.end(), name) - chain.jointNames.begin();
    auto const index = static_cast<std::size_t>(place);
    TextOffset const reference = index < chain.jointOffsets.size() ? chain.jointOffsets[index] : chain.textOffset;
    blame(_robot.locate(reference, Part::name).offset,
          "There is no joint " + quoted(name) + ", so no model can be built.");
}

/// A chain that is not attached to the tree: goes from chain to chain towards the root until one leads no further.
void BuildReport::explainChain(ChainConfig const& start)
{
    std::unordered_set<ChainConfig const*> seen;
    ChainConfig const* chain = &start;
    while (seen.insert(chain).second) {
        ChainConfig const* const before = chainOf(_records, chain->parentJoint);
        if (before == nullptr) {
            return blame(_robot.statement(*chain, Part::parent).offset,
                         "There is no joint " + quoted(chain->parentJoint) + " in any chain for the chain " +
                             quoted(chain->name) + " to be attached to, so no model can be built.");
        }
        chain = before;
    }
    // Of the chains of a cycle, the first in the text: the one at which the reader tells of it.
    ChainConfig const* first = chain;
    for (auto const* next = chainOf(_records, chain->parentJoint); next != chain;
         next = chainOf(_records, next->parentJoint)) {
        first = next->textOffset.value() < first->textOffset.value() ? next : first;
    }
    blame(_robot.statement(*first, Part::parent).offset,
          "The parents of the chain " + quoted(first->name) + " lead back to it, so no model can be built.");
}

/// All that a sensor can lack is the size of its pictures.
void BuildReport::explainSensor(Varo::Model::SensorConfig const& sensor)
{
    auto const resolutions = _robot.statement(sensor, Part::resolutions);
    std::string const missing =
        resolutions.isStated ? " states no resolution that can be read" : " states no resolution";
    blame(resolutions.isStated ? resolutions.offset : sensor.textOffset,
          "The sensor " + quoted(sensor.name) + missing + ", so no model can be built.",
          "Add <attribute name=\"resolutions\" value=\"640 480\"/> with its own width and height.");
}

void BuildReport::explainWheel(WheelConfig const& wheel, std::string const& what)
{
    std::string const subject = "The wheel " + quoted(wheel.name);
    std::string const parent = quoted(wheel.parentJoint);
    bool const isSubJoint = _records.subActuators.contains(wheel.parentJoint);
    if (wheel.attributes.find("material") == wheel.attributes.end() && what.find("material") != what.npos) {
        blame(wheel.textOffset, subject + " states no material, so no model can be built.");
    } else if (wheel.parentJoint == _records.root.name) {
        blame(_robot.statement(wheel, Part::parent).offset,
              subject + " is attached to the root, where a model cannot have one.",
              "Attach it to a joint: one of the type fixed, with min and max 0, keeps it where it is.");
    } else if (!_records.joints.contains(wheel.parentJoint) && !isSubJoint) {
        blame(_robot.statement(wheel, Part::parent).offset,
              "There is no joint " + parent + " for the wheel to be attached to, so no model can be built.");
    } else {
        blame(_robot.statement(wheel, Part::parent).offset,
              "The joint " + parent + ", to which the wheel is attached, is in no chain, so no model can be built.",
              "Add a jointRef to a chain.");
    }
}

}  // namespace Sim
