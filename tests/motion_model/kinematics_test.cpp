#include "model_of.hpp"

namespace {

using Varo::Math::Transform;

Transform at(float x, float y, float z)
{
    return Transform::fromPosition(x, y, z);
}

/// A quarter turn about z, 1 m up.
Transform turnedEnd()
{
    return Transform::fromRows({0, -1, 0, 0, 1, 0, 0, 0, 0, 0, 1, 1});
}

/// Not rigid, so that its inverse and its pseudo-inverse differ.
Transform doublingEnd()
{
    return Transform::fromRows({2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0});
}

void fill(FakeRobot& robot)
{
    robot.addChain("Arm", "Torso", {"Turned", "AfterTurned"}).placement = at(0, 5, 0);
    robot.addChain("Finger", "Turned", {"FirstOnTurned"}).placement = at(0, 5, 0);
    robot.addChain("Leg", "Torso", {"Doubling", "AfterDoubling"});
    robot.addJoint("InNoChain").placement = at(9, 9, 9);
    robot.joints["Turned"].endTransform = turnedEnd();
    robot.joints["Turned"].placement = at(1, 0, 0);
    robot.joints["AfterTurned"].placement = at(1, 2, 3);
    robot.joints["FirstOnTurned"].placement = at(1, 0, 0);
    robot.joints["Doubling"].endTransform = doublingEnd();
    robot.joints["AfterDoubling"].placement = at(1, 2, 3);

    robot.addActuator("Hand", "AfterTurned", {{"Phalanx1", "Phalanx2"}}).placement = at(1, 2, 3);
    robot.addActuator("Paw", "Wherever", {{"Claw", "Phalanx2"}});
    robot.subActuators["Phalanx1"].placement = at(1, 2, 3);
    robot.subActuators["Phalanx2"].placement = at(1, 2, 3);
    robot.subActuators["Loose"].placement = at(1, 2, 3);

    robot.addWheel("Wheel", "Turned").placement = at(1, 2, 3);
    robot.addWheel("DoubledWheel", "Doubling").placement = at(1, 2, 3);
    robot.addWheel("Both", "Turned").placement = at(1, 2, 3);
    robot.addActuator("Both", "Doubling").placement = at(1, 2, 3);
}

constexpr float untouched = 77.0F;

TEST(JointFrame, StandsInTheLinkBeforeIt)
{
    struct {
        char const* name;
        char const* parentBefore;
        bool known;
        char const* parent;
        Transform transform;
    } const cases[] = {
        {"Turned", "x", true, "rootFrame", at(1, 5, 0)},
        {"AfterTurned", "x", true, "Turned", Transform::fromRows({0, 1, 0, 2, -1, 0, 0, -1, 0, 0, 1, 2})},
        {"FirstOnTurned", "x", true, "rootFrame", Transform::fromRows({0, 1, 0, 5, -1, 0, 0, -1, 0, 0, 1, -1})},
        {"AfterDoubling", "x", true, "Doubling", Transform::fromRows({2, 0, 0, 2, 0, 2, 0, 4, 0, 0, 2, 6})},
        {"InNoChain", "x", true, "x", at(untouched, 0, 0)},
        {"", "x", false, "x", at(untouched, 0, 0)},
        {"Nobody", "x", false, "x", at(untouched, 0, 0)},
        {"Torso", "x", false, "x", at(untouched, 0, 0)},
        {"Phalanx1", "Turned", true, "AfterTurned", Transform::fromRows({0, 1, 0, 2, -1, 0, 0, -1, 0, 0, 1, 2})},
        {"Phalanx1", "Doubling", true, "AfterTurned",
         Transform::fromRows({0.5F, 0, 0, 0.5F, 0, 0.5F, 0, 1, 0, 0, 0.5F, 1.5F})},
        {"Phalanx2", "Phalanx1", true, "Phalanx1", Transform::fromRows({1, 0, 0, 1, 0, 0, -1, -3, 0, 1, 0, 2})},
        {"Phalanx2", "Nobody", true, "Phalanx1", at(1, 2, 3)},
        {"Loose", "Nobody", false, "Nobody", at(1, 2, 3)},
    };
    auto const model = modelOf(fill);
    for (auto const& c : cases) {
        SCOPED_TRACE(std::string(c.name) + " on " + c.parentBefore);
        std::string parent = c.parentBefore;
        Transform transform = at(untouched, 0, 0);
        EXPECT_EQ(model.transformFromJointName(c.name, transform, parent), c.known);
        EXPECT_EQ(parent, c.parent);
        EXPECT_TRUE(transform.isNear(c.transform, 1e-6F));
    }
}

TEST(JointFrame, MayBeAskedWithOneStringForNameAndParent)
{
    auto const model = modelOf(fill);
    std::string name = "Phalanx2";
    Transform transform;
    for (auto const* expected : {"Phalanx1", "AfterTurned", "Turned", "rootFrame"}) {
        ASSERT_TRUE(model.transformFromJointName(name, transform, name));
        EXPECT_EQ(name, expected);
    }
}

TEST(JointFrame, IsDecidedByTheLastChainInOrderOfName)
{
    auto const model = modelOf([](FakeRobot& robot) {
        robot.addChain("Z", "Torso", {"A", "Shared", "B", "Shared"});
        robot.addChain("M", "Torso", {"Shared"});
    });
    Transform transform;
    std::string parent;
    EXPECT_TRUE(model.transformFromJointName("Shared", transform, parent));
    EXPECT_EQ(parent, "A");
}

TEST(WheelFrame, IsTurnedInTheLinkOfTheParentOfTheWheel)
{
    auto const underTurned = Transform::fromRows({0, 1, 0, 2, 0, 0, 1, -1, 1, 0, 0, 2});
    auto const model = modelOf(fill);
    auto const expectWheel = [&](char const* name, Transform const& expected) {
        auto const found = answerOf(model, &Sim::MotionModel::transformFromWheel, name);
        EXPECT_TRUE(found && found->isNear(expected, 1e-6F)) << name;
    };
    auto const expectActuator = [&](char const* name, Transform const& expected) {
        auto const found = answerOf(model, &Sim::MotionModel::transformFromActuator, name);
        EXPECT_TRUE(found && found->isNear(expected, 1e-6F)) << name;
    };
    expectWheel("Wheel", underTurned);
    expectWheel("DoubledWheel", Transform::fromRows({0, 0, -0.5F, 0.5F, 0, 0.5F, 0, 1, 0.5F, 0, 0, 1.5F}));
    expectWheel("Both", underTurned);
    expectActuator("Both", underTurned);  // though it is attached elsewhere itself
    expectActuator("Hand", Transform::fromRows({0, 0, -1, 1, 0, 1, 0, 2, 1, 0, 0, 3}));  // without its own parent
    EXPECT_EQ(answerOf(model, &Sim::MotionModel::transformFromWheel, "Hand"), std::nullopt);
    EXPECT_EQ(answerOf(model, &Sim::MotionModel::transformFromActuator, "Wheel"), std::nullopt);
}

TEST(LinkFrame, IsFixedForSubJointsAndWheels)
{
    auto const minusX = Transform::fromRows({1, 0, 0, 0, 0, 0, 1, 0, 0, -1, 0, 0});
    auto const plusY = Transform::fromRows({0, 0, 1, 0, 0, 1, 0, 0, -1, 0, 0, 0});
    auto const model = modelOf([](FakeRobot& robot) {
        fill(robot);
        robot.addWheel("Phalanx1", "Torso");  // the sub-joint answers first
    });
    Transform end;
    EXPECT_TRUE(model.endTransformFromJointName("Turned", end));
    EXPECT_EQ(end, turnedEnd());
    EXPECT_TRUE(model.endTransformFromJointName("Phalanx1", end));
    EXPECT_TRUE(end.isNear(minusX, 1e-6F));
    EXPECT_TRUE(model.endTransformFromJointName("Wheel", end));
    EXPECT_TRUE(end.isNear(plusY, 1e-6F));
    EXPECT_FALSE(model.endTransformFromJointName("Torso", end));
    EXPECT_TRUE(model.endTransformFromSubactuatorName("Nobody", end));
    EXPECT_TRUE(end.isNear(minusX, 1e-6F));
    EXPECT_TRUE(model.endTransformFromWheelName("Nobody", end));
    EXPECT_TRUE(end.isNear(plusY, 1e-6F));
}

}  // namespace
