#include <cmath>

#include <gmock/gmock.h>

#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;
using testing::ElementsAre;

TEST(UrdfTolerance, TakesOrNotesWhatRealFilesAreLooseAbout)
{
    std::string const text = readFile(dataFile("loose.urdf"));
    EXPECT_THAT(complaintsAbout(text), ElementsAre("wrong-count", "wrong-count"));
    Tables const tables = tablesOf(text);
    JointConfig const& early = tables.joints.at("early");
    EXPECT_TRUE(early.placement.isNear(Transform::fromPosition(0.15F, 0.25F, 0.0F), 1e-7F));
    EXPECT_THAT((std::vector{early.minAngle, early.maxAngle, early.maxTorque, early.maxAngularSpeed, early.mass}),
                ElementsAre(-1.0F, 5.0F, 100.0F, 0.5F, 2.0F));
    EXPECT_EQ(early.meshName, "package://x/arm.dae");
    EXPECT_EQ(early.shapes.visuals.at(0).geometry.scale, (Position3D{2, 2, 2})) << "one number for three";
    EXPECT_EQ(early.shapes.collisions.at(0).geometry.type, GeometryType::capsule);
    EXPECT_EQ(ModelUtils::robotFromXml(text)->version(), "1.2");
}

TEST(UrdfTolerance, TakesWhatXacroLeavesInExpandedFiles)
{
    EXPECT_THAT(complaintsAbout("<!-- ${a} <xacro:b/> --><robot name=\"r\" xmlns:xacro=\"http://x\"><link name=\"a$\"/>"
                                "<gazebo><![CDATA[${c}]]></gazebo></robot>"),
                testing::IsEmpty());
}

TEST(UrdfTolerance, SaysWhatItMakesOfValuesThatAreNotThere)
{
    auto const moved = [](std::string const& content, std::string const& type = "revolute") {
        return complaintsAbout(robot(link("root") + link("a") + joint("A", "root", "a", content, type)));
    };
    std::string const limit = "<limit lower=\"-1\" upper=\"1\" effort=\"1\" velocity=\"1\"/>";
    EXPECT_THAT(moved(limit + "<origin xyz=\"1 2\"/>"), ElementsAre("wrong-count"));
    EXPECT_THAT(moved(limit + "<axis/>"), ElementsAre("missing-attribute"));
    EXPECT_THAT(moved(limit + "<axis>0 0 1</axis>"), ElementsAre("unexpected-text"));
    EXPECT_THAT(moved("<limit/>"), ElementsAre("missing-limit"));
    EXPECT_THAT(moved("<limit/>", "continuous"), ElementsAre("missing-attribute"));
    Findings const mass = ModelUtils::diagnose(robot(
        "<link name=\"root\"><inertial><mass>1.5</mass><inertia ixx=\"1\" iyy=\"1\" izz=\"1\"/></inertial></link>"));
    ASSERT_EQ(mass.size(), 1U);
    EXPECT_EQ(mass[0].hint, "Write <mass value=\"1.5\"/>.");
    Findings const inertial = ModelUtils::diagnose(robot("<link name=\"root\"><inertial><mass/></inertial></link>"));
    ASSERT_EQ(inertial.size(), 1U);
    EXPECT_EQ(inertial[0].code, "incomplete-inertial");
    EXPECT_THAT(inertial[0].message, testing::HasSubstr("no mass and no inertia"));
}

TEST(UrdfTolerance, KeepsStrangeElementsWithoutAWord)
{
    std::string text = link("root");
    for (int i = 0; i < 5000; ++i) {
        text += "<strange/>";
    }
    ModelUtils::Reading const reading = ModelUtils::read(robot(text));
    EXPECT_TRUE(reading.findings.empty());
    EXPECT_EQ(reading.robot->records()->extensions.size(), 5000U);
}

TEST(UrdfTolerance, ReadsNumbersOfEveryForm)
{
    using Number = std::pair<std::string, float>;
    for (auto const& [number, expected] :
         {Number{"1", 1.0F}, Number{"+1", 1.0F}, Number{"-.5", -0.5F}, Number{"5.", 5.0F}, Number{"\t2e-1\n", 0.2F},
          Number{"1E+2", 100.0F}, Number{"1e-999", 0.0F}, Number{"0." + std::string(400, '0') + "1e2", 0.0F},
          Number{"007", 7.0F}, Number{"0.0000000000000000000000000000001e1", 1e-30F}}) {
        std::string const text = robot(arm("<dynamics damping=\"" + number + "\"/>"));
        EXPECT_EQ(tablesOf(text).joints.at("C").damping, expected) << number;
    }
}

TEST(UrdfTolerance, TakesLimitsWithoutBoundsAsNone)
{
    auto const limited = [](std::string const& limits) {
        return robot(link("root") + link("a") + joint("A", "root", "a", "<limit " + limits + "/>"));
    };
    std::string const text = limited("lower='-inf' upper='1e308' effort='inf'");
    EXPECT_THAT(complaintsAbout(text), ElementsAre());
    JointConfig const boundless = tablesOf(text).joints.at("A");
    EXPECT_THAT((std::vector{boundless.minAngle, boundless.maxAngle, boundless.maxTorque}),
                ElementsAre(-INFINITY, INFINITY, INFINITY));
    JointConfig const farthest = tablesOf(limited("lower='-1e30' upper='1e30'")).joints.at("A");
    EXPECT_TRUE(farthest.minAngle == -1e30F && farthest.maxAngle == 1e30F);
    for (char const* const limits : {"lower='1e31'", "upper='-inf'", "upper='1' velocity='-1e31'"}) {
        EXPECT_THAT(complaintsAbout(limited(limits)), ElementsAre("not-a-number")) << limits;
    }
}

}  // namespace
