#include "robot/link_tree.hpp"

#include <algorithm>
#include <string>

#include "robot/couplings.hpp"
#include "robot/link_tree_codes.hpp"

namespace Varo::Model {

namespace {

/// False when the name is of no use as one.
bool addName(NameIndex& table, char const* kind, std::string_view name, std::size_t index, TextOffset place,
             Diagnostics& diagnostics)
{
    bool const isNew = !name.empty() && table.add(name, static_cast<std::uint32_t>(index)) == index;
    if (!isNew && !name.empty()) {
        diagnostics.report(place, codes::duplicateName,
                           "There is another " + std::string(kind) + " " + quoted(name) + " before this one.");
    }
    return isNew;
}

/// Whether every name is of use.
bool indexNames(LinkTree& tree, Diagnostics& diagnostics)
{
    tree.linkByName.reserve(tree.links.size());
    tree.jointByName.reserve(tree.joints.size());
    bool isWhole = true;
    for (std::size_t i = 0; i < tree.links.size(); ++i) {
        Link const& link = tree.links[i];
        isWhole &= addName(tree.linkByName, "link", link.name, i, link.nameOffset, diagnostics);
    }
    for (std::size_t i = 0; i < tree.joints.size(); ++i) {
        Joint const& joint = tree.joints[i];
        isWhole &= addName(tree.jointByName, "joint", joint.config.name, i, joint.nameOffset, diagnostics);
    }
    return isWhole;
}

std::size_t findLink(LinkTree& tree, Reference const& link, Diagnostics& diagnostics)
{
    std::size_t const found = find(tree.linkByName, link.name);
    if (found == none && link.offset.isKnown()) {
        diagnostics.report(link.offset, codes::unknownLink, "There is no link " + quoted(link.name) + ".",
                           didYouMean(tree.closestLink(link.name)));
    }
    return found;
}

/// Whether the joint has two links, and is the only parent of the second.
bool attach(LinkTree& tree, std::size_t index, Diagnostics& diagnostics)
{
    Joint& joint = tree.joints[index];
    joint.parentLink = findLink(tree, joint.parent, diagnostics);
    joint.childLink = findLink(tree, joint.child, diagnostics);
    if (joint.childLink == none) {
        return false;
    }
    Link& child = tree.links[joint.childLink];
    if (child.parentJoint != none) {
        diagnostics.report(joint.child.offset, codes::twoParents,
                           "The link " + quoted(child.name) + " is already the child of the joint " +
                               quoted(tree.joints[child.parentJoint].config.name) + ".");
        return false;
    }
    child.parentJoint = index;
    return joint.parentLink != none;
}

void findRoot(LinkTree& tree, Diagnostics& diagnostics)
{
    if (tree.links.empty()) {
        diagnostics.report(tree.textOffset, codes::noLink, "This robot has no link.");
    }
    for (std::size_t i = 0; i < tree.links.size(); ++i) {
        Link const& link = tree.links[i];
        if (link.parentJoint != none) {
            continue;
        }
        if (tree.rootLink == none) {
            tree.rootLink = i;
        } else {
            diagnostics.report(link.textOffset, codes::severalRoots,
                               "Neither this link nor the link " + quoted(tree.links[tree.rootLink].name) +
                                   " is the child of a joint.",
                               "Let a joint attach it to the robot.");
        }
    }
}

/// In the records a link is called after the joint that moves it, so that the root must not share a joint's name.
void nameRoot(LinkTree& tree, Diagnostics& diagnostics)
{
    Link const& root = tree.links[tree.rootLink];
    tree.rootBody.textOffset = root.textOffset;
    tree.rootBody.name =
        tree.names.claim(std::string(root.name), "the root of the records", root.textOffset, diagnostics);
}

/// Each at its joint that stands last in the text: the one that closes the cycle.
void reportCycles(LinkTree const& tree, Diagnostics& diagnostics)
{
    std::vector<std::size_t> parents;
    parents.reserve(tree.links.size());
    for (Link const& link : tree.links) {
        parents.push_back(link.parentJoint == none ? none : tree.joints[link.parentJoint].parentLink);
    }
    for (Cycle const& links : findCycles(parents)) {
        std::size_t last = 0;
        for (std::size_t const link : links) {
            last = std::max(last, tree.links[link].parentJoint);
        }
        Joint const& joint = tree.joints[last];
        diagnostics.report(joint.config.textOffset, codes::jointCycle,
                           "This joint closes a cycle: its parent link " + quoted(tree.links[joint.parentLink].name) +
                               " is itself moved by this joint.");
    }
}

}  // namespace

std::string didYouMean(std::string_view word)
{
    return word.empty() ? std::string() : "Did you mean " + quoted(word) + "?";
}

std::string_view LinkTree::closestLink(ClosestWord const& name)
{
    auto const nameOf = [](Link const& link) { return link.name; };
    Link const* const meant = suggestions.closest(links, nameOf, name);
    return meant == nullptr ? std::string_view() : meant->name;
}

std::string_view LinkTree::closestJoint(ClosestWord const& name)
{
    auto const nameOf = [](Joint const& joint) { return std::string_view(joint.config.name); };
    Joint const* const meant = suggestions.closest(joints, nameOf, name);
    return meant == nullptr ? std::string_view() : meant->config.name;
}

void connect(LinkTree& tree, Diagnostics& diagnostics)
{
    bool isWhole = indexNames(tree, diagnostics);
    for (std::size_t i = 0; i < tree.joints.size(); ++i) {
        isWhole &= attach(tree, i, diagnostics);
    }
    if (isWhole) {
        findRoot(tree, diagnostics);
    }
    if (tree.rootLink != none) {
        nameRoot(tree, diagnostics);
    }
    reportCycles(tree, diagnostics);
    followMimics(tree, diagnostics);
}

}  // namespace Varo::Model
