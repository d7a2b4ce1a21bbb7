#include "native/name_index.hpp"

#include "diagnostics.hpp"
#include "spelling.hpp"

namespace Varo::Model::Native {

NameIndex::NameIndex(RobotData const& robot) : _rootLink(robot.root.name + "Link")
{
    _kinds.reserve(robot.joints.names.size() + robot.subActuators.size() + robot.actuators.names.size());
    mark(robot.root.name, root);
    mark(_rootLink, rootLink);
    for (auto const& entry : robot.joints.byName) {
        mark(entry.first, joint);
    }
    for (auto const& entry : robot.subActuators) {
        mark(entry.first, subJoint);
    }
    for (auto const& entry : robot.wheels.byName) {
        mark(entry.first, wheel);
    }
    for (auto const& entry : robot.actuators.byName) {
        mark(entry.first, actuator);
    }
}

unsigned NameIndex::kinds(std::string_view name) const
{
    auto const found = _kinds.find(name);
    return found == _kinds.end() ? 0 : found->second;
}

unsigned NameIndex::mark(std::string_view name, unsigned kinds)
{
    unsigned& all = _kinds[name];
    unsigned const before = all;
    all |= kinds;
    return before;
}

std::string NameIndex::suggestion(std::string_view written, unsigned kinds)
{
    if (_comparisonsLeft < _kinds.size()) {
        return {};
    }
    _comparisonsLeft -= _kinds.size();
    ClosestWord closest(written);
    for (auto const& [name, kindsOfName] : _kinds) {
        if ((kindsOfName & kinds) != 0) {
            closest.offer(name);
        }
    }
    return closest.word().empty() ? std::string() : "Did you mean " + quoted(closest.word()) + "?";
}

}  // namespace Varo::Model::Native
