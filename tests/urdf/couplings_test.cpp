#include <gmock/gmock.h>

#include "sim/coupled_actuator.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"
#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;
using testing::ElementsAre;
using testing::Pair;

std::vector<std::pair<std::string, float>> membersOf(Sim::Model const& model, std::string const& actuator)
{
    std::vector<std::pair<std::string, float>> members;
    if (Sim::CoupledActuator const* const found = model.coupledActuator(actuator)) {
        for (auto const& [joint, ratio] : found->controlledJointAndRatios()) {
            members.emplace_back(joint->name(), ratio);
        }
    }
    return members;
}

TEST(UrdfCouplings, DriveTheLeaderAndAllThatFollowItInTheEnd)
{
    Sim::Model const model(dataFile("gripper.urdf"));
    EXPECT_THAT(membersOf(model, "thumbCoupling"),
                ElementsAre(Pair("thumb", 1.0F), Pair("tip", -0.4F), Pair("knuckle", 0.8F)));
    EXPECT_THAT(membersOf(model, "side_leadCoupling"), ElementsAre(Pair("side_lead", 1.0F), Pair("nail", 1.0F)));
    EXPECT_EQ(model.coupledActuators().size(), 2U);

    Sim::CoupledActuator const& thumb = *model.coupledActuator("thumbCoupling");
    EXPECT_EQ(thumb.minValue(), -0.25F);
    EXPECT_EQ(thumb.maxValue(), 1.5F);
    EXPECT_EQ(thumb.maxSpeed(), 2.0F);
    EXPECT_EQ(thumb.startValue(), 0.0F);
}

/// Building reaches the members in an order that is not the file's; none may be hung anywhere but on its own link.
TEST(UrdfCouplings, LeaveEveryMemberOnItsOwnLink)
{
    std::string const coupled = readFile(dataFile("gripper.urdf"));
    std::string plain = coupled;
    for (std::size_t at = plain.find("<mimic"); at != plain.npos; at = plain.find("<mimic")) {
        plain.erase(at, plain.find("/>", at) + 2 - at);
    }
    Sim::Model const withMimics(coupled);
    Sim::Model const withoutMimics(plain);
    ASSERT_TRUE(withoutMimics.coupledActuators().empty());
    ASSERT_EQ(withMimics.joints().size(), withoutMimics.joints().size());
    for (std::size_t i = 0; i < withMimics.joints().size(); ++i) {
        Sim::Joint const& joint = *withMimics.joints()[i];
        Sim::Joint const& same = *withoutMimics.joints()[i];
        EXPECT_EQ(joint.name(), same.name());
        EXPECT_EQ(joint.parentLink()->name(), same.parentLink()->name());
        EXPECT_EQ(Sim::Frame::globalPosition(joint.frame()), Sim::Frame::globalPosition(same.frame()));
    }
}

TEST(UrdfCouplings, TellMeaninglessMimicsFromWrongOnes)
{
    struct Case {
        char const* mimic;
        std::vector<std::string> complaints;
        std::size_t couplings;
    };
    for (Case const& c :
         {Case{"<mimic joint=\"A\"/>", {}, 1}, Case{"<mimic joint=\"A\" offset=\"0.5\"/>", {}, 1},
          Case{"<mimic joint=\"A\" offset=\"0.0\" multiplier=\"+2\"/>", {}, 1},
          Case{"<mimic joint=\"Z\"/>", {"unknown-leader"}, 0}, Case{"<mimic multiplier=\"1\"/>", {"unknown-leader"}, 0},
          Case{"<mimic joint=\"C\"/>", {"mimic-cycle"}, 0}}) {
        SCOPED_TRACE(c.mimic);
        EXPECT_EQ(complaintsAbout(robot(arm(c.mimic))), c.complaints);
        if (c.complaints != std::vector<std::string>{"mimic-cycle"}) {
            Tables const tables = tablesOf(robot(arm(c.mimic)));
            EXPECT_EQ(tables.actuators.size(), c.couplings);
            EXPECT_EQ(tables.joints.at("C").mimic != nullptr, c.couplings == 1);
        }
    }
    std::string const links = link("root") + link("a") + link("b");
    std::string const mimicsA = joint("B", "a", "b", "<limit upper='1'/><mimic joint='A'/>");
    EXPECT_THAT(
        complaintsAbout(robot(links + joint("A", "root", "a", "<limit upper='1'/><mimic joint='B'/>") + mimicsA)),
        ElementsAre("mimic-cycle"));
    EXPECT_THAT(complaintsAbout(robot(links + joint("A", "root", "a", "", "fixed") + mimicsA)),
                ElementsAre("frozen-leader"));
    Findings const still = ModelUtils::diagnose(
        robot(links + joint("A", "root", "a") + joint("B", "a", "b", "<mimic joint='nobody'/>", "fixed")));
    ASSERT_EQ(still.size(), 1U);
    EXPECT_TRUE(still[0].code == "frozen-mimic" && still[0].severity == Severity::note);
}

}  // namespace
