#include <gmock/gmock.h>

#include "descriptions.hpp"
#include "sim/actuator.hpp"
#include "sim/actuator_group.hpp"
#include "sim/joint.hpp"
#include "sim/joint_group.hpp"
#include "sim/model.hpp"

namespace {

using namespace Tests;
using testing::ElementsAre;
using testing::IsEmpty;

std::string const joints = joint("A1") + joint("A2") + joint("A3") + joint("B1");
std::string const chainA = chain("A", "Base", {"A1", "A2", "A3"});
std::string const chainB = chain("B", "A2", {"B1"});
std::string const hand = actuator("Hand", "A3", "<group>" + subJoint("F1") + subJoint("F2") + "</group>");

}  // namespace

TEST(JointGroups, ListAJointAsOftenAsChainsDo)
{
    Sim::Model const model(robot(joints + chain("A", "Base", {"A1", "A2", "A1"}) + chain("Z", "A2", {"A1", "A3"})));
    EXPECT_THAT(namesOf(model.jointGroupsOfJoint("A1")), ElementsAre("A", "A", "Z"));
}

TEST(ActuatorGroups, FormATreeAmongThoseListedEarlier)
{
    Sim::Model const inOrder(robot(joints + chainA + chainB));
    EXPECT_EQ(inOrder.actuatorGroup("B")->parent(), inOrder.actuatorGroup("A"));
    EXPECT_EQ(inOrder.actuatorGroup("A")->parent(), nullptr);
    Sim::Model const reversed(robot(joints + chainB + chainA));
    EXPECT_EQ(reversed.actuatorGroup("B")->parent(), nullptr) << "its parent's group came later";
}

TEST(ActuatorGroups, AreFoundByTheJointsThatTheyDrive)
{
    std::string const grip = actuator("Grip", "A1", "<group><jointRef name='A2' ratio='1'/></group>");
    Sim::Model const model(robot(joints + hand + grip + chainA + chainB + wheel("W", "A3"), "Helvo"));
    EXPECT_THAT(namesOf(model.actuatorGroupsOfJoint("A1")), ElementsAre("A"));
    EXPECT_THAT(namesOf(model.actuatorGroupsOfJoint("A2")), ElementsAre("A", "A")) << "by its own motor and by Grip";
    EXPECT_THAT(namesOf(model.jointGroupsOfJoint("A2")), ElementsAre("Grip", "A"));
    EXPECT_THAT(namesOf(model.actuatorGroupsOfJoint("F1")), ElementsAre("A"));
    EXPECT_THAT(namesOf(model.actuatorGroupsOfJoint("B1")), ElementsAre("B"));
    EXPECT_THAT(model.actuatorGroupsOfJoint("W"), IsEmpty());
    EXPECT_THAT(model.actuatorGroupsOfJoint("Hand"), IsEmpty());
}
