#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>

#include "rules/numbers.hpp"
#include "rules/rules.hpp"

/// What is named for left and right must be there on both sides, and in the places that reflect each other.
namespace Varo::Model::Rules {

namespace {

/// Whether what carries the pair misses as much, or is turned askew: then that is told. Looks no further than the next
/// few carriers, among which it is if one of them has a fault of its own.
bool isCarriedOn(Facts const& facts, SidePair const& side)
{
    constexpr int farthest = 8;
    std::size_t carrier = side.carrier;
    for (int i = 0; i < farthest && carrier != none; ++i) {
        SidePair const& before = facts.sides.pairs[carrier];
        if (length(minus(side.miss, before.miss)) <= 2.0 * facts.sides.tolerance) {
            return true;
        }
        carrier = before.carrier;
    }
    return side.isAskew;
}

/// "y = 0.1": the plane as messages name it.
std::string textOf(Sides const& sides)
{
    double const offset = std::abs(sides.plane.offset) < 0.1 * sides.tolerance ? 0.0 : sides.plane.offset;
    return std::string(1, "xyz"[sides.plane.axis]) + " = " + rounded(offset);
}

/// Whether something that does not move is placed alike on its carriers: a camera on hands of one make, say.
bool isCopy(JointPair const& pair)
{
    bool const isFixed = !isMoving(pair.first.jointType) && !isMoving(pair.second.jointType);
    return isFixed && pair.side.carrier != none && pair.first.placement.isNear(pair.second.placement);
}

bool hasAxis(JointPair const& pair)
{
    return pair.side.isLimb && !pair.side.isStated && pair.side.isSure && pair.side.isProved() &&
           isMoving(pair.first.jointType);
}

/// Whether the two axes are the same, each in the frame of its link.
bool areAxesAlike(JointPair const& pair)
{
    float cosine = 0.0F;
    for (int row = 0; row < 3; ++row) {  // the third row of the inverse is the axis
        cosine += pair.first.endTransform(2, row) * pair.second.endTransform(2, row);
    }
    return cosine > 0.0F;
}

/// The joints of a limb by how their axes go together.
struct Convention {
    std::vector<JointPair const*> alike;
    std::vector<JointPair const*> opposite;

    void add(JointPair const& pair) { (areAxesAlike(pair) ? alike : opposite).push_back(&pair); }
};

/// Whether the frames of two joints are as far from those before them, along each axis.
bool areAlikeUpToSigns(Transform const& one, Transform const& other, double tolerance)
{
    Vector const a = fromTransform(one).translation;
    Vector const b = fromTransform(other).translation;
    return length({std::abs(a[0]) - std::abs(b[0]), std::abs(a[1]) - std::abs(b[1]),
                   std::abs(a[2]) - std::abs(b[2])}) <= tolerance;
}

bool isReached(Facts const& facts, JointPair const& pair)
{
    return facts.placeOf(pair.first).isReached && facts.placeOf(pair.second).isReached;
}

}  // namespace

void findPlaceNotMirrored(Facts const& facts, Report const& report)
{
    for (JointPair const& pair : facts.jointPairs) {
        if (pair.side.isLimb && isReached(facts, pair) && !pair.side.isPlaced && !isCopy(pair) &&
            !isCarriedOn(facts, pair.side)) {
            bool const isFirst = isFirstOdd(facts, pair, [&](JointConfig const& one, JointConfig const& other) {
                return areAlikeUpToSigns(one.placement, other.placement, facts.sides.tolerance);
            });
            report.ofPair(pair, isFirst, Part::placement,
                          "The places of " + namesOf(pair.first, pair.second) + " miss each other's reflection in " +
                              textOf(facts.sides) + " by " + rounded(length(pair.side.miss)) + " m.");
        }
    }
}

void findAxisNotMirrored(Facts const& facts, Report const& report)
{
    for (JointPair const& pair : facts.jointPairs) {
        if (pair.side.isLimb && isReached(facts, pair) && !pair.side.isTurned && !pair.side.isAskew) {
            report.ofTwo(pair.second, pair.first, Part::axis,
                         "The axes of " + namesOf(pair.first, pair.second) +
                             " are not each other's reflection, in either direction.");
        }
    }
}

std::vector<JointPair const*> pairsOfOddAxis(Facts const& facts)
{
    constexpr std::size_t enough = 5;
    std::vector<Convention> limbs(facts.jointPairs.size());
    for (JointPair const& pair : facts.jointPairs) {
        if (hasAxis(pair)) {
            limbs[pair.side.limb].add(pair);
        }
    }
    std::vector<JointPair const*> odd;
    for (Convention const& limb : limbs) {
        if (limb.alike.size() + limb.opposite.size() < enough) {
            continue;
        }
        for (auto const* few : {&limb.alike, &limb.opposite}) {
            if (few->size() == 1) {
                odd.push_back(few->front());
            }
        }
    }
    std::sort(odd.begin(), odd.end(), std::less<>());
    return odd;
}

void findAxisDirectionNotMirrored(Facts const& facts, Report const& report)
{
    for (JointPair const* pair : pairsOfOddAxis(facts)) {
        report.ofPair(*pair, false, Part::axis,
                      "The axes of " + namesOf(pair->first, pair->second) +
                          (areAxesAlike(*pair) ? " have the same direction" : " have opposite directions") +
                          " in the frames of their links, unlike those of all others of the limb.");
    }
}

void findTypeNotMirrored(Facts const& facts, Report const& report)
{
    for (JointPair const& pair : facts.jointPairs) {
        if (pair.side.isLimb && !pair.side.isOfOneType) {
            report.ofTwo(pair.second, pair.first, Part::whole,
                         "The joints " + namesOf(pair.first, pair.second) + " are of different types.");
        }
    }
}

void findNoCounterpart(Facts const& facts, Report const& report)
{
    constexpr std::size_t enough = 2;  // pairs, to say what the sides of a robot are
    for (std::size_t const joint : facts.sides.alone) {
        JointConfig const& config = facts.records->joints[joint];
        if (facts.sides.plane.support >= enough) {
            report.at(config, Part::name,
                      "The other side has no counterpart of the joint " + quoted(config.name) +
                          ", nor of what is attached to it.");
        }
    }
}

void findSidesNotMirrored(Facts const& facts, Report const& report)
{
    constexpr std::size_t enough = 3;
    if (!facts.sides.areMirrored && facts.sides.named >= enough) {
        report.at(facts.records->root, Part::whole,
                  "At zero, left and right of this robot do not mirror each other: of " +
                      std::to_string(facts.sides.named) +
                      " pairs by name, the best plane across an axis of the root "
                      "proves " +
                      std::to_string(facts.sides.proved) + ".");
    }
}

}  // namespace Varo::Model::Rules
