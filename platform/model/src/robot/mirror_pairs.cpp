#include "robot/mirror_pairs.hpp"

#include <algorithm>
#include <utility>

#include "robot/limbs.hpp"

namespace Varo::Model {

namespace {

/// How far places may miss their reflections, as a part of the robot's size.
constexpr double placeTolerance = 1e-3;
Vector axisOf(PlacedJoint const& joint)
{
    return {joint.frame.rotation[0][2], joint.frame.rotation[1][2], joint.frame.rotation[2][2]};
}

class SideFinder {
public:
    SideFinder(Records const& records, SideCandidates candidates, std::vector<PlacedJoint> const& places)
        : _records(records), _places(places), _candidates(std::move(candidates))
    {}

    Sides find()
    {
        measure();
        _sides.plane = findMirrorPlane(_candidates.all, _places, _sides.tolerance);
        choosePairs();
        _sides.alone = _candidates.alone;
        findLimbs(_records, _places, _candidates.isMarked, _sides);
        judgeWhole();
        return std::move(_sides);
    }

private:
    JointConfig const& joint(std::size_t index) const { return _records.joints[index]; }

    void measure()
    {
        for (PlacedJoint const& place : _places) {
            _sides.size = place.isReached ? std::max(_sides.size, length(place.frame.translation)) : _sides.size;
        }
        _sides.tolerance = placeTolerance * _sides.size;
    }

    SidePair judged(SideCandidate const& candidate) const
    {
        SidePair pair = {candidate.first, candidate.second, candidate.isStated};
        PlacedJoint const& one = _places[pair.first];
        PlacedJoint const& other = _places[pair.second];
        std::int32_t const type = joint(pair.first).jointType;
        pair.isOfOneType = type == joint(pair.second).jointType;
        pair.miss = minus(_sides.plane.reflected(one.frame.translation), other.frame.translation);
        pair.isPlaced = one.isReached && other.isReached && length(pair.miss) <= _sides.tolerance;
        pair.isTurned = !isMoving(type) || !isMoving(joint(pair.second).jointType);
        pair.kind = pair.isTurned ? plainMirror : noMirror;
        if (!pair.isTurned) {
            judgeAxes(pair, axisOf(one), axisOf(other));
        }
        return pair;
    }

    /// A reflection turns rotations round: equal values mirror each other when the axis is the opposite of the
    /// reflected one, and for sliding joints when it is the reflected one.
    void judgeAxes(SidePair& pair, Vector const& one, Vector const& other) const
    {
        Vector const same = _sides.plane.reflectedDirection(one);
        bool const isSame = length(minus(same, other)) <= directionTolerance;
        bool const isOpposite = length(minus({-same[0], -same[1], -same[2]}, other)) <= directionTolerance;
        bool const slides = joint(pair.first).jointType == prismatic;
        pair.isTurned = isSame || isOpposite;
        pair.kind = !pair.isTurned ? noMirror : isSame == slides ? plainMirror : reflectedMirror;
    }

    /// Stated pairs first, then those that are proved; and of the others those whose names leave no choice.
    void choosePairs()
    {
        std::vector<bool> isPaired(_places.size());
        std::vector<SidePair> pairs;
        pairs.reserve(_candidates.all.size());
        for (SideCandidate const& candidate : _candidates.all) {
            pairs.push_back(judged(candidate));
            pairs.back().isSure = candidate.isStated || _candidates.isOnly(candidate);
        }
        auto const choose = [&](auto const& isMeant) {
            for (std::size_t i = 0; i < pairs.size(); ++i) {
                if (!isPaired[pairs[i].first] && !isPaired[pairs[i].second] && isMeant(i)) {
                    isPaired[pairs[i].first] = isPaired[pairs[i].second] = true;
                    _sides.pairs.push_back(pairs[i]);
                }
            }
        };
        choose([&](std::size_t i) { return pairs[i].isStated; });
        choose([&](std::size_t i) { return pairs[i].isProved(); });
        choose([&](std::size_t i) { return _candidates.all[i].isMarked && pairs[i].isSure; });
        std::sort(_sides.pairs.begin(), _sides.pairs.end(),
                  [](SidePair const& a, SidePair const& b) { return a.second < b.second; });
    }

    /// At least half of what is named for sides must mirror, or names mean something else on this robot. What another
    /// pair in the wrong place carries along does not count.
    void judgeWhole()
    {
        std::size_t judged = 0;
        bool isStated = false;
        for (SidePair const& pair : _sides.pairs) {
            bool const isNamed = isMoving(joint(pair.first).jointType) && _candidates.isMarked[pair.first];
            bool const isCarried = pair.carrier != none && !_sides.pairs[pair.carrier].isProved();
            _sides.named += isNamed ? 1 : 0;
            _sides.proved += isNamed && pair.isProved() ? 1 : 0;
            judged += isNamed && (pair.isProved() || !isCarried) ? 1 : 0;
            isStated = isStated || pair.isStated;
        }
        _sides.areMirrored = isStated || (_sides.plane.support > 0 && 2 * _sides.proved >= judged);
        if (!_sides.areMirrored) {
            _sides.pairs.clear();
            _sides.alone.clear();
        }
    }

    Records const& _records;
    std::vector<PlacedJoint> const& _places;
    SideCandidates _candidates;
    Sides _sides;
};

}  // namespace

Sides findSides(Records const& records, SideCandidates candidates, std::vector<PlacedJoint> const& places)
{
    return SideFinder(records, std::move(candidates), places).find();
}

}  // namespace Varo::Model
