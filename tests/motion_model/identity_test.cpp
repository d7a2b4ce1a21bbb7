#include <stdexcept>

#include "model_of.hpp"
#include "varo/model/finding.hpp"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::optional<float> startAngle(Sim::MotionModel const& model, std::string const& name)
{
    return answerOf(model, &Sim::MotionModel::startAngle, name);
}

TEST(Identity, IsTheDescriptionsWhenThereAreChains)
{
    auto const model = modelOf([](FakeRobot& robot) {
        robot.addChain("Legs", "Torso", {});
        robot.addChain("Arms", "Shoulder", {});
        robot.addWheel("WheelB", "Torso");
        robot.addWheel("WheelA", "Torso");
        robot.prettyNameTable[2] = "Deux";
    });
    EXPECT_EQ(model.name(), "Description");
    EXPECT_EQ(model.prettyName(2), "Deux");
    EXPECT_EQ(model.prettyName(0), "Description");
    EXPECT_EQ(model.rootName(), "Torso");
    EXPECT_EQ(model.version(), "1.0");
    EXPECT_THAT(model.chainNames(), ElementsAre("Legs", "Arms"));
    EXPECT_THAT(model.wheelNames(), ElementsAre("WheelA", "WheelB"));
    EXPECT_EQ(model.parentJointFromChain("Arms"), "Shoulder");
    EXPECT_EQ(model.parentJointFromChain("Tail"), "");
}

TEST(Identity, IsTheRobotsWithoutChains)
{
    auto const model = modelOf([](FakeRobot& robot) {
        robot.addJoint("Neck");
        robot.postureList = {{"StandInit", {}}};
    });
    EXPECT_EQ(model.name(), "Robot");
    EXPECT_THAT(model.chainNames(), IsEmpty());
    EXPECT_EQ(startAngle(model, "Neck"), std::nullopt);
}

TEST(Identity, RefusesARobotThatIsNone)
{
    EXPECT_THROW(Sim::MotionModel(std::unique_ptr<Varo::Model::Robot>()), std::invalid_argument);
    EXPECT_THROW(Sim::MotionModel("<robotDescription"), Varo::Model::DescriptionError);
    struct Broken : FakeRobot {
        void listWheels(std::vector<std::string>&, Varo::Model::WheelTable&) const override
        {
            throw std::domain_error("no wheels");
        }
    };
    EXPECT_THROW(Sim::MotionModel(std::make_unique<Broken>()), std::domain_error);
}

TEST(StartAngle, IsThatOfTheStandingPostureAndZeroWhereNoneTells)
{
    struct {
        std::vector<Varo::Model::PostureConfig> postures;
        std::vector<std::optional<float>> angles;  ///< of Shoulder, Wrist, Hand, Ear and ""
    } const cases[] = {
        {{}, {0.0F, 0.0F, 0.0F, std::nullopt, std::nullopt}},
        {{{"Rest", {{"Shoulder", 9.0F}}}}, {0.0F, 0.0F, 0.0F, std::nullopt, std::nullopt}},
        {{{"Rest", {{"Shoulder", 9.0F}}}, {"StandInit", {{"Hand", 3.0F}, {"Shoulder", 1.0F}}}},
         {1.0F, 0.0F, 3.0F, std::nullopt, std::nullopt}},
        {{{"StandInit", {{"Ear", 1.0F}}}}, {}},
    };
    for (auto const& [postures, angles] : cases) {
        auto const build = [&postures = postures] {
            return modelOf([&](FakeRobot& robot) {
                robot.addChain("Arm", "Torso", {"Shoulder", "Wrist"});
                robot.addChain("Unrecorded", "", {});
                robot.chains.erase("Unrecorded");
                robot.addActuator("Hand", "Wrist");
                robot.addActuator("Ear", "Head");  // on no joint of a chain, so that no posture may list it
                robot.postureList = postures;
            });
        };
        if (angles.empty()) {
            EXPECT_THROW(build(), std::out_of_range);
            continue;
        }
        auto const model = build();
        std::vector<std::optional<float>> found;
        for (char const* name : {"Shoulder", "Wrist", "Hand", "Ear", ""}) {
            found.push_back(startAngle(model, name));
        }
        EXPECT_EQ(found, angles);
    }
}

}  // namespace
