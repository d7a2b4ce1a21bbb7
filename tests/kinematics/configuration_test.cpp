#include "sim/configuration.hpp"

#include <limits>
#include <memory>

#include <gmock/gmock.h>

#include "descriptions.hpp"
#include "fake_robot.hpp"
#include "sim/kinematics.hpp"
#include "sim/model.hpp"
#include "texts.hpp"
#include "throws.hpp"
#include "varo/model/configs.hpp"

namespace KinematicsTest {

namespace {

using testing::ElementsAre;

constexpr double infinity = std::numeric_limits<double>::infinity();

/// An arm with a sliding, a fixed, an endless and a reversed joint, a hand of two fingers, and two joints that follow.
std::string const arm = Tests::robot(
    Tests::joint("Turn") + Tests::joint("Slide", "", "type=\"prismatic\"") +
    Tests::joint("Plate", "", "type=\"fixed\"") +
    "<joint name=\"Spin\" min=\"unlimited\" max=\"unlimited\"/><joint name=\"Odd\" min=\"1\" max=\"-1\"/>" +
    Tests::joint("Lead") + Tests::joint("Follow") +
    Tests::chain("Arm", "Base", {"Turn", "Slide", "Plate", "Spin", "Odd", "Lead", "Follow"}) +
    Tests::actuator(
        "Hand", "Plate",
        "<group><subJoint name=\"F1\" ratio=\"0.5\" offset=\"0.1\"/><subJoint name=\"F2\" ratio=\"-1\"/></group>") +
    Tests::actuator("Pair", "Follow",
                    "<group><jointRef name=\"Follow\" ratio=\"2\" offset=\"1\"/></group>"
                    "<group><jointRef name=\"Lead\" ratio=\"1\"/></group>") +
    Tests::wheel("Wheel", "Turn") +
    "<posture name=\"Rest\"><angle of=\"Turn\" value=\"0.25\"/><angle of=\"Hand\" value=\"0.75\"/>"
    "<angle of=\"Plate\" value=\"0\"/><angle of=\"Lead\" value=\"0.5\"/><angle of=\"Follow\" value=\"2\"/></posture>"
    "<posture name=\"Torn\"><angle of=\"Follow\" value=\"2\"/></posture>"
    "<posture name=\"Bent\"><angle of=\"Plate\" value=\"0.1\"/></posture>"
    "<posture name=\"Lost\"><angle of=\"Trun\" value=\"0.1\"/></posture>");

class Configurations : public testing::Test {
protected:
    static std::string refusal(std::function<void()> const& action)
    {
        return Tests::messageOf<std::invalid_argument>(action);
    }

    Sim::Model model = Sim::Model(arm);
    Sim::Kinematics kinematics = Sim::Kinematics(model);
    Sim::Configuration configuration = Sim::Configuration(kinematics);
};

TEST_F(Configurations, HaveAValueForWhatFollowsNothing)
{
    auto const lines = Tests::textsOf(kinematics.variables(), [](Sim::JointVariable const& variable) {
        return variable.name + " " + testing::PrintToString(std::pair(variable.min, variable.max)) +
               (variable.slides ? " m" : " rad");
    });
    EXPECT_THAT(lines,
                ElementsAre("Turn (-1, 1.5) rad", "Slide (-1, 1.5) m", "Spin (-inf, inf) rad", "Odd (-inf, inf) rad",
                            "Lead (-1, 1.5) rad", "Hand (0, 1) rad", "Wheel (-inf, inf) rad"));
    EXPECT_THAT(configuration.values(), testing::Each(0.0));
}

TEST_F(Configurations, TellWhereEveryJointStands)
{
    configuration.set({{"Hand", 0.5}, {"Pair", 0.25}, {"Wheel", 7.0}});
    EXPECT_NEAR(configuration.at("F1"), 0.35, 1e-6);
    EXPECT_EQ(configuration.at("F2"), -0.5);
    EXPECT_EQ(configuration.at("Lead"), 0.25);
    EXPECT_EQ(configuration.at("Follow"), 1.5);
    EXPECT_EQ(configuration.at("Plate"), 0.0);
    EXPECT_EQ(configuration.at("Wheel"), 7.0);
    EXPECT_EQ(refusal([&] { configuration.at("Weel"); }),
              "There is no joint or actuator \"Weel\". Did you mean \"Wheel\"?");
}

TEST_F(Configurations, TakePostures)
{
    EXPECT_THAT(model.postures(), testing::SizeIs(4));
    configuration.set("Spin", 3.0);
    configuration.setPosture("Rest");
    EXPECT_THAT(configuration.values(), ElementsAre(0.25, 0, 0, 0, 0.5, 0.75, 0));
    EXPECT_EQ(Sim::Configuration(kinematics, "Rest").values(), configuration.values());
    EXPECT_EQ(refusal([&] { configuration.setPosture("Rset"); }),
              "There is no posture \"Rset\". Did you mean \"Rest\"?");
    EXPECT_EQ(refusal([&] { configuration.setPosture("Torn"); }),
              "Posture \"Torn\": \"Follow\" follows \"Lead\": give the value to \"Lead\".");
    EXPECT_EQ(refusal([&] { configuration.setPosture("Bent"); }),
              "Posture \"Bent\": \"Plate\" does not move, so that it takes no value.");
    EXPECT_EQ(refusal([&] { configuration.setPosture("Lost"); }),
              "Posture \"Lost\": There is no joint or actuator \"Trun\". Did you mean \"Turn\"?");
    EXPECT_EQ(configuration.at("Turn"), 0.25);
}

TEST_F(Configurations, RefuseWhatIsNoValueAndThenStayAsTheyAre)
{
    configuration.set("Turn", 0.5);
    EXPECT_EQ(refusal([&] {
                  configuration.set({{"Turn", 1.0}, {"Tunr", 1.0}});
              }),
              "There is no joint or actuator \"Tunr\". Did you mean \"Turn\"?");
    EXPECT_EQ(refusal([&] { configuration.set("Plate", 0.0); }), "\"Plate\" does not move, so that it takes no value.");
    EXPECT_EQ(refusal([&] { configuration.set("F2", 0.0); }), "\"F2\" follows \"Hand\": give the value to \"Hand\".");
    EXPECT_EQ(refusal([&] {
                  configuration.set({{"Lead", 1.0}, {"Pair", 2.0}});
              }),
              "\"Lead\" and \"Pair\" move the same joint, but have different values.");
    EXPECT_EQ(refusal([&] { configuration.set("Turn", std::nan("")); }),
              "The value of \"Turn\" is not a finite number.");
    EXPECT_EQ(refusal([&] { configuration.set(1, infinity); }), "The value of \"Slide\" is not a finite number.");
    EXPECT_EQ(refusal([&] { configuration.set(1, 1e300); }),
              "The value of \"Slide\" is not a finite number of single precision.");
    EXPECT_EQ(refusal([&] {
                  configuration.setValues({0, 0, 0, 0, 0, 0, infinity});
              }),
              "The value of \"Wheel\" is not a finite number.");
    EXPECT_EQ(refusal([&] { configuration.setValues({1.0}); }), "There must be 7 values, not 1.");
    EXPECT_EQ(refusal([&] { configuration.set(7, 1.0); }), "There is no value 7 among 7.");
    EXPECT_THAT(configuration.values(), ElementsAre(0.5, 0, 0, 0, 0, 0, 0));
}

TEST_F(Configurations, KnowTheirLimits)
{
    configuration.setValues({-1.25, 1.0, 100.0, 100.0, 0.0, 2.0, 100.0});
    EXPECT_EQ(configuration.distanceToLimits(0), -0.25);
    EXPECT_EQ(configuration.distanceToLimits(1), 0.5);
    EXPECT_EQ(configuration.distanceToLimits(2), infinity);
    EXPECT_EQ(refusal([&] { configuration.checkLimits(); }),
              "The value of \"Turn\", -1.25, is outside its limits, -1 to 1.5.");
    configuration.clampToLimits();
    EXPECT_THAT(configuration.values(), ElementsAre(-1.0, 1.0, 100.0, 100.0, 0.0, 1.0, 100.0));
    configuration.checkLimits();
}

/// A joint without motor, and joints that mimic others across the tree, one of them what only comes after it.
std::string const mimics = Tests::robot(
    Tests::joint("Third", "<mimic joint=\"Second\" multiplier=\"-1\" offset=\"0.5\"/>") +
    Tests::joint("Second", "<mimic joint=\"Free\" multiplier=\"2\" offset=\"1\"/>", "type=\"prismatic\"") +
    Tests::joint("Free", "", "motor=\"false\"") + Tests::joint("Plate", "", "type=\"fixed\" motor=\"false\"") +
    Tests::joint("Held", "<mimic joint=\"Plate\" offset=\"0.25\"/>") +
    Tests::joint("Finger", "<mimic joint=\"Free\" multiplier=\"9\"/>") +
    Tests::joint("Alone", "<mimic joint=\"Nobody\"/>") +
    Tests::chain("Arm", "Base", {"Third", "Second", "Free", "Plate", "Held", "Finger", "Alone"}) +
    Tests::actuator("Hand", "Plate", "<group><jointRef name=\"Finger\" ratio=\"0.5\"/></group>"));

TEST(ConfigurationOfMimics, FollowsTheirLeadersUnlessAnActuatorMovesThem)
{
    Sim::Model const model(mimics);
    Sim::Kinematics const kinematics(model);
    EXPECT_THAT(Tests::textsOf(kinematics.variables(), [](auto const& variable) { return variable.name; }),
                ElementsAre("Free", "Hand", "Alone"));
    Sim::Configuration configuration(kinematics);
    configuration.set({{"Free", 0.25}, {"Hand", 0.5}});
    std::vector<double> values;
    for (char const* const joint : {"Third", "Second", "Held", "Finger", "Plate"}) {
        values.push_back(configuration.at(joint));
    }
    EXPECT_THAT(values, ElementsAre(-1.0, 1.5, 0.25, 0.25, 0.0));
    EXPECT_EQ(Tests::messageOf<std::invalid_argument>([&] { configuration.set("Third", 0.0); }),
              "\"Third\" follows \"Free\": give the value to \"Free\".");
    EXPECT_NEAR(
        kinematics.pose(configuration, *model.link("HeldLink")->frame(), *model.link("PlateLink")->frame())(1, 0),
        std::sin(0.25), 1e-7)
        << "which its leader, that stands still, gives it";
    // The pose of the second link: turned by Third at -1, then slid by Second at 1.5.
    Sim::Pose const pose = kinematics.pose(configuration, *model.link("SecondLink")->frame());
    EXPECT_NEAR(pose(1, 0), std::sin(-1.0), 1e-7);
    EXPECT_NEAR(pose(2, 3), 1.5, 1e-7);
}

TEST(ConfigurationOfMimics, ExistsOnlyWithoutCycles)
{
    auto robot = std::make_unique<FakeRobot>();
    robot->addChain("Arm", "Torso", {"A", "B", "C"});
    for (auto const& [follower, leader] : {std::pair("A", "B"), std::pair("B", "C"), std::pair("C", "B")}) {
        robot->joints[follower].mimic = std::make_shared<Varo::Model::MimicConfig>(Varo::Model::MimicConfig{leader});
    }
    Sim::Model const model({std::move(robot), {}, {}});
    EXPECT_THROW(Sim::Kinematics kinematics(model), std::invalid_argument);
}

}  // namespace

}  // namespace KinematicsTest
