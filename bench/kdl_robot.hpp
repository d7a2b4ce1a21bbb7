#ifndef VARO_BENCH_KDL_ROBOT_HPP
#define VARO_BENCH_KDL_ROBOT_HPP

#include <memory>
#include <vector>

#include "sim/kinematics.hpp"
#include "sim/model.hpp"

namespace Sim {
class Link;
}

namespace Bench {

/// A model's tree in KDL, with one segment for each joint and its link. The model's joints turn, and none follows.
class KdlRobot {
public:
    /// Jacobians are those of the link.
    KdlRobot(Sim::Model const& model, Sim::Link const& link);
    ~KdlRobot();

    void setValues(Sim::Configuration const& configuration);

    /// All link poses by TreeFkSolverPos_recursive, which is asked of every segment.
    void solvePoses();
    /// All link poses by a loop of our own, which multiplies the poses of KDL's segments once each.
    void multiplyPoses();
    /// The Jacobian of the link by TreeJntToJacSolver, for the columns of all joints.
    void solveTreeJacobian();
    /// The same by ChainJntToJacSolver, for the columns of the joints on the way to the link, as a chain taken out of
    /// the tree beforehand.
    void solveChainJacobian();

    /// The greatest difference of an entry of what the last calls of these computed.
    double differenceOfPoses(std::vector<Sim::Pose> const& linkPoses) const;
    double differenceOfJacobian(std::vector<double> const& entries) const;

private:
    struct Impl;

    std::unique_ptr<Impl> _impl;
};

}  // namespace Bench

#endif
