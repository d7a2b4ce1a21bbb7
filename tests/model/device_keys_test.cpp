#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "varo/model/model_utils.hpp"

namespace {

namespace Utils = Varo::Model::ModelUtils;
using testing::ElementsAre;
using testing::IsEmpty;

using Keys = std::vector<std::string>;

TEST(DeviceKeys, EachKindOfDeviceHasTheKeysThatMeanSomethingForIt)
{
    struct {
        int kind;
        char const* key;
        bool ofWheels;
        bool ofActuators;
    } const table[] = {
        {1, "D/Angle/Sensor", false, true},
        {2, "D/AngularSpeed/Sensor", true, false},
        {32, "D/Torque/Sensor", true, false},
        {64, "D/Angle/Actuator", false, true},
        {128, "D/AngularSpeed/Actuator", true, false},
        {256, "D/Torque/Actuator", true, false},
    };
    for (auto const& row : table) {
        EXPECT_EQ(Utils::getJointDCMKeys({"D"}, row.kind), Keys{row.key});
        EXPECT_EQ(Utils::getWheelDCMKeys({"D"}, row.kind), row.ofWheels ? Keys{row.key} : Keys{}) << row.key;
        EXPECT_EQ(Utils::getActuatorDCMKeys({"D"}, row.kind), row.ofActuators ? Keys{row.key} : Keys{}) << row.key;
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
