#include <set>

#include <gmock/gmock.h>

#include "example_robots.hpp"
#include "sim/model.hpp"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

TEST(ExampleRobots, LoadSilently)
{
    for (char const* const robot : Tests::exampleRobots) {
        SCOPED_TRACE(robot);
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        Sim::Model const model(Tests::examplePath(robot));
        EXPECT_THAT(testing::internal::GetCapturedStdout(), IsEmpty());
        EXPECT_THAT(testing::internal::GetCapturedStderr(), IsEmpty());
        EXPECT_THAT(model.links(), SizeIs(model.joints().size() + 1));
    }
}

TEST(ExampleRobots, ShowEveryKindOfDeviceThatLoadingMakes)
{
    std::set<int> actuators;
    std::set<int> sensors;
    for (char const* const robot : Tests::exampleRobots) {
        Sim::Model const model(Tests::examplePath(robot));
        for (Sim::Actuator const* actuator : model.actuators()) {
            actuators.insert(actuator->type());
        }
        for (Sim::Sensor const* sensor : model.sensors()) {
            sensors.insert(sensor->type());
        }
    }
    using Actuator = Sim::Actuator;
    using Sensor = Sim::Sensor;
    EXPECT_EQ(actuators, (std::set<int>{Actuator::Angle, Actuator::Coupled, Actuator::Torque, Actuator::AngleSpeed,
                                        Actuator::WheelVelocity, Actuator::LED}));
    EXPECT_EQ(sensors, (std::set<int>{Sensor::Angle, Sensor::Coupled, Sensor::Sonar, Sensor::Camera, Sensor::FSR,
                                      Sensor::Inertial, Sensor::Bumper, Sensor::Tactile, Sensor::ArrayDepth,
                                      Sensor::CameraDepth, Sensor::Microphone}));
}

TEST(MobileArm, MovesFingersAndTipsTogether)
{
    Sim::Model const model(Tests::examplePath("mobile_arm"));
    auto const* const gripper = model.coupledActuator("left_finger_slideCoupling");
    ASSERT_NE(gripper, nullptr);
    std::vector<std::pair<std::string, float>> ratios;
    for (auto const& [joint, ratio] : gripper->controlledJointAndRatios()) {
        ratios.emplace_back(joint->name(), ratio);
    }
    EXPECT_THAT(ratios, ElementsAre(std::pair("left_finger_slide", 1.0F), std::pair("left_tip_turn", -8.0F),
                                    std::pair("right_finger_slide", 1.0F), std::pair("right_tip_turn", 8.0F)));
}

}  // namespace
