#include <cmath>

#include <gmock/gmock.h>

#include "example_robots.hpp"
#include "sim/angle_actuator.hpp"
#include "sim/camera_sensor.hpp"
#include "sim/fsr_sensor.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/mass_data.hpp"

using Tests::poseOf;
using Varo::Math::Position3D;
using Varo::Math::Transform;

namespace {

constexpr float tolerance = 1e-5F;

void expectDirection(Transform const& pose, int column, float x, float y, float z)
{
    EXPECT_NEAR(pose(0, column), x, tolerance);
    EXPECT_NEAR(pose(1, column), y, tolerance);
    EXPECT_NEAR(pose(2, column), z, tolerance);
}

TEST(StandingHumanoid, HasItsSolesOnTheGroundAndItsHeadOnTop)
{
    Sim::Model const model(Tests::examplePath("humanoid"));
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

TEST(StandingHumanoid, HasLinksParallelToItsRootBesidesTheFingers)
{
    Sim::Model const model(Tests::examplePath("humanoid"));
    for (Sim::AngleActuator const* actuator : model.angleActuators()) {
        Transform const pose = poseOf(actuator->controlledJoint()->childLink());
        expectDirection(pose, 0, 1, 0, 0);
        expectDirection(pose, 2, 0, 0, 1);
    }
}

TEST(StandingHumanoid, ClosesItsFingersTowardsTheBody)
{
    // A sub-joint flexes about -y of its link, from x towards z.
    Sim::Model const model(Tests::examplePath("humanoid"));
    for (std::string const finger : {"Fore1", "Fore3", "Hind1", "Hind3"}) {
        expectDirection(poseOf(model.link("L" + finger + "Link")), 0, 0, 0, -1);
        expectDirection(poseOf(model.link("L" + finger + "Link")), 2, 0, -1, 0);
        expectDirection(poseOf(model.link("R" + finger + "Link")), 2, 0, 1, 0);
    }
    expectDirection(poseOf(model.link("LThumb2Link")), 2, 0, -1, 0);
    expectDirection(poseOf(model.link("RThumb2Link")), 2, 0, 1, 0);
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
        expectDirection(poseOf(link->parentJoint()), 2, 0, 1, 0);
        EXPECT_EQ(hub.x > 0, link->name().find("Front") == 0) << link->name();
        EXPECT_EQ(hub.y > 0, link->name().find("Left") != std::string::npos) << link->name();
    }
    EXPECT_EQ(wheels, 4);
    EXPECT_GT(poseOf(model.cameraSensor("MastCamera")).position().z, 0.4F);
}

TEST(StandingArm, ReachesStraightUp)
{
    Sim::Model const model(Tests::examplePath("helvo_arm"));
    float below = -1;
    for (std::string const name : {"Foot", "BaseTurn", "ShoulderBend", "ElbowBend", "WristBend", "WristTurn", "LJaw"}) {
        Position3D const position = poseOf(model.link(name + "Link")).position();
        EXPECT_GT(position.z, below) << name;
        EXPECT_NEAR(position.x, 0, tolerance) << name;
        below = position.z;
    }
    EXPECT_NEAR(below, 0.86F, tolerance);
}

}  // namespace
