#include <gmock/gmock.h>

#include "sim/frame.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"
#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;
using testing::ElementsAre;

TEST(UrdfJoints, AreFrozenWhereTheRecordsCannotMoveThem)
{
    std::string const text = readFile(dataFile("awkward_axes.urdf"));
    Tables const tables = tablesOf(text);
    EXPECT_TRUE(tables.joints.at("down").hasMotor);
    for (auto const& [still, type] : {std::pair("tool", fixed), {"afloat", floating}, {"on_a_plane", planar}}) {
        JointConfig const& config = tables.joints.at(still);
        EXPECT_EQ(config.jointType, type) << still;
        EXPECT_TRUE(config.minAngle == 0.0F && config.maxAngle == 0.0F && !config.hasMotor) << still;
    }
    Findings const notes = ModelUtils::diagnose(text);
    ASSERT_EQ(notes.size(), 1U);
    EXPECT_EQ(notes[0].code, "joint-frozen");
    EXPECT_THAT(notes[0].message, testing::EndsWith(": \"afloat\", \"on_a_plane\"."));
}

/// That they stand, point and are limited as stated, Python's reader of XML sees in the dump of the same file.
TEST(UrdfJoints, TurnTheirFramesNoFurtherThanTheAxisNeeds)
{
    Sim::Model const model(dataFile("awkward_axes.urdf"));
    auto const wayToLink = [&](std::string const& joint) {
        return model.link(joint + "Link")->frame()->localPosition();
    };
    EXPECT_EQ(wayToLink("down")(0, 0), 1.0F) << "half a turn about x for an axis that points down";
    EXPECT_NEAR(wayToLink("default_axis")(1, 1), 1.0F, 1e-6F) << "about y, which is perpendicular to z and to the axis";
    for (char const* const still : {"tool", "afloat", "on_a_plane"}) {
        EXPECT_EQ(wayToLink(still), Transform()) << still << ", whatever axis is stated";
    }
}

/// A joint that does not move keeps the numbers of its motor too, for whoever wrote them down.
TEST(UrdfJoints, SayWhenTheyCannotMoveForWantOfLimits)
{
    auto const withLimit = [](std::string const& limit, std::string const& type) {
        return robot(link("root") + link("a") + joint("A", "root", "a", limit, type));
    };
    for (char const* const type : {"revolute", "prismatic"}) {
        EXPECT_THAT(complaintsAbout(withLimit("", type)), ElementsAre("missing-limit"));
        EXPECT_THAT(complaintsAbout(withLimit("<limit effort=\"1\" velocity=\"2\"/>", type)),
                    ElementsAre("missing-limit"));
        EXPECT_THAT(complaintsAbout(withLimit("<limit upper=\"1\"/>", type)), ElementsAre());
    }
    for (char const* const type : {"continuous", "fixed"}) {
        std::string const text = withLimit("<limit effort=\"1\" velocity=\"2\"/>", type);
        EXPECT_THAT(complaintsAbout(text), ElementsAre());
        EXPECT_EQ(tablesOf(text).joints.at("A").maxTorque, 1.0F);
        EXPECT_EQ(tablesOf(text).joints.at("A").maxAngularSpeed, 2.0F);
    }
}

TEST(UrdfTransmissions, SayWhatIsWrongWithThem)
{
    auto const complaints = [](std::string const& text) { return complaintsAbout(robot(arm() + text)); };
    EXPECT_THAT(complaints("<transmission name=\"T\"><joint name=\"Z\"/></transmission>"),
                ElementsAre("unknown-driven-joint"));
    EXPECT_THAT(complaints("<transmission><joint/></transmission>"),
                ElementsAre("missing-attribute", "missing-attribute"));
    EXPECT_THAT(complaints("<transmission name=\"T\"><joint name=\"A\"><mechanicalReduction>fast</mechanicalReduction>"
                           "</joint></transmission>"),
                ElementsAre("not-a-number"));
    EXPECT_THAT(complaints("<transmission name=\"T\"/>"), ElementsAre());
}

}  // namespace
