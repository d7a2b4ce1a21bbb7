#include "native/names.hpp"

#include <cstdint>

#include "robot/cycles.hpp"
#include "schema/values.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

namespace {

std::string filledIn(std::string_view message, std::string_view name)
{
    std::size_t const place = message.find('%');
    return std::string(message.substr(0, place)) + quoted(name) + std::string(message.substr(place + 1));
}

}  // namespace

Names::Entry& Names::entryOf(std::string_view name, std::size_t scope)
{
    auto const [found, isNew] = _kinds.try_emplace(Key(name, scope));
    if (isNew) {
        _inTextOrder.push_back(&*found);
    }
    return *found;
}

void Names::use(NameRule const& rule, std::string_view name, XmlNode node, XmlAttribute attribute)
{
    std::int32_t number = 0;
    if (rule.gives.isNumber && parseInteger(name, number)) {
        name = keep(std::to_string(number));
    }
    Entry& entry = entryOf(name, rule.gives.isLocal ? node.parent().id() : wholeText);
    if ((entry.second & rule.gives.kinds) != 0) {
        _diagnostics.report(at(node, attribute), *rule.gives.twice.code, filledIn(rule.gives.twice.message, name),
                            std::string(rule.gives.twice.hint));
    }
    entry.second |= rule.gives.kinds;
    if (!rule.gives.isLocal || rule.wants.kinds != 0) {
        _uses.push_back({&rule, rule.gives.isLocal ? &entryOf(name) : &entry, node, attribute});
    }
}

void Names::addAll(Records const& robot)
{
    auto const add = [this](auto const& table, unsigned kind) {
        for (auto const& config : table) {
            entryOf(config.name).second |= kind;
        }
    };
    entryOf(robot.root.name).second |= names::root;
    add(robot.joints, names::joint);
    add(robot.chains, names::chain);
    add(robot.actuators, names::actuator);
    add(robot.subActuators, names::subJoint);
    add(robot.wheels, names::wheel);
    add(robot.sensors, names::sensor);
    for (ChainConfig const& chain : robot.chains) {
        for (std::string const& joint : chain.jointNames) {
            entryOf(joint).second |= names::inChain | names::hasAngle;
        }
    }
}

void Names::checkReferences(Records const& robot)
{
    for (names::Cycle const& cycle : names::cycles) {
        if (!_isAnyLost || cycle.complaint.code->severity == Severity::error) {
            checkCycle(cycle);
        }
    }
    if (_isAnyLost) {
        return;
    }
    entryOf(keep(robot.root.name + "Link")).second |= names::rootLink;
    checkUses(false);
    for (JointConfig const& config : robot.joints) {
        if (!config.hasMotor) {
            entryOf(config.name).second &= ~static_cast<unsigned>(names::hasAngle);
        }
    }
    for (ActuatorConfig const& config : robot.actuators) {
        entryOf(config.name).second |= entryOf(config.parentJoint).second & names::inChain ? names::hasAngle : 0U;
    }
    checkUses(true);
}

/// Those that ask for what stands in chains come after the others, which say what was meant to stand there.
void Names::checkUses(bool afterChains)
{
    for (Use const& use : _uses) {
        unsigned const wanted = use.rule->wants.kinds;
        bool const isOfChains = (wanted & (names::inChain | names::hasAngle)) != 0;
        if (wanted != 0 && isOfChains == afterChains && (use.entry->second & wanted) == 0) {
            reportUnknown(use);
        }
    }
}

void Names::reportUnknown(Use const& use)
{
    auto const& [rule, entry, node, attribute] = use;
    if (_diagnostics.countIfFull(*rule->wants.unknown.code)) {
        return;
    }
    std::string hint(rule->wants.unknown.hint);
    bool const isSomethingElse = rule->wants.kinds == names::hasAngle && entry->second != 0;
    if (hint.empty() && !isSomethingElse) {
        auto const nameOfKind = [wanted = rule->wants.kinds](Entry const* known) {
            return (known->second & wanted) != 0 ? known->first.first : std::string_view();
        };
        if (Entry* const* const meant = _suggestions.closest(_inTextOrder, nameOfKind, entry->first.first)) {
            (*meant)->second |= rule->gives.kinds;  // so that what is misspelt here is not missed elsewhere
            hint = "Did you mean " + quoted((*meant)->first.first) + "?";
        }
    }
    _diagnostics.report(rule->wants.blamesElement ? at(node) : at(node, attribute), *rule->wants.unknown.code,
                        filledIn(rule->wants.unknown.message, entry->first.first), std::move(hint));
}

void Names::checkCycle(names::Cycle const& cycle)
{
    std::vector<Use const*> attached;
    std::unordered_map<std::size_t, std::size_t> indexOfNode;
    std::unordered_map<Entry const*, std::size_t> owners;  // of the names that something is attached to
    for (Use const& use : _uses) {
        if (use.rule == cycle.parent) {
            indexOfNode.emplace(use.node.id(), attached.size());
            owners.emplace(use.entry, none);
            attached.push_back(&use);
        }
    }
    for (Use const& use : _uses) {
        auto const owner = use.rule == cycle.part ? owners.find(use.entry) : owners.end();
        if (owner != owners.end() && owner->second == none) {
            auto const own = indexOfNode.find(use.node.id());
            auto const found = own != indexOfNode.end() ? own : indexOfNode.find(use.node.parent().id());
            owner->second = found == indexOfNode.end() ? none : found->second;
        }
    }
    std::vector<std::size_t> parents;
    for (Use const* use : attached) {
        parents.push_back(owners[use->entry]);
    }
    for (Model::Cycle const& found : findCycles(parents)) {
        Use const& first = *attached[found.front()];
        XmlNode const node = first.node;
        _diagnostics.report(at(node, first.attribute), *cycle.complaint.code,
                            filledIn(cycle.complaint.message, node.attribute("name").value()),
                            std::string(cycle.complaint.hint));
    }
}

}  // namespace Varo::Model::Native
