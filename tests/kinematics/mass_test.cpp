#include <gmock/gmock.h>

#include "descriptions.hpp"
#include "sim/kinematics.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"

namespace KinematicsTest {

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;

constexpr double tolerance = 1e-6;

/// A point of 1 kg at the origin, and a body of 3 kg that a joint at x = 1 carries 1 m in front of it.
std::string const swing =
    "<robotDescription name=\"Swing\"><root name=\"Base\"><mass value=\"1\"/></root>"
    "<joint name=\"Turn\" min=\"-2\" max=\"2\"><placement xyz=\"1 0 0\"/>"
    "<mass value=\"3\" com=\"1 0 0\" inertia=\"1 0 0 0 2 0 0 0 4\"/></joint>"
    "<chain name=\"Arm\" parent=\"Base\"><jointRef name=\"Turn\"/></chain></robotDescription>";

void expectInertia(Sim::MassProperties const& actual, std::array<double, 9> const& expected)
{
    EXPECT_THAT(actual.inertia, Pointwise(DoubleNear(tolerance), expected));
}

TEST(Masses, AddUpToOneBody)
{
    Sim::Model const model(swing);
    Sim::Kinematics const kinematics(model);
    Sim::Configuration configuration(kinematics);
    configuration.set("Turn", 1.5707963267948966);

    Sim::MassProperties const all = kinematics.massProperties(configuration);
    EXPECT_EQ(all.mass, 4.0);
    // The body is at (1, 1, 0), and its x axis points along y.
    EXPECT_THAT(all.centerOfMass, ElementsAre(DoubleNear(0.75, tolerance), DoubleNear(0.75, tolerance), 0.0));
    // Two points at a distance d of each other: their reduced mass, 3/4 kg, times |d|^2 - d d^T.
    expectInertia(all, {2 + 0.75, -0.75, 0, -0.75, 1 + 0.75, 0, 0, 0, 4 + 1.5});

    Sim::MassProperties const arm = kinematics.massProperties(configuration, *model.link("TurnLink"));
    EXPECT_EQ(arm.mass, 3.0);
    EXPECT_THAT(arm.centerOfMass, ElementsAre(DoubleNear(1, tolerance), DoubleNear(1, tolerance), 0.0));
    expectInertia(arm, {2, 0, 0, 0, 1, 0, 0, 0, 4});

    // Three quarters of the mass go against x, in double precision.
    EXPECT_THAT(kinematics.centerOfMassJacobian(configuration),
                ElementsAre(DoubleNear(-0.75, 1e-12), DoubleNear(0, 1e-12), 0));
}

TEST(Masses, OfARobotWithoutMassAreZero)
{
    Sim::Model const model("<robot name=\"r\"><link name=\"base\"/></robot>");
    Sim::Kinematics const kinematics(model);
    Sim::MassProperties const none = kinematics.massProperties(Sim::Configuration(kinematics));
    EXPECT_EQ(none.mass, 0.0);
    EXPECT_THAT(none.centerOfMass, ElementsAre(0.0, 0.0, 0.0));
    EXPECT_TRUE(kinematics.centerOfMassJacobian(Sim::Configuration(kinematics)).empty());
}

}  // namespace

}  // namespace KinematicsTest
