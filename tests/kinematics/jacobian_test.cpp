#include <Eigen/Geometry>
#include <gtest/gtest.h>

#include "configurations.hpp"
#include "sim/eigen.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"

namespace KinematicsTest {

namespace {

constexpr double step = 1e-5;  // rad, or m

using Matrix = Eigen::MatrixXd;

/// What a value of each joint does: the difference that it makes between two configurations, by central differences.
template <class Difference>
Matrix differences(Sim::Configuration const& configuration, Eigen::Index rows, Difference const& between)
{
    Matrix columns(rows, static_cast<Eigen::Index>(configuration.size()));
    for (std::size_t i = 0; i < configuration.size(); ++i) {
        Sim::Configuration before = configuration;
        Sim::Configuration after = configuration;
        before.set(i, configuration[i] - step);
        after.set(i, configuration[i] + step);
        columns.col(static_cast<Eigen::Index>(i)) = between(before, after);
    }
    return columns / (2 * step);
}

/// How fast the frame's origin moves and the frame turns.
Matrix differences(Sim::Kinematics const& kinematics, Sim::Configuration const& configuration, Sim::Frame const& frame)
{
    return differences(configuration, 6, [&](auto const& before, auto const& after) {
        Eigen::Isometry3d const from = Sim::toEigen(kinematics.pose(before, frame));
        Eigen::Isometry3d const to = Sim::toEigen(kinematics.pose(after, frame));
        Eigen::AngleAxisd const turn(Eigen::Matrix3d(to.linear() * from.linear().transpose()));
        return (Eigen::VectorXd(6) << to.translation() - from.translation(), turn.angle() * turn.axis()).finished();
    });
}

void expectClose(Matrix const& actual, Matrix const& expected)
{
    double const scale = std::max(1.0, expected.lpNorm<Eigen::Infinity>());
    EXPECT_LE((actual - expected).lpNorm<Eigen::Infinity>(), 1e-6 * scale);
}

/// The columns, each vector of three along the axes of a frame.
Matrix along(Sim::Pose const& axes, Matrix matrix)
{
    Eigen::Matrix3d const rotation = Sim::toEigen(axes).linear().transpose();
    for (Eigen::Index row = 0; row < matrix.rows(); row += 3) {
        matrix.middleRows(row, 3) = rotation * matrix.middleRows(row, 3);
    }
    return matrix;
}

TEST(Jacobians, AreTheLimitsOfDifferences)
{
    std::mt19937 generator;
    for (std::string const& file : ownRobots()) {
        SCOPED_TRACE(file);
        Sim::Model const model(file);
        Sim::Kinematics const kinematics(model);
        auto const configuration = randomConfiguration(kinematics, generator);
        Sim::Frame const& axes = *model.links().back()->frame();
        Sim::Pose const axesPose = kinematics.pose(configuration, axes);
        forEachFrame(model, [&](Sim::Frame const& frame) {
            Matrix const expected = differences(kinematics, configuration, frame);
            expectClose(Sim::jacobian(kinematics, configuration, frame), expected);
            expectClose(Sim::jacobian(kinematics, configuration, frame, &axes), along(axesPose, expected));
        });
        auto const centerOfMass = [&](auto const& at) {
            return Sim::toEigen(kinematics.massProperties(at).centerOfMass);
        };
        Matrix const expected = differences(configuration, 3, [&](auto const& before, auto const& after) {
            return Eigen::Vector3d(centerOfMass(after) - centerOfMass(before));
        });
        expectClose(Sim::centerOfMassJacobian(kinematics, configuration), expected);
        expectClose(Sim::centerOfMassJacobian(kinematics, configuration, &axes), along(axesPose, expected));
    }
}

}  // namespace

}  // namespace KinematicsTest
