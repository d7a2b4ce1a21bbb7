#include <gmock/gmock.h>

#include "model_of.hpp"

namespace {

using testing::ElementsAre;

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
    constexpr float untouched = 7.0F;
    struct {
        char const* name;
        float mass;
    } const cases[] = {{"Joint", 1.0F},        {"Torso", 2.0F},     {"Wheel", 3.0F},      {"Shared", 5.0F},
                       {"Phalanx", untouched}, {"Hand", untouched}, {"Nobody", untouched}};
    auto const model = modelOf(fill);
    for (auto const& [name, expected] : cases) {
        SCOPED_TRACE(name);
        float mass = untouched;
        Varo::Math::Position3D com{untouched, 0.0F, 0.0F};
        std::vector<float> inertia(2, untouched);
        bool const known = expected != untouched;
        EXPECT_EQ(model.mass(name, mass), known);
        EXPECT_EQ(mass, expected);
        EXPECT_EQ(model.CoM(name, com), known);
        EXPECT_EQ(com.x, expected);
        EXPECT_EQ(model.inertiaMatrix(name, inertia), known);
        EXPECT_THAT(inertia, ElementsAre(expected, expected));
    }
}

TEST(Body, OfAJointHidesTheRootsOfTheSameName)
{
    auto const model = modelOf([](FakeRobot& robot) {
        fill(robot);
        giveBody(robot.addJoint("Torso"), 8.0F);
    });
    float mass = 0.0F;
    EXPECT_TRUE(model.mass("Torso", mass));
    EXPECT_EQ(mass, 8.0F);
}

TEST(Mesh, HasNoPoseOfItsOwn)
{
    struct {
        char const* name;
        char const* mesh;
    } const cases[] = {{"Joint", "1.dae"}, {"Torso", "2.dae"},  {"Wheel", "3.dae"}, {"Phalanx", "4.dae"},
                       {"Bare", ""},       {"Shared", "5.dae"}, {"Hand", nullptr},  {"Nobody", nullptr}};
    auto const model = modelOf(fill);
    for (auto const& [name, expected] : cases) {
        SCOPED_TRACE(name);
        auto const before = Varo::Math::Transform::fromPosition(1.0F, 2.0F, 3.0F);
        auto transform = before;
        std::string mesh = "untouched";
        bool const known = expected != nullptr;
        EXPECT_EQ(model.meshNameFromJointName(name, mesh), known);
        EXPECT_EQ(mesh, known ? expected : "untouched");
        EXPECT_EQ(model.meshTransformFromJointName(name, transform), known);
        EXPECT_EQ(transform, known ? Varo::Math::Transform() : before);
    }
}

TEST(FrictionMaterial, IsGumUnlessStated)
{
    struct {
        char const* name;
        bool stated;
    } const cases[] = {{"Joint", true}, {"Torso", true},    {"Wheel", true},
                       {"Bare", false}, {"Phalanx", false}, {"Nobody", false}};
    auto const model = modelOf(fill);
    for (auto const& [name, stated] : cases) {
        SCOPED_TRACE(name);
        std::string material = "untouched";
        EXPECT_EQ(model.frictionMaterial(name, material), stated);
        EXPECT_EQ(material, stated ? "steel" : "gum");
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
    struct {
        char const* name;
        float max;
    } const cases[] = {{"Joint", 1.0F}, {"Both", 3.0F}, {"Hand", 4.0F}, {"Nobody", 0.0F}};
    for (auto const& [name, max] : cases) {
        SCOPED_TRACE(name);
        float min = 0.0F;
        float maxRead = 0.0F;
        float speed = 0.0F;
        bool const known = max != 0.0F;
        EXPECT_EQ(model.minAngle(name, min), known);
        EXPECT_EQ(model.maxAngle(name, maxRead), known);
        EXPECT_EQ(model.maxAngleSpeed(name, speed), known);
        EXPECT_EQ(min, -max);
        EXPECT_EQ(maxRead, max);
        EXPECT_EQ(speed, 10.0F * max);
    }
}

TEST(SingleFields, AreReadFromOneTableOnly)
{
    auto const model = modelOf([](FakeRobot& robot) {
        auto& wheel = robot.addWheel("Wheel", "Torso");
        wheel.maxTorque = 1.0F;
        wheel.maxVelocity = 2.0F;
        robot.addActuator("Hand", "Wrist", {{"Phalanx"}});
        robot.subActuators["Phalanx"].ratio = 0.5F;
    });
    float value = 0.0F;
    std::string parent;
    EXPECT_TRUE(model.maxTorqueFromWheel("Wheel", value));
    EXPECT_EQ(value, 1.0F);
    EXPECT_TRUE(model.maxVelocityFromWheel("Wheel", value));
    EXPECT_EQ(value, 2.0F);
    EXPECT_TRUE(model.ratioFromJoint("Phalanx", value));
    EXPECT_EQ(value, 0.5F);
    EXPECT_TRUE(model.parentJointFromWheel("Wheel", parent));
    EXPECT_EQ(parent, "Torso");
    EXPECT_TRUE(model.parentJointFromActuator("Hand", parent));
    EXPECT_EQ(parent, "Wrist");
    EXPECT_FALSE(model.maxTorqueFromWheel("Hand", value) || model.maxVelocityFromWheel("Hand", value));
    EXPECT_FALSE(model.ratioFromJoint("Hand", value) || model.parentJointFromWheel("Hand", parent));
    EXPECT_FALSE(model.parentJointFromActuator("Wheel", parent));
    EXPECT_EQ(value, 0.5F);
    EXPECT_EQ(parent, "Wrist");
}

}  // namespace
