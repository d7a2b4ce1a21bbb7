#include "robot/chains.hpp"

#include <algorithm>
#include <utility>

namespace Varo::Model {

namespace {

using Indices = std::vector<std::size_t>;

/// From the root outward: no joint before the one that it is attached to.
Indices outwardOrder(LinkTree const& tree, ChildJoints const& children)
{
    Indices order(children[tree.rootLink].begin(), children[tree.rootLink].end());
    order.reserve(tree.joints.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        auto const next = children[tree.joints[order[i]].childLink];
        order.insert(order.end(), next.begin(), next.end());
    }
    return order;
}

/// The number of joints below each.
Indices countDescendants(LinkTree const& tree, Indices const& outward)
{
    Indices counts(tree.joints.size(), 0);
    for (auto joint = outward.rbegin(); joint != outward.rend(); ++joint) {
        std::size_t const before = tree.jointBefore(tree.joints[*joint]);
        if (before != none) {
            counts[before] += counts[*joint] + 1;
        }
    }
    return counts;
}

template <class Iterator>
void pushReversed(Indices& stack, Iterator begin, Iterator end)
{
    stack.insert(stack.end(), std::make_reverse_iterator(end), std::make_reverse_iterator(begin));
}

/// Adds the joints of the chain that begins with that one, and those that begin chains of their own beside it.
void followChain(LinkTree const& tree, ChildJoints const& children, std::size_t joint, Indices& members,
                 Indices& branches)
{
    while (joint != none) {
        members.push_back(joint);
        auto const next = children[tree.joints[joint].childLink];
        joint = next.empty() ? none : next.front();
        if (next.size() > 1) {
            branches.insert(branches.end(), next.begin() + 1, next.end());
        }
    }
}

/// Every joint begins a chain but the first one of each link that a joint moves.
std::size_t countChains(LinkTree const& tree, ChildJoints const& children)
{
    std::size_t continued = 0;
    for (std::size_t link = 0; link < tree.links.size(); ++link) {
        continued += link != tree.rootLink && !children[link].empty() ? 1 : 0;
    }
    return tree.joints.size() - continued;
}

}  // namespace

ChildJoints childJointsOf(LinkTree const& tree)
{
    ChildJoints children(tree.links.size(), tree.joints.size(),
                         [&](std::size_t joint) { return tree.joints[joint].parentLink; });
    Indices const counts = countDescendants(tree, outwardOrder(tree, children));
    for (std::size_t link = 0; link < tree.links.size(); ++link) {
        auto const joints = children[link];
        if (link != tree.rootLink && joints.size() > 1) {
            auto const longest = std::max_element(joints.begin(), joints.end(),
                                                  [&](std::size_t a, std::size_t b) { return counts[a] < counts[b]; });
            children.moveToFront(link, static_cast<std::size_t>(longest - joints.begin()));
        }
    }
    return children;
}

Table<ChainConfig> makeChains(LinkTree const& tree, ChildJoints const& children)
{
    Table<ChainConfig> chains;
    chains.reserve(countChains(tree, children));
    Indices members;
    Indices branches;
    Indices starts;
    pushReversed(starts, children[tree.rootLink].begin(), children[tree.rootLink].end());
    while (!starts.empty()) {
        std::size_t const joint = starts.back();
        starts.pop_back();
        Joint const& first = tree.joints[joint];
        std::size_t const before = tree.jointBefore(first);
        ChainConfig chain;
        chain.name = first.config.name;
        chain.textOffset = first.config.textOffset;
        chain.parentJoint = before == none ? tree.rootBody.name : tree.joints[before].config.name;
        members.clear();
        branches.clear();
        followChain(tree, children, joint, members, branches);
        chain.jointNames.reserve(members.size());
        chain.jointOffsets.reserve(members.size());
        for (std::size_t const member : members) {
            chain.jointNames.push_back(tree.joints[member].config.name);
            chain.jointOffsets.push_back(tree.joints[member].config.textOffset);
        }
        pushReversed(starts, branches.begin(), branches.end());
        chains.add(std::move(chain));
    }
    return chains;
}

std::vector<std::size_t> buildingOrder(LinkTree const& tree, ChildJoints const& children)
{
    Indices order;
    order.reserve(tree.joints.size());
    Indices pending;
    pushReversed(pending, children[tree.rootLink].begin(), children[tree.rootLink].end());
    while (!pending.empty()) {
        std::size_t const joint = pending.back();
        pending.pop_back();
        order.push_back(joint);
        auto const next = children[tree.joints[joint].childLink];
        pushReversed(pending, next.begin(), next.end());
    }
    return order;
}

}  // namespace Varo::Model
