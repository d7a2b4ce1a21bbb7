#include <map>
#include <set>

#include <gmock/gmock.h>

#include "example_robots.hpp"
#include "sim/angle_actuator.hpp"
#include "sim/array_depth_sensor.hpp"
#include "sim/coupled_actuator.hpp"
#include "sim/joint.hpp"
#include "sim/led_actuator.hpp"
#include "sim/sonar_sensor.hpp"
#include "sim/torque_actuator.hpp"
#include "varo/model/model_utils.hpp"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class ExampleRobot : public testing::TestWithParam<char const*> {};

TEST_P(ExampleRobot, GivesNoFinding)
{
    for (Varo::Model::Finding const& finding : Varo::Model::ModelUtils::diagnose(Tests::exampleText(GetParam()))) {
        ADD_FAILURE_AT(Tests::examplePath(GetParam()).c_str(), finding.line) << finding.code << ": " << finding.message;
    }
}

TEST_P(ExampleRobot, LoadsSilently)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Sim::Model const model(Tests::examplePath(GetParam()));
    EXPECT_THAT(testing::internal::GetCapturedStdout(), IsEmpty());
    EXPECT_THAT(testing::internal::GetCapturedStderr(), IsEmpty());
    EXPECT_THAT(model.links(), SizeIs(model.joints().size() + 1));
}

TEST_P(ExampleRobot, StartsWithinItsLimits)
{
    Sim::Model const model(Tests::examplePath(GetParam()));
    auto const expectWithinLimits = [](auto const& actuators) {
        for (auto const* actuator : actuators) {
            EXPECT_LT(actuator->minValue(), actuator->maxValue()) << actuator->name();
            EXPECT_GE(actuator->startValue(), actuator->minValue()) << actuator->name();
            EXPECT_LE(actuator->startValue(), actuator->maxValue()) << actuator->name();
            EXPECT_GT(actuator->maxSpeed(), 0) << actuator->name();
        }
    };
    expectWithinLimits(model.angleActuators());
    expectWithinLimits(model.coupledActuators());
}

INSTANTIATE_TEST_SUITE_P(All, ExampleRobot, testing::ValuesIn(Tests::exampleRobots),
                         [](auto const& robot) { return std::string(robot.param); });

class Humanoid : public testing::Test {
protected:
    Sim::Model const model{Tests::examplePath("humanoid")};
};

TEST_F(Humanoid, HasJointsAndDevicesOfEveryKind)
{
    std::map<std::string, std::size_t> const counts = {
        {"joints", model.joints().size()},
        {"angle actuators", model.angleActuators().size()},
        {"coupled actuators", model.coupledActuators().size()},
        {"LEDs", model.ledActuators("").size()},
        {"angle sensors", model.angleSensors().size()},
        {"coupled sensors", model.coupledSensors().size()},
        {"tactile sensors", model.tactileSensors().size()},
        {"cameras", model.cameraSensors().size()},
        {"depth cameras", model.cameraDepthSensors().size()},
        {"bumpers", model.bumperSensors().size()},
        {"microphones", model.microphoneSensors().size()},
        {"array depth sensors", model.arrayDepthSensors().size()},
        {"sonars", model.sonarSensors().size()},
        {"FSRs", model.fsrSensors().size()},
        {"inertial sensors", model.inertialSensors().size()},
        {"all actuators", model.actuators().size()},
        {"all sensors", model.sensors().size()},
    };
    EXPECT_THAT(counts, (std::map<std::string, std::size_t>{
                            {"joints", 26 + 2 * 8},
                            {"angle actuators", 26},
                            {"coupled actuators", 2},
                            {"LEDs", 11},
                            {"angle sensors", 26},
                            {"coupled sensors", 2},
                            {"tactile sensors", 4},
                            {"cameras", 2},
                            {"depth cameras", 1},
                            {"bumpers", 2},
                            {"microphones", 2},
                            {"array depth sensors", 2},
                            {"sonars", 2},
                            {"FSRs", 8},
                            {"inertial sensors", 1},
                            {"all actuators", 26 + 2 + 11},
                            {"all sensors", 26 + 2 + 24},
                        }));
}

TEST_F(Humanoid, MovesTheEightJointsOfAHandByDifferentRatios)
{
    for (Sim::CoupledActuator const* hand : model.coupledActuators()) {
        std::set<float> ratios;
        for (auto const& [joint, ratio] : hand->controlledJointAndRatios()) {
            EXPECT_EQ(joint->name()[0], hand->name()[0]);
            ratios.insert(ratio);
        }
        EXPECT_THAT(ratios, SizeIs(8)) << hand->name();
    }
}

TEST_F(Humanoid, GroupsLightsOfThreeColours)
{
    std::map<Sim::LEDActuator::Color, int> eyeColours;
    for (Sim::LEDActuator const* led : model.ledActuators("Eyes")) {
        ++eyeColours[led->color()];
    }
    EXPECT_THAT(eyeColours, ElementsAre(std::pair(Sim::LEDActuator::Red, 2), std::pair(Sim::LEDActuator::Green, 2),
                                        std::pair(Sim::LEDActuator::Blue, 2)));
    EXPECT_THAT(model.ledActuators("LeftEye"), SizeIs(3));
    EXPECT_THAT(model.ledActuators("Face"), SizeIs(8));
}

TEST_F(Humanoid, HasRangeSensorsOfBothSizesAndForms)
{
    EXPECT_EQ(model.sonarSensor("FrontSonar")->bufferSize(), 40);
    EXPECT_EQ(model.sonarSensor("RearSonar")->bufferSize(), 4);
    Sim::ArrayDepthSensor const* const grid = model.arrayDepthSensor("ChestRange");
    EXPECT_EQ(std::pair(grid->width(), grid->height()), std::pair(4, 2));
    EXPECT_THAT(grid->dcmCommandKeys(), ElementsAre("ChestRange/OperationMode/Actuator"));
    EXPECT_THAT(grid->dcmStateKeys(), ElementsAre("ChestRange/OperationMode/Sensor"));
    Sim::ArrayDepthSensor const* const row = model.arrayDepthSensor("PelvisRange");
    EXPECT_EQ(std::pair(row->width(), row->height()), std::pair(3, 1));
}

TEST(HelvoArm, HasThreeActuatorsPerJointAndAGripper)
{
    Sim::Model const model(Tests::examplePath("helvo_arm"));
    EXPECT_THAT(model.angleActuators(), SizeIs(5));
    EXPECT_THAT(model.torqueActuators(), SizeIs(5));
    EXPECT_THAT(model.angleSpeedActuators(), SizeIs(5));
    EXPECT_THAT(model.coupledActuator("Gripper")->controlledJointAndRatios(),
                ElementsAre(std::pair(model.joint("LJaw"), 1.0F), std::pair(model.joint("RJaw"), -1.0F)));
}

TEST(Rover, DrivesItsFourWheels)
{
    Sim::Model const model(Tests::examplePath("rover"));
    EXPECT_THAT(model.wheelVelocityActuators(), SizeIs(4));
    EXPECT_THAT(model.angleActuators(), SizeIs(9));
}

}  // namespace
