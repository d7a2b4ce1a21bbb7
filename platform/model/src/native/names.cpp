#include "native/names.hpp"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <unordered_map>

#include "robot/cycles.hpp"
#include "schema/values.hpp"
#include "varo/model/name_index.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

namespace {

std::string filledIn(std::string_view message, std::string_view name)
{
    std::size_t const place = message.find('%');
    return std::string(message.substr(0, place)) + quoted(name) + std::string(message.substr(place + 1));
}

/// Whether others are attached to what gets its name by this rule.
bool isPartOfCycle(NameRule const& rule)
{
    return std::any_of(std::begin(names::cycles), std::end(names::cycles),
                       [&rule](names::Cycle const& cycle) { return cycle.part == &rule; });
}

}  // namespace

void Names::reserve(std::size_t records)
{
    std::size_t const entries = records + 1;  // the root's link has a name, too
    _entries.reserve(entries);
    _slots.reserve(entries, _entries);
    _uses.reserve(2 * records);
}

Names::EntryIndex Names::indexOf(std::string_view name, std::size_t scope)
{
    constexpr std::uint32_t far =
        0x9E3779B1U;  // 2^32 by the golden ratio: one name has a slot of its own in each scope
    auto const number = static_cast<std::uint32_t>(scope);
    if (scope == wholeText && _next < _entries.size() && _entries[_next].scope == number &&
        _entries[_next].name == name) {
        return _next++;
    }
    std::uint32_t const hash = NameIndex::hashOf(name) ^ (number * far);
    EntryIndex& index =
        _slots.slotFor(hash, _entries, [=](Entry const& entry) { return entry.scope == number && entry.name == name; });
    if (index == HashSlots::none) {
        index = static_cast<EntryIndex>(_entries.size());
        _entries.push_back({name, number, hash, 0});
    }
    _next = scope == wholeText ? index + 1 : _next;
    return index;
}

void Names::use(NameRule const& rule, std::string_view name, XmlNode node, XmlAttribute attribute)
{
    std::int32_t number = 0;
    if (rule.gives.isNumber && parseInteger(name, number)) {
        name = keep(std::to_string(number));
    }
    EntryIndex const index = indexOf(name, rule.gives.isLocal ? node.parent().id() : wholeText);
    unsigned& kinds = _entries[index].kinds;
    if ((kinds & rule.gives.kinds) != 0) {
        _diagnostics.report(at(node, attribute), *rule.gives.twice.code, filledIn(rule.gives.twice.message, name),
                            std::string(rule.gives.twice.hint));
    }
    kinds |= rule.gives.kinds;
    if (rule.wants.kinds != 0 || isPartOfCycle(rule)) {
        _uses.push_back({&rule, rule.gives.isLocal ? indexOf(name) : index, node, attribute});
        _isAngleWanted = _isAngleWanted || rule.wants.kinds == names::hasAngle;
    }
}

void Names::addAll(Records const& robot)
{
    auto const add = [this](auto const& table, unsigned kind) {
        for (auto const& config : table) {
            kindsOf(config.name) |= kind;
        }
    };
    kindsOf(robot.root.name) |= names::root;
    add(robot.joints, names::joint);
    add(robot.chains, names::chain);
    add(robot.actuators, names::actuator);
    add(robot.subActuators, names::subJoint);
    add(robot.wheels, names::wheel);
    add(robot.sensors, names::sensor);
    for (ChainConfig const& chain : robot.chains) {
        for (std::string const& joint : chain.jointNames) {
            kindsOf(joint) |= names::inChain | names::hasAngle;
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
    kindsOf(keep(robot.root.name + "Link")) |= names::rootLink;
    checkUses(false);
    if (_isAngleWanted) {
        findAngles(robot);
    }
    checkUses(true);
}

/// Tells which joints and actuators have an angle.
void Names::findAngles(Records const& robot)
{
    for (JointConfig const& config : robot.joints) {
        if (!config.hasMotor) {
            kindsOf(config.name) &= ~static_cast<unsigned>(names::hasAngle);
        }
    }
    for (ActuatorConfig const& config : robot.actuators) {
        bool const isInChain = (kindsOf(config.parentJoint) & names::inChain) != 0;
        kindsOf(config.name) |= isInChain ? names::hasAngle : 0U;
    }
}

/// Those that ask for what stands in chains come after the others, which say what was meant to stand there.
void Names::checkUses(bool afterChains)
{
    for (Use const& use : _uses) {
        unsigned const wanted = use.rule->wants.kinds;
        bool const isOfChains = (wanted & (names::inChain | names::hasAngle)) != 0;
        if (wanted != 0 && isOfChains == afterChains && (_entries[use.entry].kinds & wanted) == 0) {
            reportUnknown(use);
        }
    }
}

void Names::reportUnknown(Use const& use)
{
    auto const& [rule, index, node, attribute] = use;
    Entry const& entry = _entries[index];
    if (_diagnostics.countIfFull(*rule->wants.unknown.code)) {
        return;
    }
    std::string hint(rule->wants.unknown.hint);
    bool const isSomethingElse = rule->wants.kinds == names::hasAngle && entry.kinds != 0;
    if (hint.empty() && !isSomethingElse) {
        auto const nameOfKind = [wanted = rule->wants.kinds](Entry const& known) {
            return (known.kinds & wanted) != 0 ? known.name : std::string_view();
        };
        if (Entry* const meant = _suggestions.closest(_entries, nameOfKind, entry.name)) {
            meant->kinds |= rule->gives.kinds;  // so that what is misspelt here is not missed elsewhere
            hint = "Did you mean " + quoted(meant->name) + "?";
        }
    }
    _diagnostics.report(rule->wants.blamesElement ? at(node) : at(node, attribute), *rule->wants.unknown.code,
                        filledIn(rule->wants.unknown.message, entry.name), std::move(hint));
}

void Names::checkCycle(names::Cycle const& cycle)
{
    // Only what is attached to another such thing can be part of a cycle: nothing is, in most robots.
    std::vector<Use const*> attached;
    std::unordered_map<std::size_t, std::size_t> indexOfNode;
    std::unordered_map<EntryIndex, std::size_t> owners;  // of the names that something is attached to
    for (Use const& use : _uses) {
        if (use.rule == cycle.parent && (_entries[use.entry].kinds & cycle.part->gives.kinds) != 0) {
            indexOfNode.emplace(use.node.id(), attached.size());
            owners.emplace(use.entry, none);
            attached.push_back(&use);
        }
    }
    if (attached.empty()) {
        return;
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
