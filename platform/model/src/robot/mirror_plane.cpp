#include "robot/mirror_plane.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace Varo::Model {

namespace {

/// For a plane: where it is, and how far apart those are that it reflects into each other.
struct Vote {
    double offset;
    double weight;
};

using Votes = std::vector<Vote>;

/// Places that differ along one axis of the root alone are each other's reflection in a plane across it.
void vote(Vector const& one, Vector const& other, double tolerance, std::array<Votes, 3>& votes)
{
    for (std::size_t axis = 0; axis < 3; ++axis) {
        Vector across = minus(one, other);
        bool const isApart = std::abs(across[axis]) > tolerance;
        across[axis] = 0.0;
        if (isApart && length(across) <= tolerance) {
            votes[axis].push_back({(one[axis] + other[axis]) / 2.0, std::abs(one[axis] - other[axis])});
        }
    }
}

/// The offset around which most stand, when it outweighs the best plane so far.
void takeBest(std::size_t axis, Votes const& sorted, double tolerance, MirrorPlane& best, double& bestWeight)
{
    double weight = 0.0;
    for (std::size_t first = 0, last = 0; first < sorted.size(); ++first) {
        while (last < sorted.size() && sorted[last].offset - sorted[first].offset <= tolerance) {
            weight += sorted[last++].weight;
        }
        if (weight > bestWeight * (1.0 + 1e-9)) {
            bestWeight = weight;
            best = {axis, sorted[first + (last - first) / 2].offset, last - first};
        }
        weight -= sorted[first].weight;
    }
}

}  // namespace

MirrorPlane findMirrorPlane(std::vector<SideCandidate> const& candidates, std::vector<PlacedJoint> const& places,
                            double tolerance)
{
    std::array<Votes, 3> votes;
    for (SideCandidate const& candidate : candidates) {
        PlacedJoint const& one = places[candidate.first];
        PlacedJoint const& other = places[candidate.second];
        if (one.isReached && other.isReached) {
            vote(one.frame.translation, other.frame.translation, tolerance, votes);
        }
    }
    MirrorPlane best;
    double bestWeight = 0.0;
    for (std::size_t const axis : {1U, 0U, 2U}) {
        std::sort(votes[axis].begin(), votes[axis].end(),
                  [](Vote const& a, Vote const& b) { return a.offset < b.offset; });
        takeBest(axis, votes[axis], tolerance, best, bestWeight);
    }
    return best;
}

}  // namespace Varo::Model
