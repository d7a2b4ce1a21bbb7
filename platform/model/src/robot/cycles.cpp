#include "robot/cycles.hpp"

#include <algorithm>

namespace Varo::Model {

namespace {

Cycle cycleThrough(std::size_t member, std::vector<std::size_t> const& parents)
{
    Cycle cycle = {member};
    for (std::size_t next = parents[member]; next != member; next = parents[next]) {
        cycle.push_back(next);
    }
    std::rotate(cycle.begin(), std::min_element(cycle.begin(), cycle.end()), cycle.end());
    return cycle;
}

}  // namespace

std::vector<Cycle> findCycles(std::vector<std::size_t> const& parents)
{
    std::vector<Cycle> cycles;
    std::vector<std::size_t> firstWalk(parents.size(), none);  // by thing, the start of the walk that met it first
    for (std::size_t start = 0; start < parents.size(); ++start) {
        std::size_t at = start;
        while (at != none && firstWalk[at] == none) {
            firstWalk[at] = start;
            at = parents[at];
        }
        // A walk that ends where an earlier one has been finds nothing new; one that meets itself has gone round.
        if (at != none && firstWalk[at] == start) {
            cycles.push_back(cycleThrough(at, parents));
        }
    }
    return cycles;
}

std::vector<std::size_t> parentsFirst(std::vector<std::size_t> const& parents)
{
    std::vector<std::size_t> order;
    order.reserve(parents.size());
    std::vector<bool> isPlaced(parents.size());
    for (std::size_t start = 0; start < parents.size(); ++start) {
        std::size_t const placed = order.size();
        for (std::size_t at = start; at != none && !isPlaced[at]; at = parents[at]) {
            isPlaced[at] = true;
            order.push_back(at);
        }
        std::reverse(order.begin() + static_cast<std::ptrdiff_t>(placed), order.end());
    }
    return order;
}

}  // namespace Varo::Model
