#include "model_of.hpp"

namespace {

using Motion = Sim::MotionModel;
using Varo::Math::Position3D;
using Varo::Math::Transform;

template <typename Body>
void giveBody(Body& body, float mass)
{
    body.mass = mass;
    body.centerOfMass = {mass, 0.0F, 0.0F};
    body.inertiaMatrix = {mass, mass};
    body.meshName = std::to_string(static_cast<int>(mass)) + ".dae";
    body.attributes["material"] = "steel";
}

/// "Joint", "Wheel" and the root "Torso" have bodies; "Phalanx" has a mesh only; "Shared" and "Bare" are joints.
void fill(FakeRobot& robot)
{
    giveBody(robot.addJoint("Joint"), 1.0F);
    giveBody(robot.root, 2.0F);
    giveBody(robot.addWheel("Wheel", "Torso"), 3.0F);
    robot.addActuator("Hand", "Joint", {{"Phalanx"}});
    robot.subActuators["Phalanx"].meshName = "4.dae";
    giveBody(robot.addJoint("Shared"), 5.0F);
    giveBody(robot.addWheel("Shared", "Torso"), 6.0F);
    robot.addJoint("Bare");
}

TEST(Body, IsThatOfTheFirstTableThatKnowsTheName)
{
    auto const model = modelOf(fill);
    for (auto const& [name, mass] : {std::pair("Joint", 1.0F), {"Torso", 2.0F}, {"Wheel", 3.0F}, {"Shared", 5.0F}}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(answerOf(model, &Motion::mass, name), mass);
        EXPECT_EQ(answerOf(model, &Motion::CoM, name), (Position3D{mass, 0.0F, 0.0F}));
        EXPECT_EQ(answerOf(model, &Motion::inertiaMatrix, name), std::vector<float>(2, mass));
        EXPECT_EQ(answerOf(model, &Motion::meshNameFromJointName, name),
                  std::to_string(static_cast<int>(mass)) + ".dae");
    }
    for (char const* name : {"Phalanx", "Hand", "Nobody"}) {
        EXPECT_EQ(answerOf(model, &Motion::mass, name), std::nullopt);
        EXPECT_EQ(answerOf(model, &Motion::CoM, name), std::nullopt);
        EXPECT_EQ(answerOf(model, &Motion::inertiaMatrix, name), std::nullopt);
    }
    auto const hidden = modelOf([](FakeRobot& robot) {
        giveBody(robot.root, 2.0F);
        giveBody(robot.addJoint(robot.root.name), 8.0F);
    });
    EXPECT_EQ(answerOf(hidden, &Motion::mass, "Torso"), 8.0F) << "the root's is hidden";
}

TEST(Mesh, HasNoPoseOfItsOwn)
{
    auto const model = modelOf(fill);
    for (char const* name : {"Joint", "Torso", "Wheel", "Phalanx", "Bare"}) {
        EXPECT_EQ(answerOf(model, &Motion::meshTransformFromJointName, name), Transform());
    }
    EXPECT_EQ(answerOf(model, &Motion::meshNameFromJointName, "Phalanx"), "4.dae");
    EXPECT_EQ(answerOf(model, &Motion::meshNameFromJointName, "Bare"), "");
    for (char const* name : {"Hand", "Nobody"}) {
        EXPECT_EQ(answerOf(model, &Motion::meshNameFromJointName, name), std::nullopt);
        EXPECT_EQ(answerOf(model, &Motion::meshTransformFromJointName, name), std::nullopt);
    }
}

TEST(FrictionMaterial, IsGumUnlessStated)
{
    auto const model = modelOf(fill);
    for (char const* name : {"Joint", "Torso", "Wheel"}) {
        EXPECT_EQ(answerOf(model, &Motion::frictionMaterial, name), "steel");
    }
    for (char const* name : {"Bare", "Phalanx", "Nobody"}) {
        std::string material = "untouched";
        EXPECT_FALSE(model.frictionMaterial(name, material)) << name;
        EXPECT_EQ(material, "gum") << name;
    }
}

TEST(Limits, OfAnActuatorReplaceThoseOfAJointOfTheSameName)
{
    auto const model = modelOf([](FakeRobot& robot) {
        auto const give = [](auto& record, float value) {
            record.minAngle = -value;
            record.maxAngle = value;
            record.maxAngularSpeed = 10.0F * value;
        };
        give(robot.addJoint("Joint"), 1.0F);
        give(robot.addJoint("Both"), 2.0F);
        give(robot.addActuator("Both", "Joint"), 3.0F);
        give(robot.addActuator("Hand", "Joint"), 4.0F);
    });
    for (auto const& [name, max] : {std::pair("Joint", 1.0F), {"Both", 3.0F}, {"Hand", 4.0F}}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(answerOf(model, &Motion::minAngle, name), -max);
        EXPECT_EQ(answerOf(model, &Motion::maxAngle, name), max);
        EXPECT_EQ(answerOf(model, &Motion::maxAngleSpeed, name), 10.0F * max);
    }
    for (auto const query : {&Motion::minAngle, &Motion::maxAngle, &Motion::maxAngleSpeed}) {
        EXPECT_EQ(answerOf(model, query, "Nobody"), std::nullopt);
    }
}

/// What they are of those that have one is compared with the object model for all our robots.
TEST(SingleFields, AreReadFromOneTableOnly)
{
    auto const model = modelOf([](FakeRobot& robot) {
        robot.addWheel("Wheel", "Torso").maxTorque = 1.0F;
        robot.addActuator("Hand", "Wrist", {{"Phalanx"}});
    });
    EXPECT_EQ(answerOf(model, &Motion::maxTorqueFromWheel, "Wheel"), 1.0F);
    for (auto const query : {&Motion::maxTorqueFromWheel, &Motion::maxVelocityFromWheel, &Motion::ratioFromJoint}) {
        EXPECT_EQ(answerOf(model, query, "Hand"), std::nullopt);
    }
    EXPECT_EQ(answerOf(model, &Motion::parentJointFromWheel, "Hand"), std::nullopt);
    EXPECT_EQ(answerOf(model, &Motion::parentJointFromActuator, "Wheel"), std::nullopt);
}

}  // namespace
