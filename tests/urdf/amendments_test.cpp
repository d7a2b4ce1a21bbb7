#include <algorithm>

#include <gmock/gmock.h>

#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;
using testing::ElementsAre;
using testing::IsEmpty;

std::string const declaration = "xmlns:varo=\"urn:varorobotmodel:description\"";

/// An arm of the joints A, B and C, and what stands behind it.
std::string armAnd(std::string const& content, std::string const& attributes = declaration)
{
    return "<robot name=\"r\" " + attributes + ">" + arm() + "<sensor name=\"S\" type=\"imu\"><parent link=\"a\"/>" +
           "</sensor>\n" + content + "</robot>";
}

std::string amended(std::string const& content, std::string const& attributes = {})
{
    return armAnd("<varo:description" + attributes + ">" + content + "</varo:description>");
}

TEST(UrdfAmendments, ChangeWhatTheyNameAndNothingElse)
{
    Tables const tables = tablesOf(amended(R"(
        <root name="Base"/>
        <joint name="A" max="2" motor="false" reflectionForced="true"><placement xyz="1 2 3"/>
            <mass value="4"/><mirror name="B"/><attribute name="material" value="steel"/></joint>
        <joint name="B" link=""/>
        <sensor name="S" type="led" without="settings"><key>one</key></sensor>
        <wheel name="W" parent="C" maxTorque="1" maxVelocity="2"><attribute name="material" value="rubber"/></wheel>
        <posture name="P"><angle of="B" value="0.5"/></posture>)"));
    JointConfig const& joint = tables.joints.at("A");
    EXPECT_EQ(joint.minAngle, -1.0F);
    EXPECT_EQ(joint.maxAngle, 2.0F);
    EXPECT_FALSE(joint.hasMotor);
    EXPECT_EQ(joint.placement.position(), (Varo::Math::Position3D{1.0F, 2.0F, 3.0F}));
    EXPECT_EQ(joint.mass, 4.0F);
    EXPECT_EQ(joint.mirrorName, "B");
    EXPECT_EQ(joint.linkName, "a");
    EXPECT_EQ(joint.attributes.at("material"), "steel");
    EXPECT_THAT(tables.reflectionForced, ElementsAre("A"));
    EXPECT_EQ(tables.root.name, "Base");
    EXPECT_EQ(tables.joints.at("B").linkName, "");
    EXPECT_EQ(tables.joints.at("C").maxAngle, 1.0F);
    EXPECT_EQ(tables.sensors.at("S").type, led);
    EXPECT_EQ(tables.sensors.at("S").parent, "A");
    EXPECT_THAT(tables.sensors.at("S").keys, ElementsAre("one"));
    EXPECT_EQ(tables.wheels.count("W"), 1U);
    EXPECT_EQ(tables.postures.size(), 1U);
    EXPECT_THAT(tables.chainNames, ElementsAre("A")) << "those of the tree";
}

TEST(UrdfAmendments, ReplaceListsAndLeaveOut)
{
    std::string const follower = robot(arm("<mimic joint=\"B\"/>"));
    auto const with = [&](std::string const& amendment) {
        std::string text = follower;
        return text.insert(text.rfind("</robot>"), "<varo:description" + amendment);
    };
    EXPECT_EQ(tablesOf(follower).actuators.size(), 1U);
    Tables const without =
        tablesOf(with(R"( without="actuator"><joint name="C" without="mimic placement"/><chain name="X" parent="root">
               <jointRef name="A"/><jointRef name="B"/><jointRef name="C"/></chain></varo:description>)"));
    EXPECT_THAT(without.actuators, IsEmpty());
    EXPECT_THAT(without.subActuators, IsEmpty());
    EXPECT_EQ(without.joints.at("C").mimic, nullptr);
    EXPECT_THAT(without.chainNames, ElementsAre("X"));
}

TEST(UrdfAmendments, SayThatNothingIsToBeInferred)
{
    std::string const plain = readFile(VARO_SOURCE_DIR "/robots/quadruped.urdf");
    auto const countMirrors = [](std::string const& text) {
        std::size_t count = 0;
        for (auto const& [name, joint] : tablesOf(text).joints) {
            count += joint.mirrorKind != noMirror ? 1U : 0U;
        }
        return count;
    };
    std::string complete = plain;
    complete.insert(complete.rfind("</robot>"), "<varo:description complete=\"true\"/>");
    EXPECT_GT(countMirrors(plain), 0U);
    EXPECT_EQ(countMirrors(complete), 0U);
}

struct Fault {
    std::string text;  ///< with "@" at the place of the finding
    char const* code;
};

TEST(UrdfAmendments, AreCheckedAsNativeTextsAre)
{
    std::vector<Fault> const faults = {
        {amended("<joint name=\"A\" @motr=\"false\"/>"), "unknown-attribute"},
        {amended("<joint name=\"A\" @max=\"1,5\"/>"), "wrong-value"},
        {amended("<joint name=\"A\" @max=\"1e40\"/>"), "wrong-value"},
        {amended("<joint @name=\"Z\" max=\"2\"/>"), "dangling-reference"},
        {amended("@<joint max=\"2\"/>"), "dangling-reference"},
        {amended("<sensor @name=\"A\"/>"), "dangling-reference"},
        {amended("<joint name=\"A\"/><joint @name=\"A\"/>"), "duplicate-name"},
        {amended("<joint name=\"A\" @without=\"placement mimmic\"/>"), "wrong-value"},
        {amended("<joint name=\"A\">@<mass/></joint>"), "missing-attribute"},
        {amended("<joint name=\"A\">@<mimic joint=\"A\"/></joint>"), "mimic-cycle"},
        {amended("<joint name=\"A\"><mirror @name=\"Z\"/></joint>"), "dangling-reference"},
        {amended("@<jiont name=\"A\"/>"), "unknown-element"},
        {amended("@text"), "unexpected-text"},
        {amended("", " @complete=\"perhaps\""), "wrong-value"},
        {amended("<root name=\"x\"/>@<root name=\"y\"/>"), "repeated-element"},
        {amended("<posture name=\"P\"><angle @of=\"Z\" value=\"1\"/></posture>"), "angle-of-unknown"},
        {amended("<wheel name=\"W\" parent=\"A\" @maxTorque=\"\" maxVelocity=\"1\"><attribute name=\"material\" "
                 "value=\"a\"/></wheel>"),
         "wrong-value"},
        {armAnd("@<varo:descripton/>"), "unknown-element"},
        {armAnd("@<varo:joint name=\"A\"/>"), "unknown-element"},
        {armAnd("<link name=\"x\">@<varo:description/></link>" + joint("X", "a", "x")), "unknown-element"},
        {armAnd("<link name=\"x\" @varo:b=\"1\"/>" + joint("X", "a", "x")), "unknown-attribute"},
        {armAnd("<varo:description/>@<varo:description/>"), "surplus-element"},
    };
    for (Fault const& fault : faults) {
        SCOPED_TRACE(fault.text.substr(fault.text.find('@')));
        Marked const marked = withoutMark(fault.text);
        Findings const findings = ModelUtils::diagnose(marked.text);
        EXPECT_TRUE(std::any_of(findings.begin(), findings.end(), [&](Finding const& finding) {
            return finding.code == fault.code && finding.line == marked.line && finding.column == marked.column;
        })) << (findings.empty() ? "no finding" : findings.front().code + " " + findings.front().message);
    }
}

TEST(UrdfAmendments, GoByTheNamespace)
{
    std::string const content = "description><joint name=\"A\" max=\"2\"/></";
    auto const maximum = [](std::string const& text) { return tablesOf(text).joints.at("A").maxAngle; };
    std::string const ours = "<v:" + content + "v:description>";
    EXPECT_EQ(maximum(armAnd(ours, "xmlns:v=\"urn:varorobotmodel:description\"")), 2.0F);
    std::string const others = armAnd("<varo:" + content + "varo:description>", "xmlns:varo=\"urn:other\"");
    EXPECT_EQ(maximum(others), 1.0F);
    std::string const written = ModelUtils::toUrdf(*ModelUtils::robotFromXml(others));
    EXPECT_NE(written.find("<varo:" + content), std::string::npos) << "kept as text of others";
    EXPECT_EQ(maximum(written), 1.0F);
}

}  // namespace
