#include <cmath>
#include <map>

#include <gmock/gmock.h>

#include "example_robots.hpp"
#include "sim/model.hpp"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class ExampleRobot : public testing::TestWithParam<char const*> {};

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
            EXPECT_LE(actuator->minValue(), actuator->startValue()) << actuator->name();
            EXPECT_LE(actuator->startValue(), actuator->maxValue()) << actuator->name();
            if (actuator->minValue() < actuator->maxValue() && std::isfinite(actuator->maxValue())) {
                EXPECT_GT(actuator->maxSpeed(), 0) << actuator->name();
            }
        }
    };
    expectWithinLimits(model.angleActuators());
    expectWithinLimits(model.coupledActuators());
}

INSTANTIATE_TEST_SUITE_P(All, ExampleRobot, testing::ValuesIn(Tests::exampleRobots),
                         [](auto const& robot) { return std::string(robot.param); });

/// A line for each type of device: how many, the first and the last of them, and behind a colon the keys of the first.
template <class Keyed, class Device>
std::vector<std::string> kindsOf(std::vector<Device const*> const& devices)
{
    std::map<int, std::vector<Device const*>> ofType;
    for (Device const* device : devices) {
        ofType[device->type()].push_back(device);
    }
    std::vector<std::string> lines;
    for (auto const& [type, each] : ofType) {
        lines.push_back("type " + std::to_string(type) + ": " + std::to_string(each.size()) + ", " +
                        each.front()->name() + " to " + each.back()->name() + ":");
        if (auto const* const keyed = dynamic_cast<Keyed const*>(each.front())) {
            for (std::string const& key : keyed->dcmKeys()) {
                lines.back() += ' ' + key;
            }
        }
    }
    return lines;
}

std::vector<std::string> actuatorsOf(Sim::Model const& model)
{
    return kindsOf<Sim::DCMActuator>(model.actuators());
}

std::vector<std::string> sensorsOf(Sim::Model const& model)
{
    return kindsOf<Sim::DCMSensor>(model.sensors());
}

/// The names in one line.
template <class Element>
std::string lineOf(std::vector<Element const*> const& elements)
{
    std::string line;
    for (Element const* element : elements) {
        line += (line.empty() ? "" : " ") + element->name();
    }
    return line;
}

class Humanoid : public testing::Test {
protected:
    Sim::Model const model{Tests::examplePath("humanoid")};
};

TEST_F(Humanoid, HasDevicesOfEveryKind)
{
    EXPECT_THAT(actuatorsOf(model), ElementsAre("type 0: 26, WaistBend to RAnkleTilt: WaistBend/Angle/Actuator",
                                                "type 1: 2, LHand to RHand: LHand/Angle/Actuator",
                                                "type 6: 11, ChestBlue to REyeRed: ChestBlue/Intensity/Actuator"));
    EXPECT_THAT(
        sensorsOf(model),
        ElementsAre("type 0: 26, WaistBend to RAnkleTilt: WaistBend/Angle/Sensor",
                    "type 1: 2, LHand to RHand: LHand/Angle/Sensor",
                    "type 2: 2, FrontSonar to RearSonar: FrontSonar/Echo0/Sensor FrontSonar/Echo1/Sensor "
                    "FrontSonar/Echo2/Sensor FrontSonar/Echo3/Sensor FrontSonar/Echo4/Sensor FrontSonar/Echo5/Sensor "
                    "FrontSonar/Echo6/Sensor FrontSonar/Echo7/Sensor FrontSonar/Echo8/Sensor FrontSonar/Echo9/Sensor",
                    "type 3: 2, FaceCamera to FloorCamera:",
                    "type 4: 8, LFootFrontLeft to RFootRearRight: LFootFrontLeft/Force/Sensor",
                    "type 5: 1, Inertial/Gyrometer to Inertial/Gyrometer: Inertial/AngularSpeedX/Sensor "
                    "Inertial/AngularSpeedY/Sensor Inertial/AngularSpeedZ/Sensor Inertial/AccelerationX/Sensor "
                    "Inertial/AccelerationY/Sensor Inertial/AccelerationZ/Sensor",
                    "type 6: 2, LToeBumper to RToeBumper: LToeBumper/Contact/Sensor",
                    "type 10: 4, CrownFrontTouch to RPalmTouch: CrownFrontTouch/Contact/Sensor",
                    "type 13: 2, ChestRange to PelvisRange: ChestRange/Depth0/Sensor ChestRange/Depth1/Sensor "
                    "ChestRange/Depth2/Sensor ChestRange/Depth3/Sensor ChestRange/Depth4/Sensor "
                    "ChestRange/Depth5/Sensor ChestRange/Depth6/Sensor ChestRange/Depth7/Sensor",
                    "type 14: 1, FaceDepth to FaceDepth:", "type 15: 2, LMicrophone to RMicrophone:"));
}

TEST_F(Humanoid, ListsAllInOrder)
{
    std::string const motors =
        "WaistBend WaistTurn NeckTurn NeckNod LShoulderSwing LShoulderLift LUpperArmTwist LElbowBend LWristTwist "
        "RShoulderSwing RShoulderLift RUpperArmTwist RElbowBend RWristTwist LHipTwist LHipLift LHipSwing LKneeBend "
        "LAnkleBend LAnkleTilt RHipTwist RHipLift RHipSwing RKneeBend RAnkleBend RAnkleTilt LHand RHand ";
    EXPECT_EQ(lineOf(model.joints()),
              "WaistBend WaistTurn NeckTurn NeckNod LShoulderSwing LShoulderLift LUpperArmTwist LElbowBend LWristTwist "
              "LFore1 LFore2 LFore3 LHind1 LHind2 LHind3 LThumb1 LThumb2 RShoulderSwing RShoulderLift RUpperArmTwist "
              "RElbowBend RWristTwist RFore1 RFore2 RFore3 RHind1 RHind2 RHind3 RThumb1 RThumb2 LHipTwist LHipLift "
              "LHipSwing LKneeBend LAnkleBend LAnkleTilt RHipTwist RHipLift RHipSwing RKneeBend RAnkleBend RAnkleTilt");
    EXPECT_EQ(lineOf(model.jointGroups()), "Trunk Head LHand LArm RHand RArm LLeg RLeg");
    EXPECT_EQ(lineOf(model.actuatorGroups()), "Trunk Head LArm RArm LLeg RLeg");
    EXPECT_EQ(lineOf(model.actuators()), motors +
                                             "ChestBlue ChestGreen ChestRed LEarBlue LEyeBlue LEyeGreen LEyeRed "
                                             "REarBlue REyeBlue REyeGreen REyeRed");
    EXPECT_EQ(lineOf(model.sensors()),
              motors +
                  "ChestRange CrownFrontTouch CrownRearTouch FaceCamera FaceDepth FloorCamera FrontSonar "
                  "Inertial/Gyrometer LFootFrontLeft LFootFrontRight LFootRearLeft LFootRearRight LMicrophone "
                  "LPalmTouch LToeBumper PelvisRange RFootFrontLeft RFootFrontRight RFootRearLeft RFootRearRight "
                  "RMicrophone RPalmTouch RToeBumper RearSonar");
}

TEST_F(Humanoid, GroupsItsLights)
{
    EXPECT_EQ(lineOf(model.ledActuators("Eyes")), "LEyeBlue LEyeGreen LEyeRed REyeBlue REyeGreen REyeRed");
    EXPECT_EQ(lineOf(model.ledActuators("LeftEye")), "LEyeBlue LEyeGreen LEyeRed");
    EXPECT_EQ(lineOf(model.ledActuators("Ears")), "LEarBlue REarBlue");
    EXPECT_THAT(model.ledActuators("Face"), SizeIs(8));
}

TEST(HelvoArm, HasThreeActuatorsPerJointAndAGripper)
{
    Sim::Model const model(Tests::examplePath("helvo_arm"));
    EXPECT_THAT(actuatorsOf(model), ElementsAre("type 0: 5, BaseTurn to WristTurn: BaseTurn/Angle/Actuator",
                                                "type 1: 1, Gripper to Gripper: Gripper/Angle/Actuator",
                                                "type 2: 5, BaseTurn to WristTurn: BaseTurn/Torque/Actuator",
                                                "type 3: 5, BaseTurn to WristTurn: BaseTurn/AngularSpeed/Actuator",
                                                "type 6: 1, ReadyLight to ReadyLight: ReadyLight/Intensity/Actuator"));
    EXPECT_THAT(sensorsOf(model), ElementsAre("type 0: 5, BaseTurn to WristTurn: BaseTurn/Angle/Sensor",
                                              "type 1: 1, Gripper to Gripper: Gripper/Angle/Sensor",
                                              "type 3: 1, WristCamera to WristCamera:"));
    EXPECT_THAT(model.coupledActuator("Gripper")->controlledJointAndRatios(),
                ElementsAre(std::pair(model.joint("LJaw"), 1.0F), std::pair(model.joint("RJaw"), -1.0F)));
}

TEST(Rover, DrivesItsFourWheels)
{
    Sim::Model const model(Tests::examplePath("rover"));
    EXPECT_THAT(actuatorsOf(model),
                ElementsAre("type 0: 9, LeftRocker to MastNod: LeftRocker/Angle/Actuator",
                            "type 5: 4, FrontLeftWheel to RearRightWheel: FrontLeftWheel/AngularSpeed/Actuator"));
    EXPECT_EQ(lineOf(model.sensors()),
              "LeftRocker FrontLeftSteering RearLeftSteering RightRocker FrontRightSteering RearRightSteering MastLift "
              "MastTurn MastNod FrontBumper FrontSonar Inertial/Gyrometer MastCamera MastDepth");
}

TEST(Quadruped, HasSensorsInTrunkHeadAndFeet)
{
    Sim::Model const model(Tests::examplePath("quadruped"));
    EXPECT_EQ(lineOf(model.bumperSensors()),
              "left_front_contact left_hind_contact right_front_contact right_hind_contact");
    EXPECT_EQ(lineOf(model.inertialSensors()), "trunk_accelerations/Gyrometer trunk_imu/Gyrometer");
    EXPECT_EQ(lineOf(model.cameraSensors()), "head_camera rear_camera");
    EXPECT_EQ(model.cameraDepthSensor("head_depth")->width(), 424);
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
