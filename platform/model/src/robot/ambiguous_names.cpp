#include "robot/ambiguous_names.hpp"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>

#include "finding_codes.hpp"

namespace Varo::Model {

namespace {

/// What models append to the name of a joint to name the link that it moves.
constexpr std::string_view suffix = "Link";

bool isLinkName(std::string_view name)
{
    return name.size() > suffix.size() && name.substr(name.size() - suffix.size()) == suffix;
}

/// What a link is called after: a joint, a wheel, a sub-joint or the root.
struct Mover {
    char const* kind;
    TextOffset place;
};

/// Calls `visit` with the name, the kind and the place of each.
template <class Visit>
void forEachMover(Records const& records, Visit const& visit)
{
    visit(records.root.name, Mover{"root", records.root.textOffset});
    auto const visitAll = [&](auto const& table, char const* kind) {
        for (auto const& record : table) {
            visit(record.name, Mover{kind, record.textOffset});
        }
    };
    visitAll(records.joints, "joint");
    visitAll(records.wheels, "wheel");
    visitAll(records.subActuators, "sub-joint");
}

}  // namespace

void checkLinkNames(Records const& records, Diagnostics& diagnostics)
{
    std::unordered_map<std::string_view, Mover> suspects;  // hardly any robot has one
    forEachMover(records, [&](std::string_view name, Mover const& mover) {
        if (isLinkName(name)) {
            suspects.try_emplace(name, mover);  // a follower of a mimic is a joint first
        }
    });
    if (suspects.empty()) {
        return;
    }
    forEachMover(records, [&](std::string_view name, Mover const& mover) {
        auto const found = suspects.find(std::string(name).append(suffix));
        if (found == suspects.end()) {
            return;
        }
        auto const& [taken, other] = *found;
        TextOffset const later = other.place.value() < mover.place.value() ? mover.place : other.place;
        diagnostics.report(later, codes::ambiguousName,
                           "The " + std::string(other.kind) + " " + quoted(taken) + " is named like the link of the " +
                               mover.kind + " " + quoted(name) +
                               ": look-ups by that name cannot tell their frames apart.",
                           "Rename one of the two.");
        suspects.erase(found);
    });
}

}  // namespace Varo::Model
