#include <algorithm>
#include <cmath>
#include <string>

#include <Eigen/Core>

#include "rules/inertia.hpp"
#include "rules/numbers.hpp"
#include "rules/rules.hpp"

/// The bodies of mirror pairs are compared where the zero pose puts them: in the axes of the root, whose x-z plane is
/// the mirror, whatever the axes of their links are.
namespace Varo::Model::Rules {

namespace {

using Eigen::Vector3d;

Eigen::DiagonalMatrix<double, 3> const acrossXZ(1.0, -1.0, 1.0);

Eigen::Matrix3d rotationOf(Pose const& pose)
{
    return Eigen::Map<Eigen::Matrix<double, 3, 3, Eigen::RowMajor> const>(pose.rotation[0].data());
}

bool areReached(Facts const& facts, Pair<JointConfig> const& pair)
{
    return facts.placeOf(pair.first).isReached && facts.placeOf(pair.second).isReached;
}

Vector3d centerOf(Facts const& facts, JointConfig const& joint)
{
    Pose const& link = facts.placeOf(joint).link;
    Position3D const& center = joint.centerOfMass;
    Vector3d const inLink(static_cast<double>(center.x), static_cast<double>(center.y), static_cast<double>(center.z));
    return rotationOf(link) * inLink + Vector3d::Map(link.translation.data());
}

Vector3d missOf(Facts const& facts, JointConfig const& first, JointConfig const& second)
{
    return acrossXZ * centerOf(facts, first) - centerOf(facts, second);
}

bool isMiss(Facts const& facts, Vector3d const& miss)
{
    return miss.norm() > facts.tolerances.centerOfMass;
}

JointConfig const* jointBefore(Facts const& facts, JointConfig const& joint)
{
    std::size_t const before = facts.placeOf(joint).before;
    return before == none ? nullptr : &facts.records->joints[before];
}

/// Whether the bodies before these miss by as much: then one of them is in the wrong place, and takes all that is
/// attached to it along.
bool isCarriedOn(Facts const& facts, Pair<JointConfig> const& pair, Vector3d const& miss)
{
    JointConfig const* const beforeFirst = jointBefore(facts, pair.first);
    JointConfig const* const beforeSecond = jointBefore(facts, pair.second);
    if (beforeFirst == nullptr || beforeSecond == nullptr ||
        !areMutual(facts.records->joints, *beforeFirst, *beforeSecond)) {
        return false;
    }
    Vector3d const missBefore = missOf(facts, *beforeFirst, *beforeSecond);
    return isMiss(facts, missBefore) && !isMiss(facts, miss - missBefore);
}

Inertia inRootAxes(Facts const& facts, Inertia const& inertia, JointConfig const& joint)
{
    Eigen::Matrix3d const rotation = rotationOf(facts.placeOf(joint).link);
    return rotation * inertia * rotation.transpose();
}

}  // namespace

void findMassNotMirrored(Facts const& facts, Report const& report)
{
    for (auto const& [first, second] : facts.jointPairs) {
        auto const one = static_cast<double>(first.mass);
        auto const other = static_cast<double>(second.mass);
        bool const areMasses = one >= 0.0 && other >= 0.0;
        if (areMasses && std::abs(one - other) > facts.tolerances.mass * std::max(one, other)) {
            report.at(second, Part::mass,
                      "The masses of " + namesOf(first, second) + " differ: " + shortest(first.mass) + " kg and " +
                          shortest(second.mass) + " kg.");
        }
    }
}

void findComNotMirrored(Facts const& facts, Report const& report)
{
    for (auto const& pair : facts.jointPairs) {
        bool const haveCenters = pair.first.mass != 0.0F && pair.second.mass != 0.0F;
        if (!haveCenters || !areReached(facts, pair)) {
            continue;
        }
        Vector3d const miss = missOf(facts, pair.first, pair.second);
        if (isMiss(facts, miss) && !isCarriedOn(facts, pair, miss)) {
            report.at(pair.second, Part::centerOfMass,
                      "The centres of mass of " + namesOf(pair.first, pair.second) +
                          " miss each other's reflection by " + rounded(miss.norm()) + " m.");
        }
    }
}

void findInertiaNotMirrored(Facts const& facts, Report const& report)
{
    double const tolerance = facts.tolerances.inertia;
    for (auto const& pair : facts.jointPairs) {
        Inertia const one = inertiaOf(pair.first.inertiaMatrix);
        Inertia const other = inertiaOf(pair.second.inertiaMatrix);
        bool const arePossible =
            faultOf(one, tolerance) == InertiaFault::none && faultOf(other, tolerance) == InertiaFault::none;
        if (!arePossible || !areReached(facts, pair)) {
            continue;
        }
        Inertia const reflected = acrossXZ * inRootAxes(facts, one, pair.first) * acrossXZ;
        Inertia const present = inRootAxes(facts, other, pair.second);
        double const greatest = std::max(reflected.cwiseAbs().maxCoeff(), present.cwiseAbs().maxCoeff());
        double const miss = (reflected - present).cwiseAbs().maxCoeff();
        if (miss > tolerance * greatest) {
            report.at(pair.second, Part::inertia,
                      "The inertias of " + namesOf(pair.first, pair.second) + " miss each other's reflection by " +
                          rounded(miss) + " kg*m^2.");
        }
    }
}

}  // namespace Varo::Model::Rules
