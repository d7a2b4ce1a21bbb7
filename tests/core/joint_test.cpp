#include "sim/joint.hpp"

#include <limits>
#include <memory>

#include <gmock/gmock.h>

#include "descriptions.hpp"
#include "fake_robot.hpp"
#include "sim/model.hpp"

namespace {

using namespace Tests;
using Sim::Joint;
using testing::ElementsAre;

constexpr float infinity = std::numeric_limits<float>::infinity();

/// Limits, effort, velocity, damping and friction.
std::vector<float> numbersOf(Joint const& joint)
{
    return {joint.limits().lower, joint.limits().upper, joint.effort(),
            joint.velocity(),     joint.damping(),      joint.friction()};
}

TEST(Joint, SaysWhatTheDescriptionDoes)
{
    Sim::Model const model(
        robot(joint("J", "", "type=\"prismatic\" maxTorque=\"5\" damping=\"0.5\" friction=\"0.25\"") +
              joint("K", "<mimic joint=\"J\" multiplier=\"2\" offset=\"0.5\"/>", "type=\"fixed\" motor=\"false\"") +
              chain("C", "Base", {"J", "K"}) + wheel("W", "J") +
              actuator("Hand", "K", "<group>" + subJoint("F") + "</group>")));
    Joint const& slide = *model.joint("J");
    EXPECT_THAT(numbersOf(slide), ElementsAre(-1.0F, 1.5F, 5.0F, 4.0F, 0.5F, 0.25F));
    EXPECT_EQ(slide.type(), Joint::Type::prismatic);
    EXPECT_TRUE(slide.moves() && slide.hasMotor());
    EXPECT_TRUE(slide.mimic() == nullptr && slide.safety() == nullptr && slide.calibration() == nullptr);
    Joint const& plate = *model.joint("K");
    EXPECT_EQ(plate.type(), Joint::Type::fixed);
    EXPECT_FALSE(plate.moves() || plate.hasMotor());
    ASSERT_NE(plate.mimic(), nullptr);
    EXPECT_EQ(model.joint(plate.mimic()->joint), &slide);
    EXPECT_THAT(std::pair(plate.mimic()->multiplier, plate.mimic()->offset), testing::Pair(2.0F, 0.5F));

    Joint const& wheel = *model.joint("W");
    EXPECT_THAT(numbersOf(wheel), ElementsAre(-infinity, infinity, 3.0F, 12.0F, 0.0F, 0.0F));
    EXPECT_EQ(wheel.type(), Joint::Type::continuous);
    EXPECT_TRUE(wheel.moves() && wheel.hasMotor());
    Joint const& finger = *model.joint("F");
    EXPECT_THAT(numbersOf(finger), ElementsAre(-infinity, infinity, 0.0F, 0.0F, 0.0F, 0.0F));
    EXPECT_EQ(finger.type(), Joint::Type::revolute);
    EXPECT_TRUE(finger.moves() && !finger.hasMotor());
}

TEST(Joint, HasTheTypeOfItsRecordWhateverMadeThat)
{
    auto robot = std::make_unique<FakeRobot>();
    robot->addChain("C", "Torso", {"J0", "J1", "J2", "J3", "J4", "J5", "J6"});
    for (int type = 0; type < 7; ++type) {
        robot->joints["J" + std::to_string(type)].jointType = type;
    }
    robot->joints["J0"].safety = std::make_shared<Varo::Model::SafetyConfig>();
    robot->joints["J1"].calibration = std::make_shared<Varo::Model::CalibrationConfig>();
    Sim::Model const model({std::move(robot), {}, {}});
    std::vector<std::pair<Joint::Type, bool>> kinds;
    for (Joint const* each : model.joints()) {
        kinds.emplace_back(each->type(), each->moves());
    }
    using Type = Joint::Type;
    EXPECT_THAT(kinds, ElementsAre(std::pair(Type::revolute, true), std::pair(Type::prismatic, true),
                                   std::pair(Type::fixed, false), std::pair(Type::continuous, true),
                                   std::pair(Type::planar, false), std::pair(Type::floating, false),
                                   std::pair(Type::fixed, false)));
    EXPECT_NE(model.joint("J0")->safety(), nullptr);
    EXPECT_NE(model.joint("J1")->calibration(), nullptr);
}

}  // namespace
