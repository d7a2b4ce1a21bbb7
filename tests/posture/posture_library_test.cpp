#include "posture/posture_library.hpp"

#include <clocale>
#include <cmath>
#include <limits>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fake_robot.hpp"

namespace {

using posture::getRobotPostureLibraryName;
using posture::Posture;
using posture::PostureLibrary;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::NanSensitiveFloatEq;

constexpr float unset = std::numeric_limits<float>::quiet_NaN();

/// Angle names, in this order: Neck, Hand, Knee.
class PostureLibraryTest : public testing::Test {
protected:
    FakeRobot robot;
    PostureLibrary library;

    PostureLibraryTest()
    {
        robot.addChain("Arm", "Torso", {"Neck"});
        robot.addChain("Leg", "Torso", {"Knee"});
        robot.addActuator("Hand", "Neck");
        robot.addActuator("OnAnActuator", "Hand");
        robot.addActuator("OnTheRoot", "Torso");
    }

    void load() { ASSERT_TRUE(library.loadLibraryFromName(getRobotPostureLibraryName(robot))); }

    std::vector<float> valuesOf(std::string const& name, bool completed)
    {
        Posture posture;
        EXPECT_TRUE(library.getPostureFromId(library.getIdFromName(name), posture, completed));
        return posture.jointValues();
    }
};

TEST_F(PostureLibraryTest, LaysValuesOutInTheOrderOfAngleNamesWithSurplusBehind)
{
    robot.postureList = {{"Stand", {{"Knee", 0.5F}, {"Tail", 7.0F}, {"Neck", -0.25F}}}, {"Zero", {{"Hand", 0.0F}}}};
    load();
    EXPECT_THAT(valuesOf("Stand", true), ElementsAre(-0.25F, 0.0F, 0.5F, 7.0F));
    EXPECT_THAT(valuesOf("Stand", false), ElementsAre(-0.25F, NanSensitiveFloatEq(unset), 0.5F, 7.0F));
    EXPECT_THAT(valuesOf("Zero", false), ElementsAre(NanSensitiveFloatEq(unset), 0.0F, NanSensitiveFloatEq(unset)));
}

TEST_F(PostureLibraryTest, AJointWithoutMotorHasNoPlaceAndWhatIsAttachedToItHas)
{
    robot.joints["Neck"].hasMotor = false;
    robot.postureList = {{"Stand", {{"Knee", 0.5F}, {"Neck", 7.0F}, {"Hand", 0.25F}}}};
    load();
    EXPECT_THAT(valuesOf("Stand", true), ElementsAre(0.25F, 0.5F, 7.0F)) << "the surplus is behind";
}

TEST_F(PostureLibraryTest, ANameListedTwiceHasItsValueTwice)
{
    robot.addChain("SecondArm", "Torso", {"Neck"});
    robot.postureList = {{"Stand", {{"Neck", 2.0F}}}};
    load();
    EXPECT_THAT(valuesOf("Stand", true), ElementsAre(2.0F, 0.0F, 0.0F, 2.0F, 0.0F));
}

TEST_F(PostureLibraryTest, ValuesComeThroughBitByBitWhereDecimalsHaveAComma)
{
    std::string const before = std::setlocale(LC_ALL, nullptr);
    EXPECT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr) << "CTest says where it is";
    for (float const value : {0.1F, 1.0F / 3.0F, 1e-45F, -3.4028235e38F, 16777216.0F}) {
        robot.postureList = {{"Stand", {{"Neck", value}}}};
        load();
        EXPECT_EQ(valuesOf("Stand", true).front(), value);
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST_F(PostureLibraryTest, NamesMayHoldWhatNamesOfLibrariesAreMadeOf)
{
    for (std::string const name : {"a;b", "a=1,2", "100 %41", "\xC3\xA9t\xC3\xA9", "line\nbreak", ""}) {
        robot.postureList = {{"First", {}}, {name, {{"Neck", 3.0F}}}};
        std::string const libraryName = getRobotPostureLibraryName(robot);
        EXPECT_THAT(libraryName, testing::StartsWith("data:application/vnd.varo.postures,"));
        EXPECT_EQ(libraryName.find_first_of(" \n\xC3"), std::string::npos) << libraryName;
        ASSERT_TRUE(library.loadLibraryFromName(libraryName));
        EXPECT_EQ(library.getIdFromName(name), 1) << libraryName;
    }
}

TEST_F(PostureLibraryTest, ARobotWithoutPosturesHasNoLibrary)
{
    EXPECT_THAT(getRobotPostureLibraryName(robot), IsEmpty());
    EXPECT_FALSE(library.loadLibraryFromName(""));
}

TEST_F(PostureLibraryTest, TheNameGrowsWithWhatIsStated)
{
    std::vector<std::string> joints;
    for (int i = 0; i < 1000; ++i) {
        joints.push_back("Joint" + std::to_string(i));
    }
    robot.addChain("Tail", "Torso", joints);
    for (int i = 0; i < 1000; ++i) {
        robot.postureList.push_back({"P" + std::to_string(i), {{"Joint999", 0.5F}}});
    }
    EXPECT_LT(getRobotPostureLibraryName(robot).size(), 20'000U);
    load();
    EXPECT_EQ(valuesOf("P999", true).back(), 0.5F);
}

TEST_F(PostureLibraryTest, AnUnknownPostureLeavesEveryNameOut)
{
    robot.postureList = {{"Stand", {{"Neck", 1.0F}, {"Tail", 7.0F}}}};
    load();
    EXPECT_EQ(library.getIdFromName("stand"), -1);
    for (int const id : {-1, 1}) {
        Posture posture({9.0F});
        EXPECT_FALSE(library.getPostureFromId(id, posture, true));
        EXPECT_THAT(posture.jointValues(), ElementsAre(0.0F, 0.0F, 0.0F));
    }
}

TEST_F(PostureLibraryTest, RefusesNamesThatAreNotItsOwnAndIsEmptyThen)
{
    std::string const prefix = "data:application/vnd.varo.postures,";
    std::vector<std::string> names = {"stand.postures", "data:text/plain,1;A=1"};
    for (char const* behind : {"",
                               "1",
                               "x;A=1",
                               "-1;A=0:1",
                               "1;A=1:1",
                               "1;A=1",
                               "1;A=0:one",
                               "1;A=0:0x1",
                               "1;A=0:+1",
                               "1;A=0:1 ",
                               "1;A%4=0:1",
                               "1;A%zz=0:1",
                               "1,0;A=0:1",
                               "1,0=1;A=0:1",
                               "1,1=0;A=0:1",
                               "18446744073709551615;A=:1",
                               "100000000;A=0:1",
                               "18446744073709551615;",
                               "99999999999999999999;A=0:1",
                               "1;A=0:1;B=0:1e99"}) {
        names.push_back(prefix + behind);
    }
    for (std::string const& name : names) {
        ASSERT_TRUE(library.loadLibraryFromName(prefix + "1;A=0:1"));
        EXPECT_FALSE(library.loadLibraryFromName(name)) << name;
        EXPECT_EQ(library.getIdFromName("A"), -1) << name;
        Posture posture;
        EXPECT_FALSE(library.getPostureFromId(0, posture, true)) << name;
        EXPECT_THAT(posture.jointValues(), IsEmpty()) << name;
    }
}

}  // namespace
