#include <algorithm>
#include <cmath>
#include <string>
#include <unordered_map>

#include <Eigen/Geometry>

#include "rules/inertia.hpp"
#include "rules/mirrors.hpp"
#include "rules/rule_codes.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "support/global_poses.hpp"
#include "support/numbers.hpp"
#include "varo/math/eigen.hpp"

namespace Tool::Rules {

namespace {

using Varo::Model::JointConfig;

/// Compares the bodies of mirror pairs where the zero pose puts them: in the axes of the root, whose x-z plane is the
/// mirror, whatever the axes of their links are.
class MirroredBodies {
public:
    MirroredBodies(Facts& facts, Sim::Model const& model) : _facts(facts)
    {
        for (Sim::Joint const* joint : model.joints()) {
            if (joint->childLink() != nullptr) {
                _links.try_emplace(joint->name(), joint->childLink());
            }
        }
    }

    void check(JointConfig const& first, JointConfig const& second)
    {
        checkMass(first, second);
        if (_links.count(first.name) != 0 && _links.count(second.name) != 0) {
            checkCenterOfMass(first, second);
            checkInertia(first, second);
        }
    }

private:
    void checkMass(JointConfig const& first, JointConfig const& second)
    {
        auto const one = static_cast<double>(first.mass);
        auto const other = static_cast<double>(second.mass);
        bool const areMasses = one >= 0.0 && other >= 0.0;
        if (areMasses && std::abs(one - other) > _facts.tolerances.mass * std::max(one, other)) {
            _facts.warn(second, Part::mass, code::massNotMirrored,
                        "The masses of " + namesOf(first, second) + " differ: " + shortest(first.mass) + " kg and " +
                            shortest(second.mass) + " kg.");
        }
    }

    void checkCenterOfMass(JointConfig const& first, JointConfig const& second)
    {
        bool const haveCenters = first.mass != 0.0F && second.mass != 0.0F;
        Eigen::Vector3d const miss = missOf(first, second);
        if (haveCenters && isMiss(miss) && !isCarriedOn(first, second, miss)) {
            _facts.warn(second, Part::centerOfMass, code::comNotMirrored,
                        "The centres of mass of " + namesOf(first, second) + " miss each other's reflection by " +
                            rounded(miss.norm()) + " m.");
        }
    }

    void checkInertia(JointConfig const& first, JointConfig const& second)
    {
        Inertia const one = inertiaOf(first.inertiaMatrix);
        Inertia const other = inertiaOf(second.inertiaMatrix);
        double const tolerance = _facts.tolerances.inertia;
        if (faultOf(one, tolerance) != InertiaFault::none || faultOf(other, tolerance) != InertiaFault::none) {
            return;
        }
        Inertia const reflected = _acrossXZ * inRootAxes(one, first) * _acrossXZ;
        Inertia const present = inRootAxes(other, second);
        double const greatest = std::max(reflected.cwiseAbs().maxCoeff(), present.cwiseAbs().maxCoeff());
        double const miss = (reflected - present).cwiseAbs().maxCoeff();
        if (miss > tolerance * greatest) {
            _facts.warn(second, Part::inertia, code::inertiaNotMirrored,
                        "The inertias of " + namesOf(first, second) + " miss each other's reflection by " +
                            rounded(miss) + " kg*m^2.");
        }
    }

    Eigen::Isometry3d poseOf(JointConfig const& joint)
    {
        return Varo::Math::toEigen(_poses.of(*_links.at(joint.name)->frame())).cast<double>();
    }

    Eigen::Vector3d centerOf(JointConfig const& joint)
    {
        return poseOf(joint) * Varo::Math::toEigen(joint.centerOfMass).cast<double>();
    }

    Inertia inRootAxes(Inertia const& inertia, JointConfig const& joint)
    {
        Eigen::Matrix3d const rotation = poseOf(joint).linear();
        return rotation * inertia * rotation.transpose();
    }

    Eigen::Vector3d missOf(JointConfig const& first, JointConfig const& second)
    {
        return _acrossXZ * centerOf(first) - centerOf(second);
    }

    bool isMiss(Eigen::Vector3d const& miss) const { return miss.norm() > _facts.tolerances.centerOfMass; }

    /// Whether the bodies before these miss by as much: then one of them is in the wrong place, and takes all that
    /// is attached to it along.
    bool isCarriedOn(JointConfig const& first, JointConfig const& second, Eigen::Vector3d const& miss)
    {
        JointConfig const* const beforeFirst = jointBefore(first);
        JointConfig const* const beforeSecond = jointBefore(second);
        if (beforeFirst == nullptr || beforeSecond == nullptr ||
            !areMutual(_facts.records->joints, *beforeFirst, *beforeSecond)) {
            return false;
        }
        Eigen::Vector3d const missBefore = missOf(*beforeFirst, *beforeSecond);
        return isMiss(missBefore) && !isMiss(miss - missBefore);
    }

    JointConfig const* jointBefore(JointConfig const& joint) const
    {
        Sim::Joint const* const before = _links.at(joint.name)->parentJoint()->parentLink()->parentJoint();
        return before == nullptr ? nullptr : _facts.records->joints.find(before->name());
    }

    Facts& _facts;
    GlobalPoses _poses;
    std::unordered_map<std::string, Sim::Link const*> _links;  // by the name of the joint that moves them
    Eigen::DiagonalMatrix<double, 3> _acrossXZ{1.0, -1.0, 1.0};
};

}  // namespace

void checkMirroredBodies(Facts& facts, Sim::Model const& model)
{
    MirroredBodies bodies(facts, model);
    forEachPair(facts.records->joints,
                [&](JointConfig const& first, JointConfig const& second) { bodies.check(first, second); });
}

}  // namespace Tool::Rules
