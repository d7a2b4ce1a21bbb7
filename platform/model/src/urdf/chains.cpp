#include "urdf/chains.hpp"

#include <algorithm>
#include <utility>

#include "xml/node_offset.hpp"

namespace Varo::Model::Urdf {

namespace {

using Indices = std::vector<std::size_t>;

/// From the root outward: no joint before the one that it hangs on.
Indices outwardOrder(Description const& description, ChildJoints const& children)
{
    Indices order(children.begin(description.root), children.end(description.root));
    order.reserve(description.joints.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        std::size_t const link = description.joints[order[i]].childLink;
        order.insert(order.end(), children.begin(link), children.end(link));
    }
    return order;
}

/// The number of joints below each.
Indices countDescendants(Description const& description, Indices const& outward)
{
    Indices counts(description.joints.size(), 0);
    for (auto joint = outward.rbegin(); joint != outward.rend(); ++joint) {
        std::size_t const before = description.links[description.joints[*joint].parentLink].parentJoint;
        if (before != none) {
            counts[before] += counts[*joint] + 1;
        }
    }
    return counts;
}

void pushReversed(Indices& stack, Indices::const_iterator begin, Indices::const_iterator end)
{
    stack.insert(stack.end(), std::make_reverse_iterator(end), std::make_reverse_iterator(begin));
}

}  // namespace

Offspring sortOffspring(Description const& description)
{
    ChildJoints const children(description);
    Indices const counts = countDescendants(description, outwardOrder(description, children));
    Offspring offspring(description.links.size());
    for (std::size_t link = 0; link < offspring.size(); ++link) {
        Indices& joints = offspring[link];
        joints.assign(children.begin(link), children.end(link));
        if (link == description.root || joints.empty()) {
            continue;
        }
        auto const longest = std::max_element(joints.begin(), joints.end(),
                                              [&](std::size_t a, std::size_t b) { return counts[a] < counts[b]; });
        std::rotate(joints.begin(), longest, longest + 1);
    }
    return offspring;
}

Table<ChainConfig> makeChains(Description const& description, Offspring const& offspring, std::string const& rootName)
{
    Table<ChainConfig> chains;
    Indices starts;
    pushReversed(starts, offspring[description.root].begin(), offspring[description.root].end());
    while (!starts.empty()) {
        std::size_t const first = starts.back();
        std::size_t joint = first;
        starts.pop_back();
        std::size_t const before = description.links[description.joints[joint].parentLink].parentJoint;
        ChainConfig chain;
        chain.name = description.joints[joint].config.name;
        chain.parentJoint = before == none ? rootName : description.joints[before].config.name;
        Indices branches;
        while (joint != none) {
            chain.jointNames.push_back(description.joints[joint].config.name);
            chain.jointOffsets.push_back(at(description.joints[joint].node));
            Indices const& next = offspring[description.joints[joint].childLink];
            joint = next.empty() ? none : next.front();
            if (next.size() > 1) {
                branches.insert(branches.end(), next.begin() + 1, next.end());
            }
        }
        pushReversed(starts, branches.begin(), branches.end());
        chain.textOffset = at(description.joints[first].node);
        chains.add(std::move(chain));
    }
    return chains;
}

std::vector<std::size_t> buildingOrder(Description const& description, Offspring const& offspring)
{
    Indices order;
    order.reserve(description.joints.size());
    Indices pending;
    pushReversed(pending, offspring[description.root].begin(), offspring[description.root].end());
    while (!pending.empty()) {
        std::size_t const joint = pending.back();
        pending.pop_back();
        order.push_back(joint);
        Indices const& next = offspring[description.joints[joint].childLink];
        pushReversed(pending, next.begin(), next.end());
    }
    return order;
}

}  // namespace Varo::Model::Urdf
