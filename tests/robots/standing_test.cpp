#include <cmath>

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

TEST_F(StandingHumanoid, HasMirroredJointsOppositeEachOtherTurningAsTheyState)
{
    int reversedOnes = 0;
    for (Sim::JointSymmetry const* symmetry : model.jointSymmetries()) {
        auto const [left, right] = symmetry->symmetricJoints();
        ASSERT_NE(right, nullptr) << left->name();
        bool const reversed = symmetry->symmetryType() == Sim::JointSymmetry::ReflectedSymmetricReversed;
        reversedOnes += reversed ? 1 : 0;
        EXPECT_NEAR(senseOf(left, right), reversed ? -1 : 1, tolerance) << left->name();
        Position3D const position = poseOf(left).position();
        expectColumn(poseOf(right), 3, position.x, -position.y, position.z);
    }
    EXPECT_EQ(model.jointSymmetries().size(), 11U);
    EXPECT_EQ(reversedOnes, 6);
}

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
    int wheels = 0;
    for (Sim::Link const* link : model.links()) {
        if (link->type() != Sim::Link::Wheel) {
            continue;
        }
        ++wheels;
        // A solid disc turns about its axis with half its mass times the radius squared.
        float const radius = std::sqrt(2 * link->mass()->inertiaMatrix().front() / link->mass()->mass());
        Position3D const hub = poseOf(link).position();
        EXPECT_NEAR(hub.z - radius, -0.24F, tolerance) << link->name();
        expectColumn(poseOf(link->parentJoint()), 2, 0, 1, 0);
        EXPECT_EQ(hub.x > 0, link->name().find("Front") == 0) << link->name();
        EXPECT_EQ(hub.y > 0, link->name().find("Left") != std::string::npos) << link->name();
    }
    EXPECT_EQ(wheels, 4);
    EXPECT_GT(poseOf(model.cameraSensor("MastCamera")).position().z, 0.4F);
}

}  // namespace
