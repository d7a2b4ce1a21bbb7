#include <stdexcept>

#include "model_of.hpp"

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

/// The torso carries Arm and Tail; two hands and the chain Tool are attached to the arm's Wrist, Nail to HandA.
void fill(FakeRobot& robot)
{
    robot.addChain("Tail", "Torso", {"Tail2", "Tail1"});
    robot.addChain("Arm", "Torso", {"Elbow", "Wrist"});
    robot.addChain("Tool", "Wrist", {"Blade"});
    robot.addActuator("HandB", "Wrist", {{"B1"}});
    robot.addActuator("HandA", "Wrist", {{"A1", "A2"}, {}, {"A3", "A2", "A4"}});
    robot.addActuator("Nail", "HandA", {{"N1"}});
    robot.addActuator("Adrift", "Nowhere");
}

TEST(Structure, OfAChainIsItsJointsAndWhatIsAttachedToThem)
{
    auto const model = modelOf(fill);
    EXPECT_THAT(model.jointNames("Arm"), ElementsAre("Elbow", "Wrist"));
    EXPECT_THAT(model.angleActuatorNames("Arm"), ElementsAre("Elbow", "Wrist"));
    EXPECT_THAT(model.actuatorNames("Arm"), ElementsAre("Elbow", "Wrist", "HandA", "HandB", "Nail"));
    EXPECT_THAT(model.coupledActuatorNames("Arm"), ElementsAre("HandA", "HandB"));
    EXPECT_TRUE(model.jointNames("Nobody").empty() && model.angleActuatorNames("Nobody").empty());
    EXPECT_TRUE(model.actuatorNames("Nobody").empty() && model.coupledActuatorNames("Nobody").empty());
}

TEST(Structure, OfAllChainsIsMergedOrConcatenated)
{
    auto const model = modelOf(fill);
    EXPECT_THAT(model.jointNames(), ElementsAre("Blade", "Elbow", "Tail2", "Tail1", "Wrist"));
    EXPECT_THAT(model.actuatorNames(),
                ElementsAre("Blade", "Elbow", "Tail2", "Tail1", "Wrist", "HandA", "HandB", "Nail"));
    EXPECT_THAT(model.angleActuatorNames(), ElementsAre("Tail2", "Tail1", "Elbow", "Wrist", "Blade"));
    EXPECT_THAT(model.coupledActuatorNames(), ElementsAre("HandA", "HandB"));
}

TEST(Structure, GoesByTheNamesThatRecordsAreListedUnder)
{
    auto const model = modelOf([](FakeRobot& robot) {
        fill(robot);
        robot.joints["Elbow"].name = "Wrist";  // as its record states it
    });
    EXPECT_THAT(model.angleActuatorNames("Arm"), ElementsAre("Elbow", "Wrist"));
    EXPECT_THAT(model.followingJoints(model.findJoint("Elbow")->name), ElementsAre("A1", "A3", "B1", "Blade"));
}

TEST(Structure, TellsRecordsOfDifferentKindsByOneNameApart)
{
    auto const model = modelOf([](FakeRobot& robot) {
        fill(robot);
        robot.addActuator("Elbow", "Wrist");
    });
    for (Varo::Model::ActuatorConfig const& actuator : model.records().actuators) {
        std::string parent;
        EXPECT_TRUE(model.parentJointFromActuator(actuator.name, parent));
        EXPECT_EQ(parent, actuator.parentJoint) << actuator.name;
    }
}

TEST(Structure, LeavesJointsWithoutMotorOutAndKeepsWhatIsAttachedToThem)
{
    auto const model = modelOf([](FakeRobot& robot) {
        fill(robot);
        robot.addActuator("Wrist", "Blade");  // of the name of a joint without motor
        robot.joints["Wrist"].hasMotor = robot.joints["Tail1"].hasMotor = false;
    });
    EXPECT_THAT(model.jointNames("Arm"), ElementsAre("Elbow", "Wrist"));
    EXPECT_THAT(model.angleActuatorNames(), ElementsAre("Tail2", "Elbow", "Blade"));
    EXPECT_THAT(model.actuatorNames("Arm"), ElementsAre("Elbow", "HandA", "HandB", "Nail"));
    EXPECT_THAT(model.actuatorNames(),
                ElementsAre("Blade", "Elbow", "HandA", "HandB", "Nail", "Tail2", "Wrist", "HandA", "HandB", "Nail"));
    EXPECT_THAT(model.coupledActuatorNames(), ElementsAre("HandA", "HandB", "Wrist"));
    float angle = 1.0F;
    EXPECT_FALSE(model.startAngle("Tail1", angle));
    EXPECT_TRUE(model.startAngle("HandA", angle));
}

TEST(Structure, MergesUnsortedListsByWalkingThem)
{
    using Names = std::vector<std::string>;
    struct {
        std::vector<Names> chains;
        Names merged;
    } const cases[] = {
        {{{"b", "a"}, {"c"}}, {"b", "a", "c"}},
        {{{"c"}, {"b", "a"}}, {"b", "a", "c"}},
        {{{"a", "c"}, {"b"}}, {"a", "b", "c"}},
        {{{"b"}, {"a", "b", "b"}, {"b", "A"}}, {"a", "b", "b", "b", "b", "A"}},
        {{{"d", "b"}, {"c", "e", "a"}, {}, {"d", "a"}}, {"c", "d", "b", "d", "a", "e", "a"}},
    };
    for (auto const& [chains, merged] : cases) {
        auto const model = modelOf([&chains = chains](FakeRobot& robot) {
            for (Names const& joints : chains) {
                robot.addChain("Chain" + std::to_string(robot.chains.size()), "Torso", joints);
            }
        });
        EXPECT_THAT(model.jointNames(), ElementsAreArray(merged));
    }
}

TEST(Structure, GivesAJointToTheFirstChainOfTheDescription)
{
    auto model = modelOf([](FakeRobot& robot) {
        robot.addChain("Z", "Torso", {"Shared"});
        robot.addChain("A", "Torso", {"Shared", "Own"});
        robot.chainNames.insert(robot.chainNames.begin(), "Unrecorded");
    });
    EXPECT_EQ(model.chainNameFromJoint("Shared"), "Z");
    EXPECT_EQ(model.chainNameFromJoint("Own"), "A");
    EXPECT_EQ(model.chainNameFromJoint("Torso"), "");
}

TEST(Following, IsWhatIsAttachedToAJointInBuildingOrder)
{
    auto const model = modelOf(fill);
    EXPECT_THAT(model.followingJoints("Torso"), ElementsAre("Tail2", "Elbow"));
    EXPECT_THAT(model.followingJoints("Elbow"), ElementsAre("Wrist"));
    EXPECT_THAT(model.followingJoints("Wrist"), ElementsAre("A1", "A3", "B1", "Blade"));
    EXPECT_THAT(model.chainAnchorJoints("Wrist"), ElementsAre("A1", "A3", "B1"));
    EXPECT_THAT(model.followingJoints("A2"), ElementsAre("A4"));
    EXPECT_THAT(model.followingJoints("Blade"), IsEmpty());
    EXPECT_THAT(model.followingJoints("Nobody"), IsEmpty());
    // On a joint that no chain lists, an actuator has anchors that do not follow.
    EXPECT_THAT(model.followingJoints("HandA"), IsEmpty());
    EXPECT_THAT(model.chainAnchorJoints("HandA"), ElementsAre("N1"));

    std::vector<std::string> out = {"kept"};
    model.followingJointsFromSubactuators("A1", out);
    model.followingJointsFromSubactuators("A4", out);
    EXPECT_THAT(out, ElementsAre("kept", "A2"));
}

TEST(Following, RepeatsWhatSeveralChainsSay)
{
    auto const model = modelOf([](FakeRobot& robot) {
        robot.addChain("Z", "Torso", {"Shared", "Next", "Shared", "Last"});
        robot.addChain("Child", "Shared", {"First"});
        robot.addChain("Empty", "Shared", {});
        robot.addChain("Self", "Shared", {"Shared"});
        robot.addActuator("Hand", "Shared", {{"Thumb", "Tip", "Thumb"}, {"Shared", "Palm"}});
    });
    EXPECT_THAT(model.followingJoints("Shared"), ElementsAre("Next", "Thumb", "Shared",  // Z
                                                             "First",  // Child
                                                             "Thumb", "Shared", "Shared",  // Self
                                                             "Palm"));  // as a sub-joint
    EXPECT_THAT(model.followingJoints("Thumb"), ElementsAre("Tip"));
}

TEST(Actuators, AppendTheSubJointsTheyMove)
{
    auto const model = modelOf(fill);
    std::list<std::string> joints = {"kept"};
    EXPECT_FALSE(model.jointsFromActuator("Wrist", joints));
    EXPECT_TRUE(model.jointsFromActuator("Adrift", joints));
    EXPECT_THAT(joints, ElementsAre("kept"));
    EXPECT_TRUE(model.jointsFromActuator("HandA", joints));
    EXPECT_THAT(joints, ElementsAre("kept", "A1", "A2", "A3", "A2", "A4"));

    std::string actuator = "untouched";
    std::vector<std::string> group = {"kept"};
    EXPECT_FALSE(model.coupledJointGroupFromParentJoint("Elbow", actuator, group));
    EXPECT_EQ(actuator, "untouched");
    EXPECT_TRUE(model.coupledJointGroupFromParentJoint("Wrist", actuator, group));
    EXPECT_EQ(actuator, "HandA");
    EXPECT_THAT(group, ElementsAre("kept", "A1", "A2", "A3", "A2", "A4"));
}

TEST(Actuators, AreRefusedWhenTheyAreAttachedToThemselves)
{
    EXPECT_THROW(modelOf([](FakeRobot& robot) { robot.addActuator("A", "A"); }), std::invalid_argument);
    auto const fillCycle = [](FakeRobot& robot) {
        robot.addChain("Chain", "Torso", {"B"});
        robot.addActuator("A", "C");
        robot.addActuator("B", "A");
        robot.addActuator("C", "B");
        robot.addActuator("D", "C");
    };
    EXPECT_THROW(modelOf(fillCycle), std::invalid_argument);
}

}  // namespace
