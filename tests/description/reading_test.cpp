#include <stdexcept>

#include "descriptions.hpp"
#include "model_of.hpp"
#include "varo/model/finding.hpp"

namespace {

using testing::ElementsAre;
using testing::Pair;

std::string bodyOf(std::string const& posture)
{
    return Tests::joint("Neck") + Tests::joint("Head") + Tests::chain("Upper", "Base", {"Neck", "Head"}) +
           Tests::actuator("Jaw", "Head", "<group>" + Tests::subJoint("Lip", "0.5") + "</group>") +
           Tests::sensor("Eye", "Head", "camera", Tests::attribute("resolutions", "640 480&#10;320 240")) + posture;
}

TEST(Reading, CarriesADescriptionIntoTheModel)
{
    Sim::MotionModel const model(Tests::robot(
        bodyOf(R"(<posture name="StandInit"><angle of="Jaw" value="0.25"/><angle of="Neck" value="0.5"/></posture>)")));
    EXPECT_EQ(model.name(), "Testbot");
    EXPECT_THAT(model.actuatorNames(), ElementsAre("Neck", "Head", "Jaw"));
    EXPECT_THAT(model.followingJoints("Head"), ElementsAre("Lip"));
    EXPECT_EQ(answerOf(model, &Sim::MotionModel::startAngle, "Jaw"), 0.25F);
    EXPECT_EQ(answerOf(model, &Sim::MotionModel::startAngle, "Head"), 0.0F);
    EXPECT_EQ(answerOf(model, &Sim::MotionModel::mass, "Base"), 2.0F);
    EXPECT_EQ(answerOf(model, &Sim::MotionModel::ratioFromJoint, "Lip"), 0.5F);
    std::vector<std::pair<int, int>> resolutions;
    EXPECT_TRUE(model.resolutionsFromCamera("Eye", resolutions));
    EXPECT_THAT(resolutions, ElementsAre(Pair(640, 480), Pair(320, 240)));
}

TEST(Reading, RefusesBrokenTextAndStrayAngles)
{
    EXPECT_THROW(Sim::MotionModel("<robotDescription"), Varo::Model::DescriptionError);
    EXPECT_THROW(
        Sim::MotionModel(Tests::robot(bodyOf(R"(<posture name="StandInit"><angle of="Lip" value="1"/></posture>)"))),
        std::out_of_range);
}

}  // namespace
