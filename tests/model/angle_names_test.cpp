#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fake_robot.hpp"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Varo::Model::angleNames;

TEST(AngleNames, GoChainByChainWithTheActuatorsBehindTheirJoints)
{
    FakeRobot robot;
    robot.addChain("RightArm", "Torso", {"RShoulder", "RWrist"});
    robot.addChain("LeftArm", "Torso", {"LShoulder", "LWrist"});
    robot.addActuator("RThumb", "RWrist");
    robot.addActuator("RFingers", "RWrist");
    robot.addActuator("OnTheRoot", "Torso");
    robot.addActuator("OnAnActuator", "RThumb");
    EXPECT_THAT(angleNames(robot.chainNames, robot.chains, robot.actuators),
                ElementsAre("RShoulder", "RWrist", "RFingers", "RThumb", "LShoulder", "LWrist"));
}

TEST(AngleNames, StandAsOftenAsChainsListThem)
{
    FakeRobot robot;
    robot.addChain("A", "Torso", {"J", "K"});
    robot.addChain("B", "Torso", {"J"});
    robot.addActuator("M", "J");
    EXPECT_THAT(angleNames(robot.chainNames, robot.chains, robot.actuators), ElementsAre("J", "M", "K", "J", "M"));
}

TEST(AngleNames, AreNoneForChainsWithoutARecord)
{
    EXPECT_THAT(angleNames({"Nowhere"}, {}, {}), IsEmpty());
}

}  // namespace
