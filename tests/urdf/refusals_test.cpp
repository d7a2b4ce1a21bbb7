#include <algorithm>

#include <gmock/gmock.h>

#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;

struct Refusal {
    char const* fault;
    std::string text;  ///< with "@" where the finding must point to
    char const* code;
};

std::string twoLinks(std::string const& joints)
{
    return "<robot name='r'>\n<link name='root'/>\n<link name='a'/>\n" + joints + "</robot>";
}

std::string fixedJoint(std::string const& content, std::string const& name = "name='A'")
{
    return "<joint type='fixed' " + name + ">" + content + "</joint>";
}

std::string jointWith(std::string const& content)
{
    return twoLinks("<joint name='A' type='revolute'>\n  <parent link='root'/><child link='a'/>\n  " + content +
                    "<limit lower='0' upper='1'/></joint>\n");
}

std::string rootWith(std::string const& content)
{
    return robot("<link name='root'>" + content + "</link>");
}

std::string const ends = "<parent link='root'/><child link='a'/>";
std::string const still = "<limit lower='0' upper='0'/>";

std::vector<Refusal> const refusals = {
    {"no link", "\n @<robot name='r'></robot>", "no-link"},
    {"two roots", "<robot name='r'><link name='root'/>\n  @<link name='a'/></robot>", "several-roots"},
    {"unknown parent link", twoLinks(fixedJoint("<parent @link='z'/><child link='a'/>")), "unknown-link"},
    {"unknown child link", twoLinks(fixedJoint("\n<parent link='a'/><child\t@link='z'/>")), "unknown-link"},
    {"two parents",
     twoLinks(joint("A", "root", "a") + fixedJoint("<parent link='root'/><child @link='a'/>", "name='B'")),
     "two-parents"},
    {"cycle of one", twoLinks(joint("A", "root", "a") + "<link name='x'/>\n@" + joint("B", "x", "x")), "joint-cycle"},
    {"cycle of all", robot(link("a") + link("b") + "\n" + joint("A", "a", "b") + "@" + joint("B", "b", "a")),
     "joint-cycle"},
    {"no parent", twoLinks("@" + fixedJoint("<child link='a'/>")), "unattached-joint"},
    {"no child", twoLinks(" @" + fixedJoint("<parent link='a'/>")), "unattached-joint"},
    {"parent without link", twoLinks(fixedJoint("@<parent/><child link='a'/>")), "unattached-joint"},
    {"two joints of a name",
     twoLinks(link("b") + joint("A", "root", "a") + "\n" +
              fixedJoint("<parent link='a'/><child link='b'/>", "@name='A'")),
     "duplicate-name"},
    {"two links of a name", twoLinks("<link @name='a'/>" + joint("A", "root", "a")), "duplicate-name"},
    {"link without a name", twoLinks("@<link/>" + joint("A", "root", "a")), "missing-name"},
    {"joint with an empty name", twoLinks("@" + fixedJoint(ends, "name=''")), "missing-name"},
    {"endless name", twoLinks("<link @name='" + std::string(2000, 'x') + "'/>" + joint("A", "root", "a")),
     "name-too-long"},
    {"zero axis", jointWith("<axis @xyz='0 0.0 -0'/>"), "zero-axis"},
    {"unknown type", twoLinks("<joint name='A' @type='hinge'>" + ends + "</joint>"), "unknown-joint-type"},
    {"word for a number", jointWith("<origin @xyz='0 zero 0'/>"), "not-a-number"},
    {"not a number", jointWith("<origin xyz='0 0 0' @rpy='nan 0 0'/>"), "not-a-number"},
    {"infinite place", jointWith("<origin @xyz='0 inf 0'/>"), "not-a-number"},
    {"hexadecimal", jointWith("<dynamics @damping='0x10'/>"), "not-a-number"},
    {"word that would not count", twoLinks(joint("A", "root", "a", "<limit @upper='none'/>", "continuous")),
     "not-a-number"},
    {"unit behind", jointWith("<origin @xyz='1m 0 0'/>"), "not-a-number"},
    {"commas", jointWith("<axis @xyz='0,0,1'/>"), "not-a-number"},
    {"two signs", jointWith("<origin @xyz='+-1 0 0'/>"), "not-a-number"},
    {"number too large", jointWith("<origin @xyz='1e31 0 0'/>"), "not-a-number"},
    {"number too long", jointWith("<origin @xyz='1" + std::string(400, '0') + "e-2 0 0'/>"), "not-a-number"},
    {"empty number", jointWith("<dynamics @friction=''/>"), "not-a-number"},
    {"mass that is none", rootWith("<inertial><mass @value='heavy'/><inertia ixx='1'/></inertial>"), "not-a-number"},
    {"radius that is none", rootWith("<collision><geometry>\n<sphere @radius='nan'/></geometry></collision>"),
     "not-a-number"},
    {"scale without bound", rootWith("<visual><geometry><mesh filename='m' @scale='1 inf 1'/></geometry></visual>"),
     "not-a-number"},
    {"word for a colour", robot(link("root") + "<material name='m'><color @rgba='red'/></material>"), "not-a-number"},
    {"SDF", "@<sdf version='1.7'><model name='a'/></sdf>", "other-format"},
    {"MuJoCo's format", "@<mujoco><worldbody/></mujoco>", "other-format"},
    {"SRDF", "@<robot name='r'><group name='arm'/><link_sphere/></robot>", "other-format"},
    {"xacro element", robot("\n<gazebo>@<xacro:if value='x'><link/></xacro:if></gazebo>"), "xacro-file"},
    {"xacro expression beside other faults",
     robot("<joint/>\n<link name='a'/><link @name='${p}a'><inertial><mass value='${m}'/></inertial></link>"),
     "xacro-file"},
    {"xacro expression written with a reference, beside one in a comment",
     robot("<gazebo><!-- ${a} --></gazebo><gazebo><plugin @b='&#36;{c}'/></gazebo>"), "xacro-file"},
    {"xacro substitution in a text", robot("<gazebo><plugin>@<path>$(find r)/x</path></plugin></gazebo>"),
     "xacro-file"},
    {"mimic of itself", jointWith("@<mimic joint='A'/>"), "mimic-cycle"},
    {"multipliers beyond all bounds",
     twoLinks(link("b") + link("c") + joint("A", "root", "a") +
              joint("B", "a", "b", still + "<mimic joint='A' multiplier='1e29'/>") +
              joint("C", "b", "c", still + "@<mimic joint='B' multiplier='1e29'/>")),
     "not-a-number"},
};

/// Each fault gives one error, exactly where it is, and no error that only follows from it.
TEST(UrdfRefusals, NameTheFaultAndItsPlace)
{
    for (Refusal const& refusal : refusals) {
        SCOPED_TRACE(refusal.fault);
        Marked const marked = withoutMark(refusal.text);
        Findings errors = ModelUtils::diagnose(marked.text);
        errors.erase(std::remove_if(errors.begin(), errors.end(),
                                    [](Finding const& finding) { return finding.severity != Severity::error; }),
                     errors.end());
        ASSERT_EQ(errors.size(), 1U);
        EXPECT_EQ(errors[0].code, refusal.code);
        EXPECT_EQ(std::pair(errors[0].line, errors[0].column), std::pair(marked.line, marked.column));
        EXPECT_FALSE(ModelUtils::checkXml(marked.text));
        EXPECT_THROW(ModelUtils::robotFromXml(marked.text), DescriptionError);
    }
}

TEST(UrdfRefusals, AreAllFoundInOnePass)
{
    EXPECT_THAT(complaintsAbout(robot(link("a") + link("a") + joint("A", "a", "z") +
                                      joint("B", "a", "y", "<axis xyz=\"0 0 0\"/><limit lower=\"x\"/>") + link("b") +
                                      link("c") + joint("C", "b", "c") + joint("D", "c", "b"))),
                testing::UnorderedElementsAre("duplicate-name", "unknown-link", "unknown-link", "zero-axis",
                                              "not-a-number", "joint-cycle"));
}

}  // namespace
