#include <algorithm>
#include <cmath>
#include <string>

#include <Eigen/Core>

#include "rules/inertia.hpp"
#include "rules/mirrored_bodies.hpp"
#include "rules/numbers.hpp"

namespace Varo::Model::Rules {

namespace {

using Eigen::Vector3d;

/// kg*m^2; differences below it are those of rounding.
constexpr double smallestInertia = 1e-9;

/// In the link frame.
Vector3d centerOf(JointConfig const& joint)
{
    return vectorOf(joint.centerOfMass);
}

Inertia inRootAxes(Facts const& facts, JointConfig const& joint)
{
    Eigen::Matrix3d const rotation = rotationOf(facts.placeOf(joint).link);
    return rotation * inertiaOf(joint.inertiaMatrix) * rotation.transpose();
}

/// How far two bodies are from being reflections, and from being copies.
struct Misses {
    double ofReflection;
    double ofCopy;
    double tolerance;
};

Misses centerMisses(Facts const& facts, JointPair const& pair)
{
    return {missOfPoints(facts, pair, centerOf(pair.first), centerOf(pair.second)).norm(),
            (centerOf(pair.first) - centerOf(pair.second)).norm(), pointTolerance(facts)};
}

Misses inertiaMisses(Facts const& facts, JointPair const& pair)
{
    Eigen::Matrix3d const reflection = reflectionOf(facts.sides.plane);
    Inertia const reflected = reflection * inRootAxes(facts, pair.first) * reflection;
    Inertia const present = inRootAxes(facts, pair.second);
    double const greatest = std::max(reflected.cwiseAbs().maxCoeff(), present.cwiseAbs().maxCoeff());
    Inertia const difference = inertiaOf(pair.first.inertiaMatrix) - inertiaOf(pair.second.inertiaMatrix);
    return {(reflected - present).cwiseAbs().maxCoeff(), difference.cwiseAbs().maxCoeff(),
            std::max(smallestInertia, facts.tolerances.inertia * greatest)};
}

bool isReflection(Misses const& misses)
{
    return misses.ofReflection <= misses.tolerance;
}

bool isCopy(Misses const& misses)
{
    return misses.ofCopy <= misses.tolerance;
}

/// Calls `visit` with the pairs that are no reflections, nor copies where those are right, and with how much they miss.
template <class Measure, class Visit>
void forEachMiss(Facts const& facts, std::vector<JointPair const*> const& pairs, Measure const& measure,
                 Visit const& visit)
{
    bool const areCopies = areSidesCopies(facts);
    for (JointPair const* pair : pairs) {
        Misses const misses = measure(facts, *pair);
        bool const isRightCopy = isCopy(misses) && (areCopies || haveOneMesh(*pair));
        if (!isReflection(misses) && !isRightCopy) {
            visit(*pair, misses.ofReflection);
        }
    }
}

bool isPossible(Facts const& facts, JointConfig const& joint)
{
    return faultOf(inertiaOf(joint.inertiaMatrix), facts.tolerances.inertia) == InertiaFault::none;
}

/// The pairs that have centres of mass to compare.
std::vector<JointPair const*> massivePairs(Facts const& facts)
{
    std::vector<JointPair const*> pairs;
    for (JointPair const& pair : facts.jointPairs) {
        bool const haveCenters = pair.first.mass != 0.0F && pair.second.mass != 0.0F;
        if (haveCenters && areComparable(facts, pair)) {
            pairs.push_back(&pair);
        }
    }
    return pairs;
}

}  // namespace

Eigen::Matrix3d rotationOf(Pose const& pose)
{
    return Eigen::Map<Eigen::Matrix<double, 3, 3, Eigen::RowMajor> const>(pose.rotation[0].data());
}

Eigen::Matrix3d reflectionOf(MirrorPlane const& plane)
{
    Vector3d diagonal = Vector3d::Ones();
    diagonal[static_cast<Eigen::Index>(plane.axis)] = -1.0;
    return diagonal.asDiagonal();
}

Vector3d vectorOf(Position3D const& position)
{
    return {static_cast<double>(position.x), static_cast<double>(position.y), static_cast<double>(position.z)};
}

bool areComparable(Facts const& facts, JointPair const& pair)
{
    bool const areReached = facts.placeOf(pair.first).isReached && facts.placeOf(pair.second).isReached;
    return areReached && pair.side.isLimb && pair.side.isSure && pair.side.isTurned && !pair.side.isAskew;
}

Vector3d armOf(Facts const& facts, JointConfig const& joint, Vector3d const& point)
{
    PlacedJoint const& place = facts.placeOf(joint);
    return rotationOf(place.link) * point + Vector3d::Map(place.link.translation.data()) -
           Vector3d::Map(place.frame.translation.data());
}

Vector3d missOfPoints(Facts const& facts, JointPair const& pair, Vector3d const& first, Vector3d const& second)
{
    Vector3d const miss =
        reflectionOf(facts.sides.plane) * armOf(facts, pair.first, first) - armOf(facts, pair.second, second);
    bool const isDisplaced = !pair.side.isPlaced;
    return isDisplaced ? miss : Vector3d(miss + Vector3d::Map(pair.side.miss.data()));
}

double pointTolerance(Facts const& facts)
{
    return facts.tolerances.centerOfMass * std::max(1.0, facts.sides.size);
}

bool haveOneMesh(JointPair const& pair)
{
    auto const& one = pair.first.shapes.visuals;
    auto const& other = pair.second.shapes.visuals;
    bool const areScaledAlike =
        std::equal(one.begin(), one.end(), other.begin(), other.end(), [](auto const& a, auto const& b) {
            Position3D const& first = a.geometry.scale;
            Position3D const& second = b.geometry.scale;
            return a.geometry.uri == b.geometry.uri && first.x == second.x && first.y == second.y &&
                   first.z == second.z;
        });
    return pair.first.meshName == pair.second.meshName && areScaledAlike &&
           !(pair.first.meshName.empty() && one.empty());
}

bool areSidesCopies(Facts const& facts)
{
    std::ptrdiff_t reflections = 0;
    std::ptrdiff_t copies = 0;
    for (JointPair const* pair : massivePairs(facts)) {
        Misses const misses = centerMisses(facts, *pair);
        reflections += isReflection(misses) && !isCopy(misses) ? 1 : 0;
        copies += isCopy(misses) && !isReflection(misses) ? 1 : 0;
    }
    return copies > 1 && copies > reflections;
}

void findComNotMirrored(Facts const& facts, Report const& report)
{
    forEachMiss(facts, massivePairs(facts), centerMisses, [&](JointPair const& pair, double miss) {
        bool const isFirst = isFirstOdd(facts, pair, [&](JointConfig const& one, JointConfig const& other) {
            Vector3d const difference = centerOf(one).cwiseAbs() - centerOf(other).cwiseAbs();
            return difference.norm() <= pointTolerance(facts);
        });
        report.ofPair(pair, isFirst, Part::centerOfMass,
                      "The centres of mass of " + namesOf(pair.first, pair.second) +
                          " miss each other's reflection by " + rounded(miss) + " m.");
    });
}

void findInertiaNotMirrored(Facts const& facts, Report const& report)
{
    std::vector<JointPair const*> pairs;
    for (JointPair const& pair : facts.jointPairs) {
        if (isPossible(facts, pair.first) && isPossible(facts, pair.second) && areComparable(facts, pair)) {
            pairs.push_back(&pair);
        }
    }
    forEachMiss(facts, pairs, inertiaMisses, [&](JointPair const& pair, double miss) {
        bool const isFirst = isFirstOdd(facts, pair, [&](JointConfig const& one, JointConfig const& other) {
            Inertia const entries = inertiaOf(one.inertiaMatrix).cwiseAbs();
            return (entries - inertiaOf(other.inertiaMatrix).cwiseAbs()).cwiseAbs().maxCoeff() <=
                   facts.tolerances.inertia * entries.maxCoeff();
        });
        report.ofPair(pair, isFirst, Part::inertia,
                      "The inertias of " + namesOf(pair.first, pair.second) + " miss each other's reflection by " +
                          rounded(miss) + " kg*m^2.");
    });
}

}  // namespace Varo::Model::Rules
