#include <Eigen/Geometry>
#include <gtest/gtest.h>

#include "configurations.hpp"
#include "descriptions.hpp"
#include "sim/eigen.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"
#include "sim/sensor.hpp"

namespace KinematicsTest {

namespace {

constexpr double step = 1e-5;  // rad, or m

using Matrix = Eigen::MatrixXd;

/// How fast a vector changes with each value, by central differences.
template <class VectorOf>
Matrix differences(Sim::Configuration const& configuration, VectorOf const& vectorOf)
{
    Matrix columns(vectorOf(configuration, configuration).size(), static_cast<Eigen::Index>(configuration.size()));
    for (std::size_t i = 0; i < configuration.size(); ++i) {
        Sim::Configuration before = configuration;
        Sim::Configuration after = configuration;
        before.set(i, configuration[i] - step);
        after.set(i, configuration[i] + step);
        columns.col(static_cast<Eigen::Index>(i)) = vectorOf(before, after) / (2 * step);
    }
    return columns;
}

/// The way of the frame's origin, and the rotation, between two configurations.
Eigen::VectorXd motion(Sim::Kinematics const& kinematics, Sim::Frame const& frame, Sim::Configuration const& before,
                       Sim::Configuration const& after)
{
    Eigen::Isometry3d const from = Sim::toEigen(kinematics.pose(before, frame));
    Eigen::Isometry3d const to = Sim::toEigen(kinematics.pose(after, frame));
    Eigen::AngleAxisd const turn(Eigen::Matrix3d(to.linear() * from.linear().transpose()));
    Eigen::VectorXd both(6);
    both << to.translation() - from.translation(), turn.angle() * turn.axis();
    return both;
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

void expectJacobians(Sim::Kinematics const& kinematics, Sim::Configuration const& configuration,
                     Sim::Frame const& frame, Sim::Frame const& axes)
{
    Matrix const expected = differences(
        configuration, [&](auto const& before, auto const& after) { return motion(kinematics, frame, before, after); });
    expectClose(Sim::jacobian(kinematics, configuration, frame), expected);
    expectClose(Sim::jacobian(kinematics, configuration, frame, &axes),
                along(kinematics.pose(configuration, axes), expected));
}

void expectCenterOfMassJacobian(Sim::Kinematics const& kinematics, Sim::Configuration const& configuration,
                                Sim::Frame const& axes)
{
    auto const com = [&](Sim::Configuration const& at) {
        return Sim::toEigen(kinematics.massProperties(at).centerOfMass);
    };
    Matrix const expected = differences(configuration, [&](auto const& before, auto const& after) -> Eigen::VectorXd {
        return com(after) - com(before);
    });
    expectClose(Sim::centerOfMassJacobian(kinematics, configuration), expected);
    expectClose(Sim::centerOfMassJacobian(kinematics, configuration, &axes),
                along(kinematics.pose(configuration, axes), expected));
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
        auto const expectAll = [&](auto const& elements) {
            for (auto const* const element : elements) {
                SCOPED_TRACE(element->name());
                expectJacobians(kinematics, configuration, *element->frame(), axes);
            }
        };
        expectAll(model.links());
        expectAll(model.joints());
        expectAll(model.sensors());
        expectCenterOfMassJacobian(kinematics, configuration, axes);
    }
}

TEST(Jacobians, AddTheColumnsOfJointsThatFollow)
{
    // Two joints 1 m apart turn about z; the second one turns back as fast as the first one turns.
    std::string const text = Tests::robot(
        Tests::joint("A") + Tests::joint("B", "<placement xyz=\"1 0 0\"/>") +
        Tests::joint("C", "<placement xyz=\"1 0 0\"/>") + Tests::chain("Arm", "Base", {"A", "B", "C"}) +
        Tests::actuator(
            "Both", "C",
            "<group><jointRef name=\"A\" ratio=\"1\"/></group><group><jointRef name=\"B\" ratio=\"-1\"/></group>"));
    Sim::Model const model(text);
    Sim::Kinematics const kinematics(model);
    ASSERT_EQ(kinematics.variables().size(), 2U);
    EXPECT_EQ(kinematics.variables()[0].name, "A");
    Matrix const jacobian = Sim::jacobian(kinematics, Sim::Configuration(kinematics), kinematics.frame("CLink"));
    Matrix expected = Matrix::Zero(6, 2);
    expected(1, 0) = 2.0 - 1.0;
    expected(5, 1) = 1.0;
    EXPECT_TRUE(jacobian.isApprox(expected, 1e-12)) << jacobian;
}

}  // namespace

}  // namespace KinematicsTest
