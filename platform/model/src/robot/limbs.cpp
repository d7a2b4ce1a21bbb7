#include "robot/limbs.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace Varo::Model {

namespace {

class LimbFinder {
public:
    LimbFinder(Records const& records, std::vector<PlacedJoint> const& places, std::vector<bool> const& isMarked,
               Sides& sides)
        : _records(records), _places(places), _sides(sides), _isMarked(isMarked), _isSided(isMarked)
    {}

    void find()
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
        keepLimbs(moves);
    }

private:
    /// Of the joints that are alone, those that lack a limb, or its first joint, on the other side.
    void keepLimbs(std::vector<bool> const& moves)
    {
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
            std::size_t i = isMoving(_records.joints[start].jointType) ? start : none;
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
                    carriers[i] = _pairOf[before] != none ? _pairOf[before]
                                  : _isMarked[before]     ? none  // which of two fingers, say, cannot be told
                                                          : carriers[before];
                    _isSided[i] = _isSided[i] || _isSided[before];
                }
            }
        }
        return carriers;
    }

    Records const& _records;
    std::vector<PlacedJoint> const& _places;
    Sides& _sides;
    std::vector<bool> const& _isMarked;
    std::vector<bool> _isSided;  ///< by joint, whether its name, or that of one before it, says the side
    std::vector<std::size_t> _pairOf;  ///< by joint
    std::vector<bool> _isStraight;  ///< of the pairs: known not to be askew, nor anything that carries them
};

}  // namespace

void findLimbs(Records const& records, std::vector<PlacedJoint> const& places, std::vector<bool> const& isMarked,
               Sides& sides)
{
    LimbFinder(records, places, isMarked, sides).find();
}

}  // namespace Varo::Model
