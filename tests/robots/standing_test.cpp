#include <cmath>
#include <set>

#include <gmock/gmock.h>

#include "example_robots.hpp"
#include "sim/angle_actuator.hpp"
#include "sim/camera_sensor.hpp"
#include "sim/fsr_sensor.hpp"
#include "sim/joint.hpp"
#include "sim/joint_symmetry.hpp"
#include "sim/link.hpp"
#include "sim/mass_data.hpp"

using Tests::poseOf;
using Varo::Math::Position3D;
using Varo::Math::Transform;

namespace {

constexpr float tolerance = 1e-5F;

/// A column of the pose: that of an axis, or the fourth, which is the position.
void expectColumn(Transform const& pose, int column, float x, float y, float z)
{
    EXPECT_NEAR(pose(0, column), x, tolerance);
    EXPECT_NEAR(pose(1, column), y, tolerance);
    EXPECT_NEAR(pose(2, column), z, tolerance);
}

class StandingHumanoid : public testing::Test {
protected:
    Sim::Model const model{Tests::examplePath("humanoid")};
};

TEST_F(StandingHumanoid, HasItsSolesOnTheGroundAndItsHeadOnTop)
{
    float const ground = poseOf(model.fsrSensors().front()).position().z;
    for (Sim::FSRSensor const* cell : model.fsrSensors()) {
        EXPECT_NEAR(poseOf(cell).position().z, ground, tolerance) << cell->name();
    }
    float const head = poseOf(model.link("NeckNodLink")).position().z;
    for (Sim::Link const* link : model.links()) {
        EXPECT_GT(poseOf(link).position().z, ground + 0.05F) << link->name();
        EXPECT_LE(poseOf(link).position().z, head) << link->name();
    }
    EXPECT_GT(head - ground, 1.2F);
}

TEST_F(StandingHumanoid, HasLinksParallelToItsRootBesidesTheFingers)
{
    for (Sim::AngleActuator const* actuator : model.angleActuators()) {
        Transform const pose = poseOf(actuator->controlledJoint()->childLink());
        expectColumn(pose, 0, 1, 0, 0);
        expectColumn(pose, 2, 0, 0, 1);
    }
}

/// The sense in which equal joint values mirror each other: an axis is a pseudovector.
float senseOf(Sim::Joint const* left, Sim::Joint const* right)
{
    Transform const a = poseOf(left);
    Transform const b = poseOf(right);
    return -a(0, 2) * b(0, 2) + a(1, 2) * b(1, 2) - a(2, 2) * b(2, 2);
}

void expectReflected(Position3D const& left, Position3D const& right)
{
    EXPECT_NEAR(left.x, right.x, tolerance);
    EXPECT_NEAR(left.y, -right.y, tolerance);
    EXPECT_NEAR(left.z, right.z, tolerance);
}

/// The humanoid by what its text states; URDFs, which name their sides and state no mirrors, by what is inferred.
class StandingPairs : public testing::TestWithParam<char const*> {};

TEST_P(StandingPairs, ReflectEachOtherAndTurnAsTheyState)
{
    Sim::Model const model(Tests::examplePath(GetParam()));
    std::set<bool> kinds;
    for (Sim::JointSymmetry const* symmetry : model.jointSymmetries()) {
        auto const [left, right] = symmetry->symmetricJoints();
        ASSERT_NE(right, nullptr) << left->name();
        SCOPED_TRACE(left->name());
        bool const isReversed = symmetry->symmetryType() == Sim::JointSymmetry::ReflectedSymmetricReversed;
        kinds.insert(isReversed);
        // What slides reflects with its axis, a vector; what turns, with the opposite of that.
        bool const isAlike = (senseOf(left, right) > 0) != (left->type() == Sim::Joint::Type::prismatic);
        EXPECT_NE(isReversed, isAlike);
        expectReflected(poseOf(left).position(), poseOf(right).position());
        Sim::MassData const* const a = left->childLink()->mass();
        Sim::MassData const* const b = right->childLink()->mass();
        expectReflected(poseOf(left->childLink()) * a->CoM(), poseOf(right->childLink()) * b->CoM());
        EXPECT_EQ(a->mass(), b->mass());
        if (left->hasMotor()) {
            EXPECT_EQ(left->limits().lower, isAlike ? right->limits().lower : -right->limits().upper);
            EXPECT_EQ(left->limits().upper, isAlike ? right->limits().upper : -right->limits().lower);
        }
    }
    EXPECT_EQ(kinds.size(), 2U);
}

INSTANTIATE_TEST_SUITE_P(All, StandingPairs, testing::Values("humanoid", "quadruped", "mobile_arm"),
                         [](auto const& robot) { return std::string(robot.param); });

TEST_F(StandingHumanoid, ClosesItsFingersTowardsTheBody)
{
    // A sub-joint flexes about -y of its link, from x towards z.
    for (std::string const finger : {"Fore1", "Fore3", "Hind1", "Hind3"}) {
        expectColumn(poseOf(model.link("L" + finger + "Link")), 0, 0, 0, -1);
        expectColumn(poseOf(model.link("L" + finger + "Link")), 2, 0, -1, 0);
        expectColumn(poseOf(model.link("R" + finger + "Link")), 2, 0, 1, 0);
    }
    expectColumn(poseOf(model.link("LThumb2Link")), 2, 0, -1, 0);
    expectColumn(poseOf(model.link("RThumb2Link")), 2, 0, 1, 0);
}

TEST(StandingRover, RollsForwardOnFourWheels)
{
    Sim::Model const model(Tests::examplePath("rover"));
    EXPECT_THAT(model.wheelVelocityActuators(), testing::SizeIs(4));
    for (Sim::WheelVelocityActuator const* motor : model.wheelVelocityActuators()) {
        SCOPED_TRACE(motor->name());
        Sim::Link const* const wheel = motor->controlledJoint()->childLink();
        ASSERT_THAT(wheel->collisions(), testing::SizeIs(1));
        Sim::Collision const disc = wheel->collisions().front();
        // A solid disc turns about its axis with half its mass times the radius squared.
        float const radius = std::sqrt(2 * wheel->mass()->inertiaMatrix().front() / wheel->mass()->mass());
        EXPECT_NEAR(radius, disc.geometry.radius, tolerance);
        EXPECT_NEAR(std::abs(disc.pose(0, 2)), 1, tolerance) << "its axis is that of the wheel";
        Position3D const hub = (poseOf(wheel) * disc.pose).position();
        EXPECT_NEAR(hub.z - radius, -0.24F, tolerance);
        expectColumn(poseOf(wheel->parentJoint()), 2, 0, 1, 0);
        EXPECT_EQ(hub.x > 0, wheel->name().find("Front") == 0);
        EXPECT_EQ(hub.y > 0, wheel->name().find("Left") != std::string::npos);
    }
    EXPECT_GT(poseOf(model.cameraSensor("MastCamera")).position().z, 0.4F);
}

}  // namespace
