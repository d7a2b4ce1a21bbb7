#include <limits>

#include "model_of.hpp"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr int k_least = std::numeric_limits<int>::min();
constexpr int k_greatest = std::numeric_limits<int>::max();

Sim::MotionModel modelWith(std::string const& attribute, std::string const& value)
{
    return modelOf([&](FakeRobot& robot) { robot.addSensor("Device").attributes[attribute] = value; });
}

/// What is said of those that there are is compared with the object model for all our robots.
TEST(Devices, ThatAreUnknownLeaveTheAnswerUntouched)
{
    auto const model = modelOf([](FakeRobot& robot) {
        robot.addSensor("Sonar").type = Varo::Model::sonar;
        robot.addSensor("Camera").keys = {"k1", "k2"};
    });
    EXPECT_THAT(model.sensorNames(), ElementsAre("Camera", "Sonar"));
    EXPECT_EQ(model.sensorType("Nobody"), 0);
    Varo::Math::Transform transform;
    std::string parent;
    EXPECT_FALSE(model.transformFromSensorName("Nobody", transform, parent));
    std::vector<std::string> keys = {"old"};
    EXPECT_FALSE(model.dcmKeysFromSensorName("Nobody", keys));
    EXPECT_THAT(keys, ElementsAre("old"));
    EXPECT_TRUE(model.dcmKeysFromSensorName("Camera", keys));
    EXPECT_THAT(keys, ElementsAre("k1", "k2")) << "which replace what was there";
}

TEST(Devices, AddTheirCommandAndStateKeysToTheCallers)
{
    EXPECT_THAT(Sim::MotionModel::k_dcmCommandKeyNames, ElementsAre("setOperationMode"));
    EXPECT_THAT(Sim::MotionModel::k_stateDcmKeyNames, ElementsAre("getOperationMode"));
    auto const model = modelOf([](FakeRobot& robot) {
        robot.addSensor("Commanded").attributes["setOperationMode"] = "set";
        robot.addSensor("Watched").attributes["getOperationMode"] = "get";
    });
    std::vector<std::string> commands = {"mine"};
    std::vector<std::string> states = {"mine"};
    EXPECT_FALSE(model.dcmCommandKeys("Watched", commands) || model.dcmCommandKeys("Nobody", commands));
    EXPECT_FALSE(model.dcmStateKeys("Commanded", states) || model.dcmStateKeys("Nobody", states));
    EXPECT_THAT(commands, ElementsAre("mine"));
    EXPECT_THAT(states, ElementsAre("mine"));
    EXPECT_TRUE(model.dcmCommandKeys("Commanded", commands));
    EXPECT_TRUE(model.dcmStateKeys("Watched", states));
    EXPECT_THAT(commands, ElementsAre("mine", "set"));
    EXPECT_THAT(states, ElementsAre("mine", "get"));
}

TEST(Devices, WithoutTheAttributeLeaveTheAnswerUntouched)
{
    auto const model = modelWith("other", "value");
    for (auto const* name : {"Device", "Nobody"}) {
        EXPECT_EQ(answerOf(model, &Sim::MotionModel::shortnameFromLED, name), std::nullopt);
        std::vector<std::string> groups = {"old"};
        EXPECT_FALSE(model.groupsFromLED(name, groups));
        EXPECT_THAT(groups, ElementsAre("old"));
        int color = 7;
        EXPECT_FALSE(model.colorFromLED(name, &color));
        EXPECT_EQ(color, 7);
        std::vector<std::pair<int, int>> resolutions;
        EXPECT_FALSE(model.resolutionsFromCamera(name, resolutions));
        EXPECT_THAT(resolutions, IsEmpty());
    }
}

TEST(Led, GroupsAreThePiecesBetweenTabsAndBlanks)
{
    EXPECT_EQ(answerOf(modelWith("shortname", "short name"), &Sim::MotionModel::shortnameFromLED, "Device"),
              "short name");
    std::vector<std::string> groups = {"old"};
    EXPECT_TRUE(modelWith("groups", "Ears  Left\tAll").groupsFromLED("Device", groups));
    EXPECT_THAT(groups, ElementsAre("Ears", "", "Left", "All"));
    EXPECT_TRUE(modelWith("groups", "").groupsFromLED("Device", groups));
    EXPECT_THAT(groups, ElementsAre(""));
}

TEST(Led, ColorIsTheLastFullChannel)
{
    for (auto const& [value, expected] :
         {std::pair("255 0 0", 0), {"0\t0\t255", 2}, {"255 255 0", 1}, {"0  255", 2}, {"0 0255 25", 7}, {"", 7}}) {
        SCOPED_TRACE(value);
        int channel = 7;
        EXPECT_TRUE(modelWith("color", value).colorFromLED("Device", &channel));
        EXPECT_EQ(channel, expected);
    }
}

TEST(Camera, ResolutionsAreReadAsAStreamWould)
{
    struct {
        char const* value;
        std::vector<std::pair<int, int>> resolutions;
    } const cases[] = {
        {"640 480\n320 240", {{640, 480}, {320, 240}}},
        {"\n \t640 480\r\n\n320\n160 120 30\n", {{640, 480}, {160, 120}}},
        {"640  480", {{640, 0}}},
        {"640 \t480", {{640, 480}}},
        {"+640 -480", {{640, -480}}},
        {"wide 480p", {{0, 480}}},
        {"+-1 -+1", {{0, 0}}},
        {"+ -", {{0, 0}}},
        {"1e3 0x10", {{1, 0}}},
        {"99999999999 -99999999999", {{k_greatest, k_least}}},
        {"2147483647 -2147483648", {{k_greatest, k_least}}},
    };
    for (auto const& [value, expected] : cases) {
        SCOPED_TRACE(value);
        std::vector<std::pair<int, int>> resolutions = {{1, 2}};
        EXPECT_TRUE(modelWith("resolutions", value).resolutionsFromCamera("Device", resolutions));
        ASSERT_FALSE(resolutions.empty());
        EXPECT_THAT(resolutions.front(), Pair(1, 2));
        resolutions.erase(resolutions.begin());
        EXPECT_EQ(resolutions, expected);
    }
}

}  // namespace
