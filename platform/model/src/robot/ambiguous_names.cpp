#include "robot/ambiguous_names.hpp"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "finding_codes.hpp"
#include "varo/model/name_hash.hpp"
#include "varo/model/name_index.hpp"

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

/// Warns of the links that share their name in the text with one before. Answers the first of each name.
std::vector<JointConfig const*> linksNamedInText(Records const& records, Diagnostics& diagnostics)
{
    std::vector<JointConfig const*> links;
    NameIndex names;
    links.reserve(records.joints.size() + 1);
    names.reserve(records.joints.size() + 1);
    auto const add = [&](JointConfig const& body) {
        auto const number = static_cast<std::uint32_t>(links.size());
        if (body.linkName.empty()) {
            return;
        }
        if (names.add(body.linkName, number) == number) {
            links.push_back(&body);
        } else {
            diagnostics.report(body.bodyOffset, codes::ambiguousLinkName,
                               "There is another link " + quoted(body.linkName) +
                                   " before this one: look-ups by that name find only one of them.",
                               "Rename one of the two.");
        }
    };
    add(records.root);
    std::for_each(records.joints.begin(), records.joints.end(), add);
    return links;
}

/// Warns of the links that the text calls what models call another one.
void checkNamesInText(Records const& records, Diagnostics& diagnostics)
{
    std::unordered_map<std::string_view, JointConfig const*, NameHash>
        suspects;  // by the name of the joint that models would call the link after
    for (JointConfig const* const body : linksNamedInText(records, diagnostics)) {
        std::string_view const name = body->linkName;
        if (isLinkName(name) && name != body->name) {  // what is named so itself is told of above
            suspects.emplace(name.substr(0, name.size() - suffix.size()), body);
        }
    }
    if (suspects.empty()) {
        return;
    }
    forEachMover(records, [&](std::string_view name, Mover const& mover) {
        auto const found = suspects.find(name);
        if (found == suspects.end()) {
            return;
        }
        JointConfig const& body = *found->second;
        if (body.name != name) {
            diagnostics.report(body.bodyOffset, codes::ambiguousLinkName,
                               "This link, " + quoted(body.linkName) +
                                   ", is named like what models call the link of the " + mover.kind + " " +
                                   quoted(name) + ": look-ups by that name find the latter.",
                               "Rename one of the two.");
        }
        suspects.erase(found);  // a follower of a mimic is a joint, too
    });
}

/// Warns of joints, wheels, sub-joints and roots that are named like links of models.
void checkNamesInModels(Records const& records, Diagnostics& diagnostics)
{
    std::unordered_map<std::string_view, Mover, NameHash> suspects;  // hardly any robot has one
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

}  // namespace

void checkLinkNames(Records const& records, Diagnostics& diagnostics)
{
    checkNamesInModels(records, diagnostics);
    checkNamesInText(records, diagnostics);
}

}  // namespace Varo::Model
