#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "varo/model/model_utils.hpp"

namespace {

namespace Utils = Varo::Model::ModelUtils;
using testing::ElementsAre;
using testing::IsEmpty;

using Keys = std::vector<std::string>;

TEST(DeviceKeys, EachKindOfDeviceHasTheKeysThatMeanSomethingForIt)
{
    for (auto const& [kind, key] : {std::pair(1, "D/Angle/Sensor"), {64, "D/Angle/Actuator"}}) {
        EXPECT_EQ(Utils::getJointDCMKeys({"D"}, kind), Keys{key});
        EXPECT_EQ(Utils::getWheelDCMKeys({"D"}, kind), Keys{});
        EXPECT_EQ(Utils::getActuatorDCMKeys({"D"}, kind), Keys{key});
    }
    for (auto const& [kind, key] : {std::pair(2, "D/AngularSpeed/Sensor"),
                                    {32, "D/Torque/Sensor"},
                                    {128, "D/AngularSpeed/Actuator"},
                                    {256, "D/Torque/Actuator"}}) {
        EXPECT_EQ(Utils::getJointDCMKeys({"D"}, kind), Keys{key});
        EXPECT_EQ(Utils::getWheelDCMKeys({"D"}, kind), Keys{key});
        EXPECT_EQ(Utils::getActuatorDCMKeys({"D"}, kind), Keys{});
    }
}

TEST(DeviceKeys, ComeNameByNameLowestBitFirst)
{
    EXPECT_THAT(Utils::getJointDCMKeys({"B", "A"}, Utils::torqueActuator | Utils::angleSensor),
                ElementsAre("B/Angle/Sensor", "B/Torque/Actuator", "A/Angle/Sensor", "A/Torque/Actuator"));
    EXPECT_THAT(
        Utils::getWheelDCMKeys({"W"}, Utils::angleSensor | Utils::angularSpeedSensor | Utils::angularSpeedActuator),
        ElementsAre("W/AngularSpeed/Sensor", "W/AngularSpeed/Actuator"));
}

TEST(DeviceKeys, BitsWithoutMeaningGiveNone)
{
    for (int const kinds : {0, 4, 8, 16, 512, 4 | 1024}) {
        EXPECT_THAT(Utils::getJointDCMKeys({"D"}, kinds), IsEmpty()) << kinds;
    }
    EXPECT_EQ(Utils::getJointDCMKeys({"D"}, -1).size(), 6U);
    EXPECT_THAT(Utils::getJointDCMKeys({}, Utils::angleSensor), IsEmpty());
}

}  // namespace
