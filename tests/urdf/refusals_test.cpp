#include <algorithm>

#include <gmock/gmock.h>

#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;

struct Refusal {
    char const* fault;
    /// With "@" where the finding must point to; it is taken out before the text is read.
    std::string text;
    char const* code;
};

std::string twoLinks(std::string const& joints)
{
    return "<robot name=\"r\">\n<link name=\"root\"/>\n<link name=\"a\"/>\n" + joints + "</robot>";
}

std::string jointWith(std::string const& content)
{
    return twoLinks("<joint name=\"A\" type=\"revolute\">\n  <parent link=\"root\"/><child link=\"a\"/>\n  " + content +
                    "<limit lower=\"0\" upper=\"1\"/></joint>\n");
}

std::vector<Refusal> const refusals = {
    {"no link", "\n @<robot name=\"r\"></robot>", "no-link"},
    {"two roots", "<robot name=\"r\"><link name=\"root\"/>\n  @<link name=\"a\"/></robot>", "several-roots"},
    {"unknown parent link",
     twoLinks("<joint name=\"A\" type=\"fixed\"><parent @link=\"z\"/><child link=\"a\"/></joint>"), "unknown-link"},
    {"unknown child link",
     twoLinks("<joint name=\"A\" type=\"fixed\">\n<parent link=\"a\"/><child\t@link=\"z\"/></joint>"), "unknown-link"},
    {"two parents",
     twoLinks(joint("A", "root", "a") + "<joint name=\"B\" type=\"fixed\"><parent link=\"root\"/><child "
                                        "@link=\"a\"/></joint>"),
     "two-parents"},
    {"cycle of one", twoLinks(joint("A", "root", "a") + "<link name=\"x\"/>\n@" + joint("B", "x", "x")), "joint-cycle"},
    {"cycle of all",
     "<robot name=\"r\"><link name=\"a\"/><link name=\"b\"/>\n" + joint("A", "a", "b") + "@" + joint("B", "b", "a") +
         "</robot>",
     "joint-cycle"},
    {"no parent", twoLinks("@<joint name=\"A\" type=\"fixed\"><child link=\"a\"/></joint>"), "unattached-joint"},
    {"no child", twoLinks(" @<joint name=\"A\" type=\"fixed\"><parent link=\"a\"/></joint>"), "unattached-joint"},
    {"parent without link", twoLinks("<joint name=\"A\" type=\"fixed\">@<parent/><child link=\"a\"/></joint>"),
     "unattached-joint"},
    {"two joints of a name",
     twoLinks("<link name=\"b\"/>" + joint("A", "root", "a") +
              "\n<joint @name=\"A\" type=\"fixed\"><parent link=\"a\"/><child link=\"b\"/></joint>"),
     "duplicate-name"},
    {"two links of a name", twoLinks("<link @name=\"a\"/>" + joint("A", "root", "a")), "duplicate-name"},
    {"link without a name", twoLinks("@<link/>" + joint("A", "root", "a")), "missing-name"},
    {"joint with an empty name",
     twoLinks("@<joint name=\"\" type=\"fixed\"><parent link=\"root\"/><child link=\"a\"/></joint>"), "missing-name"},
    {"endless name", twoLinks("<link @name=\"" + std::string(2000, 'x') + "\"/>" + joint("A", "root", "a")),
     "name-too-long"},
    {"zero axis", jointWith("<axis @xyz=\"0 0.0 -0\"/>"), "zero-axis"},
    {"unknown type", twoLinks("<joint name=\"A\" @type=\"hinge\"><parent link=\"root\"/><child link=\"a\"/></joint>"),
     "unknown-joint-type"},
    {"word for a number", jointWith("<origin @xyz=\"0 zero 0\"/>"), "not-a-number"},
    {"not a number", jointWith("<origin xyz=\"0 0 0\" @rpy=\"nan 0 0\"/>"), "not-a-number"},
    {"infinite place", jointWith("<origin @xyz=\"0 inf 0\"/>"), "not-a-number"},
    {"hexadecimal", jointWith("<dynamics @damping=\"0x10\"/>"), "not-a-number"},
    {"word that would not count",
     twoLinks("<joint name=\"A\" type=\"continuous\"><parent link=\"root\"/><child link=\"a\"/>"
              "<limit @upper=\"none\"/></joint>"),
     "not-a-number"},
    {"unit behind", jointWith("<origin @xyz=\"1m 0 0\"/>"), "not-a-number"},
    {"commas", jointWith("<axis @xyz=\"0,0,1\"/>"), "not-a-number"},
    {"two signs", jointWith("<origin @xyz=\"+-1 0 0\"/>"), "not-a-number"},
    {"number too large", jointWith("<origin @xyz=\"1e31 0 0\"/>"), "not-a-number"},
    {"number too long", jointWith("<origin @xyz=\"1" + std::string(400, '0') + "e-2 0 0\"/>"), "not-a-number"},
    {"empty number", jointWith("<dynamics @friction=\"\"/>"), "not-a-number"},
    {"mass that is none",
     twoLinks("<link name=\"b\"><inertial><mass @value=\"heavy\"/><inertia ixx=\"1\"/></inertial></link>" +
              joint("A", "root", "a") + joint("B", "root", "b")),
     "not-a-number"},
    {"radius that is none",
     "<robot name=\"r\"><link name=\"root\"><collision><geometry>\n<sphere "
     "@radius=\"nan\"/></geometry></collision></link>"
     "</robot>",
     "not-a-number"},
    {"scale without bound",
     "<robot name=\"r\"><link name=\"root\"><visual><geometry><mesh filename=\"m\" @scale=\"1 inf "
     "1\"/></geometry></visual>"
     "</link></robot>",
     "not-a-number"},
    {"word for a colour",
     "<robot name=\"r\"><link name=\"root\"/><material name=\"m\"><color @rgba=\"red\"/></material></robot>",
     "not-a-number"},
    {"SDF", "@<sdf version=\"1.7\"><model name=\"a\"/></sdf>", "other-format"},
    {"MuJoCo's format", "@<mujoco><worldbody/></mujoco>", "other-format"},
    {"SRDF", "@<robot name=\"r\"><group name=\"arm\"/><link_sphere/></robot>", "other-format"},
    {"xacro element", "<robot name=\"r\">\n<gazebo>@<xacro:if value=\"x\"><link/></xacro:if></gazebo></robot>",
     "xacro-file"},
    {"xacro expression beside other faults",
     robot("<joint/>\n<link name=\"a\"/><link @name=\"${p}a\"><inertial><mass value=\"${m}\"/></inertial></link>"),
     "xacro-file"},
    {"xacro substitution in a text", robot("<gazebo><plugin>@<path>$(find r)/x</path></plugin></gazebo>"),
     "xacro-file"},
    {"mimic of itself", jointWith("@<mimic joint=\"A\"/>"), "mimic-cycle"},
    {"multipliers beyond all bounds",
     twoLinks("<link name=\"b\"/><link name=\"c\"/>" + joint("A", "root", "a") +
              joint("B", "a", "b", "<limit lower=\"0\" upper=\"0\"/><mimic joint=\"A\" multiplier=\"1e29\"/>") +
              joint("C", "b", "c", "<limit lower=\"0\" upper=\"0\"/>@<mimic joint=\"B\" multiplier=\"1e29\"/>")),
     "not-a-number"},
};

/// Each fault gives one error, exactly where it is, and no error that only follows from it.
TEST(UrdfRefusals, NameTheFaultAndItsPlace)
{
    for (Refusal const& refusal : refusals) {
        SCOPED_TRACE(refusal.fault);
        std::string text = refusal.text;
        std::size_t const place = text.find('@');
        ASSERT_NE(place, text.npos);
        text.erase(place, 1);
        auto const line = 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(place), '\n');
        std::size_t const lineStart = place == 0 ? 0 : text.rfind('\n', place - 1) + 1;

        Findings errors = ModelUtils::diagnose(text);
        errors.erase(std::remove_if(errors.begin(), errors.end(),
                                    [](Finding const& finding) { return finding.severity != Severity::error; }),
                     errors.end());
        ASSERT_EQ(errors.size(), 1U);
        EXPECT_EQ(errors[0].code, refusal.code);
        EXPECT_EQ(errors[0].line, line);
        EXPECT_EQ(errors[0].column, static_cast<int>(place - lineStart + 1));
        EXPECT_FALSE(ModelUtils::checkXml(text));
        EXPECT_THROW(ModelUtils::robotFromXml(text), DescriptionError);
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
