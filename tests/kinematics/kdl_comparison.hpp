#ifndef VARO_TESTS_KINEMATICS_KDL_COMPARISON_HPP
#define VARO_TESTS_KINEMATICS_KDL_COMPARISON_HPP

#include <gtest/gtest.h>
#include <kdl/jacobian.hpp>
#include <kdl/jntarray.hpp>
#include <kdl/tree.hpp>

#include "configurations.hpp"

// What both comparisons with KDL have in common.
namespace KinematicsTest {

constexpr int configurationCount = 100;

using Matrix = Eigen::MatrixXd;

/// A tree that its own solvers number the joints of as it does, since copies number them anew, and that has a joint at
/// least, since KDL reads a value for fixed joints, too.
inline KDL::Tree settled(KDL::Tree tree)
{
    tree.addSegment(KDL::Segment("unused", KDL::Joint(KDL::Joint::RotZ)), tree.getRootSegment()->first);
    return KDL::Tree(tree);
}

/// How fast KDL's joints move when a variable does: a column for each variable. `valuesOf` says where they stand.
template <class ValuesOf>
Matrix couplingsOf(Sim::Kinematics const& kinematics, ValuesOf const& valuesOf)
{
    Sim::Configuration const zero(kinematics);
    KDL::JntArray const still = valuesOf(zero);
    Matrix couplings(still.rows(), static_cast<Eigen::Index>(zero.size()));
    for (std::size_t i = 0; i < zero.size(); ++i) {
        Sim::Configuration moved = zero;
        moved.set(i, 1.0);
        couplings.col(static_cast<Eigen::Index>(i)) = valuesOf(moved).data - still.data;
    }
    return couplings;
}

/// Lengths may differ by the tolerance times the robot's size, directions by the tolerance.
struct Allowed {
    double tolerance;
    double size;

    void expectPose(Sim::Pose const& actual, KDL::Frame const& expected) const
    {
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 3; ++column) {
                EXPECT_NEAR(actual(row, column), expected.M(row, column), tolerance);
            }
            EXPECT_NEAR(actual(row, 3), expected.p(row), tolerance * size);
        }
    }

    void expectPoint(Sim::Vector3 const& actual, KDL::Vector const& expected) const
    {
        for (int i = 0; i < 3; ++i) {
            EXPECT_NEAR(actual[static_cast<std::size_t>(i)], expected(i), tolerance * size);
        }
    }

    /// Of six rows or, linear ones only, of three.
    void expectJacobian(std::vector<double> const& entries, Matrix const& expected) const
    {
        Eigen::Map<Matrix const> const actual(entries.data(), expected.rows(), expected.cols());
        Matrix const difference = actual - expected;
        EXPECT_LE(difference.topRows(3).lpNorm<Eigen::Infinity>(), tolerance * size);
        EXPECT_LE(difference.bottomRows(expected.rows() - 3).lpNorm<Eigen::Infinity>(), tolerance);
    }
};

}  // namespace KinematicsTest

#endif
