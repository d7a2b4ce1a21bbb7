#include "robot/mirror_pairs.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <string_view>

#include "robot/link_tree.hpp"
#include "robot/side_names.hpp"
#include "varo/model/name_index.hpp"

namespace Varo::Model {

namespace {

/// How far places may miss their reflections, as a part of the robot's size.
constexpr double placeTolerance = 1e-3;
/// How far directions of length 1 may.
constexpr double directionTolerance = 5e-3;

Vector minus(Vector const& a, Vector const& b)
{
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

double length(Vector const& v)
{
    return std::hypot(v[0], v[1], v[2]);
}

Vector axisOf(PlacedJoint const& joint)
{
    return {joint.frame.rotation[0][2], joint.frame.rotation[1][2], joint.frame.rotation[2][2]};
}

/// Two joints that might be counterparts.
struct Candidate {
    std::size_t first;
    std::size_t second;
    bool isStated;
    bool isMarked;  ///< by words, not by letters alone
};

/// For a plane: where it is, and how far apart those are that it reflects into each other.
struct Vote {
    double offset;
    double weight;
};

class SideFinder {
public:
    SideFinder(Records const& records, std::vector<PlacedJoint> const& places) : _records(records), _places(places) {}

    Sides find()
    {
        measure();
        indexNames();
        collectCandidates();
        findPlane();
        choosePairs();
        findCarriers();
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

    void indexNames()
    {
        _byName.reserve(_places.size());
        _byLink.reserve(_places.size());
        for (std::size_t i = 0; i < _places.size(); ++i) {
            _byName.add(joint(i).name, static_cast<std::uint32_t>(i));
            if (!joint(i).linkName.empty()) {
                _byLink.add(joint(i).linkName, static_cast<std::uint32_t>(i));
            }
        }
        _candidatesOf.resize(_places.size());
        _isMarked.resize(_places.size());
    }

    void addCandidate(std::size_t one, std::size_t other, bool isStated, bool isMarked)
    {
        auto const isKnown = [&](std::size_t candidate) {
            return _candidates[candidate].first == other || _candidates[candidate].second == other;
        };
        auto const& known = _candidatesOf[one];
        if (one == other || std::any_of(known.begin(), known.end(), isKnown)) {
            return;
        }
        _candidatesOf[one].push_back(_candidates.size());
        _candidatesOf[other].push_back(_candidates.size());
        _candidates.push_back({std::min(one, other), std::max(one, other), isStated, isMarked});
    }

    void collectCandidates()
    {
        for (std::size_t i = 0; _records.statesMirrors && i < _places.size(); ++i) {
            std::size_t const mirror = Model::find(_byName, joint(i).mirrorName);
            bool const isStated = joint(i).mirrorKind != noMirror && mirror != none &&
                                  joint(mirror).mirrorKind != noMirror && joint(mirror).mirrorName == joint(i).name;
            if (isStated) {
                addCandidate(i, mirror, true, true);
            }
        }
        for (std::size_t i = 0; i < _places.size(); ++i) {
            bool const isStated = !_candidatesOf[i].empty() && _candidates[_candidatesOf[i][0]].isStated;
            if (!isStated) {
                collectNamed(i);
            }
        }
    }

    /// By the joint's own name, else by that of its link.
    void collectNamed(std::size_t index)
    {
        bool const isFound = collectNamed(index, joint(index).name, _byName);
        bool const isFoundByLink = !isFound && collectNamed(index, joint(index).linkName, _byLink);
        if (!isFound && !isFoundByLink && _isMarked[index]) {
            _sides.alone.push_back(index);
        }
    }

    bool collectNamed(std::size_t index, std::string_view name, NameIndex const& joints)
    {
        SideNames const names = otherSideOf(name);
        _isMarked[index] = _isMarked[index] || names.areMarked;
        bool isFound = false;
        for (std::string const& other : names.others) {
            if (std::size_t const found = Model::find(joints, other); found != none) {
                addCandidate(index, found, false, names.areMarked);
                isFound = isFound || names.areMarked;
            }
        }
        return isFound;
    }

    bool areReached(Candidate const& candidate) const
    {
        return _places[candidate.first].isReached && _places[candidate.second].isReached;
    }

    /// Places that differ along one axis of the root alone are each other's reflection in a plane across it.
    void findPlane()
    {
        std::array<std::vector<Vote>, 3> votes;
        for (Candidate const& candidate : _candidates) {
            Vector const& one = _places[candidate.first].frame.translation;
            Vector const& other = _places[candidate.second].frame.translation;
            for (std::size_t axis = 0; axis < 3 && areReached(candidate); ++axis) {
                Vector across = minus(one, other);
                bool const isApart = std::abs(across[axis]) > _sides.tolerance;
                across[axis] = 0.0;
                if (isApart && length(across) <= _sides.tolerance) {
                    votes[axis].push_back({(one[axis] + other[axis]) / 2.0, std::abs(one[axis] - other[axis])});
                }
            }
        }
        for (std::size_t const axis : {1U, 0U, 2U}) {
            std::sort(votes[axis].begin(), votes[axis].end(),
                      [](Vote const& a, Vote const& b) { return a.offset < b.offset; });
            takeBest(axis, votes[axis]);
        }
    }

    /// The offset around which most stand. Those that are far apart count for more: the wheels of a robot, say, than
    /// the fingers of its one hand.
    void takeBest(std::size_t axis, std::vector<Vote> const& sorted)
    {
        double weight = 0.0;
        for (std::size_t first = 0, last = 0; first < sorted.size(); ++first) {
            while (last < sorted.size() && sorted[last].offset - sorted[first].offset <= _sides.tolerance) {
                weight += sorted[last++].weight;
            }
            if (weight > _planeWeight * (1.0 + 1e-9)) {
                _planeWeight = weight;
                _sides.plane = {axis, sorted[first + (last - first) / 2].offset, last - first};
            }
            weight -= sorted[first].weight;
        }
    }

    SidePair judged(Candidate const& candidate) const
    {
        SidePair pair = {candidate.first, candidate.second, candidate.isStated};
        PlacedJoint const& one = _places[pair.first];
        PlacedJoint const& other = _places[pair.second];
        std::int32_t const type = joint(pair.first).jointType;
        pair.isOfOneType = type == joint(pair.second).jointType;
        pair.miss = minus(_sides.plane.reflected(one.frame.translation), other.frame.translation);
        pair.isPlaced = areReached(candidate) && length(pair.miss) <= _sides.tolerance;
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
        for (Candidate const& candidate : _candidates) {
            pairs.push_back(judged(candidate));
            pairs.back().isSure = candidate.isStated || (_candidatesOf[candidate.first].size() == 1 &&
                                                         _candidatesOf[candidate.second].size() == 1);
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
        choose([&](std::size_t i) { return _candidates[i].isMarked && pairs[i].isSure; });
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
            bool const isNamed = isMoving(joint(pair.first).jointType) && _isMarked[pair.first];
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

    void findCarriers()
    {
        _pairOf.resize(_places.size(), none);
        _isStraight.resize(_sides.pairs.size());
        for (std::size_t i = 0; i < _sides.pairs.size(); ++i) {
            _pairOf[_sides.pairs[i].first] = _pairOf[_sides.pairs[i].second] = i;
        }
        std::vector<std::size_t> const carriers = carriersOf();
        std::vector<bool> const moves = movesBelow();
        for (SidePair& pair : _sides.pairs) {
            bool const isCommon = carriers[pair.first] == carriers[pair.second];
            bool const areOfTrunk = !isSidedBefore(pair.first) && !isSidedBefore(pair.second);
            bool const moveBoth = moves[pair.first] && moves[pair.second];
            pair.carrier = isCommon && !haveOneBefore(pair) ? carriers[pair.first] : none;
            pair.isLimb = pair.isStated || pair.isProved() || (areOfTrunk && moveBoth && !isOnePart(pair));
        }
        passOnToCarried();
        for (SidePair& pair : _sides.pairs) {
            pair.isAskew = isAskew(pair);
        }
        auto const isOfNoLimb = [&](std::size_t joint) {
            return !moves[joint] || !_places[joint].isReached || isAloneBefore(joint);
        };
        std::vector<std::size_t> limbs;
        std::remove_copy_if(_sides.alone.begin(), _sides.alone.end(), std::back_inserter(limbs), isOfNoLimb);
        _sides.alone = std::move(limbs);
    }

    bool haveOneBefore(SidePair const& pair) const { return _places[pair.first].before == _places[pair.second].before; }

    /// What a limb carries is of the limb.
    void passOnToCarried()
    {
        std::vector<bool> isDone(_sides.pairs.size());
        std::vector<std::size_t> path;
        for (std::size_t start = 0; start < _sides.pairs.size(); ++start) {
            for (std::size_t i = start; i != none && !isDone[i]; i = _sides.pairs[i].carrier) {
                path.push_back(i);
                isDone[i] = true;
            }
            for (; !path.empty(); path.pop_back()) {
                SidePair& pair = _sides.pairs[path.back()];
                bool const isCarried = pair.carrier != none;
                pair.limb = isCarried ? _sides.pairs[pair.carrier].limb : path.back();
                pair.isLimb = pair.isLimb || (pair.carrier != none && _sides.pairs[pair.carrier].isLimb);
            }
        }
    }

    /// Whether the two are left and right of what they are both attached to, a hand say, and not of the robot.
    bool isOnePart(SidePair const& pair) const
    {
        std::size_t const before = _places[pair.first].before;
        if (!haveOneBefore(pair) || before == none) {
            return false;
        }
        Pose const& carrier = _places[before].link;
        Vector const across = transposed(carrier.rotation) *
                              minus(_places[pair.first].frame.translation, _places[pair.second].frame.translation);
        for (std::size_t axis = 0; axis < 3; ++axis) {
            Vector rest = across;
            rest[axis] = 0.0;
            bool const isAcross = length(rest) <= _sides.tolerance;
            bool const isOfRobot =
                std::abs(carrier.rotation[_sides.plane.axis][axis]) > 1.0 - directionTolerance &&
                std::abs(carrier.translation[_sides.plane.axis] - _sides.plane.offset) <= _sides.tolerance;
            if (isAcross && !isOfRobot) {
                return true;
            }
        }
        return false;
    }

    bool isSidedBefore(std::size_t joint) const
    {
        std::size_t const before = _places[joint].before;
        return before != none && _isSided[before];
    }

    /// Whether the joint before it, too, is of a side and in no pair: then that one is told.
    bool isAloneBefore(std::size_t joint) const
    {
        std::size_t const before = _places[joint].before;
        return before != none && _isSided[before] && _pairOf[before] == none;
    }

    /// Whether a carrier of the pair, however far away, is not turned as its reflection.
    bool isAskew(SidePair const& pair)
    {
        std::vector<std::size_t> path;
        std::size_t at = pair.carrier;
        for (; at != none && _sides.pairs[at].isTurned && !_sides.pairs[at].isAskew && !_isStraight[at];
             at = _sides.pairs[at].carrier) {
            path.push_back(at);
        }
        bool const isAskew = at != none && !_isStraight[at];
        for (std::size_t const index : path) {
            _sides.pairs[index].isAskew = isAskew;
            _isStraight[index] = !isAskew;
        }
        return isAskew;
    }

    /// By joint, whether it moves or carries one that does.
    std::vector<bool> movesBelow() const
    {
        std::vector<bool> moves(_places.size());
        for (std::size_t start = 0; start < _places.size(); ++start) {
            std::size_t i = isMoving(joint(start).jointType) ? start : none;
            for (; i != none && !moves[i]; i = _places[i].before) {
                moves[i] = true;
            }
        }
        return moves;
    }

    /// Of each joint, the pair of the nearest joint before it that is in one. Finds out on the way what is sided.
    std::vector<std::size_t> carriersOf()
    {
        std::vector<std::size_t> carriers(_places.size(), none);
        std::vector<bool> isDone(_places.size());
        _isSided = _isMarked;
        std::vector<std::size_t> path;
        for (std::size_t start = 0; start < _places.size(); ++start) {
            for (std::size_t i = start; i != none && !isDone[i]; i = _places[i].before) {
                path.push_back(i);
                isDone[i] = true;
            }
            for (; !path.empty(); path.pop_back()) {
                std::size_t const i = path.back();
                std::size_t const before = _places[i].before;
                if (before != none) {
                    carriers[i] = _pairOf[before] != none ? _pairOf[before] : carriers[before];
                    _isSided[i] = _isSided[i] || _isSided[before];
                }
            }
        }
        return carriers;
    }

    Records const& _records;
    std::vector<PlacedJoint> const& _places;
    NameIndex _byName;
    NameIndex _byLink;
    std::vector<Candidate> _candidates;
    std::vector<std::vector<std::size_t>> _candidatesOf;
    std::vector<bool> _isMarked;  ///< whether a name says the side in words
    std::vector<bool> _isSided;  ///< whether that of the joint, or of one before it, does
    std::vector<std::size_t> _pairOf;  ///< by joint
    std::vector<bool> _isStraight;  ///< of the pairs: known not to be askew, nor anything that carries them
    double _planeWeight = 0.0;
    Sides _sides;
};

}  // namespace

Sides findSides(Records const& records, std::vector<PlacedJoint> const& places)
{
    return SideFinder(records, places).find();
}

}  // namespace Varo::Model
