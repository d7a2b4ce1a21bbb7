#include <cmath>

#include <gmock/gmock.h>

#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;
using testing::ElementsAre;

TEST(UrdfJoints, KeepTheirKindAndLimits)
{
    std::string const text = readFile(dataFile("awkward_axes.urdf"));
    Tables const tables = tablesOf(text);
    JointConfig const& down = tables.joints.at("down");
    EXPECT_EQ(down.jointType, revolute);
    EXPECT_EQ(down.minAngle, -1.0F);
    EXPECT_EQ(down.maxAngle, 1.0F);
    EXPECT_EQ(down.maxTorque, 10.0F);
    EXPECT_EQ(down.maxAngularSpeed, 2.0F);
    EXPECT_TRUE(down.hasMotor);
    EXPECT_EQ(tables.joints.at("skew").jointType, continuous);
    EXPECT_EQ(tables.joints.at("skew").minAngle, -INFINITY);
    EXPECT_EQ(tables.joints.at("skew").maxAngle, INFINITY);
    EXPECT_EQ(tables.joints.at("slide").jointType, prismatic);
    for (auto const& [still, type] : {std::pair("tool", fixed), {"afloat", floating}, {"on_a_plane", planar}}) {
        JointConfig const& config = tables.joints.at(still);
        EXPECT_EQ(config.jointType, type) << still;
        EXPECT_EQ(config.minAngle, 0.0F);
        EXPECT_EQ(config.maxAngle, 0.0F);
        EXPECT_FALSE(config.hasMotor);
    }
    Findings const notes = ModelUtils::diagnose(text);
    ASSERT_EQ(notes.size(), 1U);
    EXPECT_EQ(notes[0].code, "joint-frozen");
    EXPECT_THAT(notes[0].message, testing::EndsWith(": \"afloat\", \"on_a_plane\"."));
}

TEST(UrdfJoints, KeepWhatElseTheyState)
{
    Tables const tables = tablesOf(robot(
        arm("<mimic joint=\"A\" multiplier=\"-2\" offset=\"0.5\"/><calibration falling=\"0.1\"/><safety_controller "
            "soft_lower_limit=\"-0.9\" soft_upper_limit=\"inf\" k_position=\"15\" k_velocity=\"10\"/>")));
    JointConfig const& joint = tables.joints.at("C");
    ASSERT_TRUE(joint.mimic && joint.safety && joint.calibration);
    EXPECT_EQ(joint.mimic->joint, "A");
    EXPECT_EQ(joint.mimic->multiplier, -2.0F);
    EXPECT_EQ(joint.mimic->offset, 0.5F);
    EXPECT_FALSE(joint.calibration->rising);
    EXPECT_EQ(joint.calibration->falling, 0.1F);
    EXPECT_EQ(joint.safety->lowerLimit, -0.9F);
    EXPECT_EQ(joint.safety->upperLimit, INFINITY);
    EXPECT_EQ(joint.safety->positionGain, 15.0F);
    EXPECT_EQ(joint.safety->velocityGain, 10.0F);
    EXPECT_FALSE(tables.joints.at("A").mimic || tables.joints.at("A").safety || tables.joints.at("A").calibration);
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

std::vector<TransmissionConfig> transmissionsOf(std::string const& text)
{
    return ModelUtils::robotFromXml(robot(arm() + text))->records()->transmissions;
}

TEST(UrdfTransmissions, SayWhatDrivesEachJoint)
{
    auto const usual = transmissionsOf(
        "<transmission name=\"T\"><type>simple</type>"
        "<joint name=\"A\"><hardwareInterface>position</hardwareInterface></joint>"
        "<joint name=\"B\"><hardwareInterface>effort</hardwareInterface></joint>"
        "<actuator name=\"MA\"><hardwareInterface>position</hardwareInterface>"
        "<mechanicalReduction> 50 </mechanicalReduction></actuator><actuator name=\"MB\"/></transmission>");
    ASSERT_EQ(usual.size(), 2U);
    EXPECT_EQ(usual[0].name, "T");
    EXPECT_EQ(usual[0].type, "simple");
    EXPECT_EQ(usual[0].joint, "A");
    EXPECT_EQ(usual[0].actuator, "MA");
    EXPECT_EQ(usual[0].reduction, 50.0F);
    EXPECT_THAT(usual[0].interfaces, ElementsAre("position"));
    EXPECT_EQ(usual[1].actuator, "MB");
    EXPECT_EQ(usual[1].reduction, 1.0F);
    EXPECT_THAT(usual[1].interfaces, ElementsAre("effort"));

    auto const old = transmissionsOf(
        "<transmission name=\"T\" type=\"x/Simple\"><actuator name=\"M\"/><joint name=\"C\"/>"
        "<mechanicalReduction>-6</mechanicalReduction></transmission>");
    ASSERT_EQ(old.size(), 1U);
    EXPECT_EQ(old[0].type, "x/Simple");
    EXPECT_EQ(old[0].actuator, "M");
    EXPECT_EQ(old[0].reduction, -6.0F);
}

TEST(UrdfTransmissions, SayWhatIsWrongWithThem)
{
    auto const complaints = [](std::string const& text) { return complaintsAbout(robot(arm() + text)); };
    EXPECT_THAT(complaints("<transmission name=\"T\"><joint name=\"Z\"/></transmission>"),
                ElementsAre("unknown-driven-joint"));
    EXPECT_EQ(transmissionsOf("<transmission name=\"T\"><joint name=\"Z\"/></transmission>").at(0).joint, "Z");
    EXPECT_THAT(complaints("<transmission><joint/></transmission>"),
                ElementsAre("missing-attribute", "missing-attribute"));
    EXPECT_THAT(complaints("<transmission name=\"T\"><joint name=\"A\"><mechanicalReduction>fast</mechanicalReduction>"
                           "</joint></transmission>"),
                ElementsAre("not-a-number"));
    EXPECT_THAT(complaints("<transmission name=\"T\"/>"), ElementsAre());
}

}  // namespace
