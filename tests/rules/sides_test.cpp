#include <algorithm>
#include <sstream>

#include <gmock/gmock.h>

#include "files.hpp"
#include "robot/side_names.hpp"
#include "varo/model/lint.hpp"
#include "varo/model/model_utils.hpp"

namespace Varo::Model {

namespace {

using Strings = std::vector<std::string>;

/// A joint of a leg, with the link that it moves. `y` and `axis` are as the text has them.
std::string joint(std::string const& name, std::string const& parent, std::string const& xyz, std::string const& axis,
                  std::string const& limits)
{
    return "<link name=\"" + name + "_link\"><inertial><origin xyz=\"0.01 0 -0.1\"/><mass value=\"1\"/>" +
           "<inertia ixx=\"0.1\" iyy=\"0.1\" izz=\"0.1\"/></inertial></link>\n<joint name=\"" + name +
           "\" type=\"revolute\"><parent link=\"" + parent + "\"/><child link=\"" + name + "_link\"/><origin xyz=\"" +
           xyz + "\"/><axis xyz=\"" + axis + "\"/>\n<limit " + limits + " effort=\"9\" velocity=\"4\"/></joint>\n";
}

std::string leg(std::string const& side, std::string const& y, std::string const& roll)
{
    return joint(side + "_roll", "trunk", "0 " + y + " 0", "1 0 0", roll) +
           joint(side + "_hip", side + "_roll_link", "0 0 -0.1", "0 1 0", "lower=\"-1\" upper=\"2\"") +
           joint(side + "_knee", side + "_hip_link", "0 0 -0.4", "0 1 0", "lower=\"0\" upper=\"2\"");
}

/// Legs that mirror each other in y = 0.1: rolls with opposite values, hips and knees with equal ones.
std::string biped()
{
    return "<robot name=\"A\">\n<link name=\"trunk\"/>\n" + leg("left", "0.2", "lower=\"-0.5\" upper=\"1\"") +
           leg("right", "0", "lower=\"-1\" upper=\"0.5\"") + "</robot>";
}

std::string replaced(std::string text, std::string const& from, std::string const& to)
{
    std::size_t const place = text.find(from);
    EXPECT_NE(place, std::string::npos) << from;
    return place == std::string::npos ? text : text.replace(place, from.size(), to);
}

/// The same in what follows `start`, which is how a test changes one side only.
std::string replacedAfter(std::string const& text, std::string const& start, std::string const& from,
                          std::string const& to)
{
    std::size_t const place = text.find(start);
    EXPECT_NE(place, std::string::npos) << start;
    return text.substr(0, place) + replaced(text.substr(place), from, to);
}

/// "LINE CODE" of what the rules find about left and right.
Strings findingsOf(std::string const& text)
{
    auto const reading = ModelUtils::read(text);
    Strings findings;
    for (Finding const& finding : lint(*reading.robot)) {
        bool const isOfSides = finding.code.find("mirrored") != std::string::npos || finding.code == "no-counterpart";
        if (isOfSides) {
            findings.push_back(std::to_string(finding.line) + " " + finding.code);
        }
    }
    return findings;
}

TEST(SideNames, LeadToTheOtherSide)
{
    for (auto const& [name, other] : std::vector<std::pair<std::string, std::string>>{
             {"left_hip", "right_hip"},
             {"RightArm", "LeftArm"},
             {"ARM_LEFT", "ARM_RIGHT"},
             {"wheel_l", "wheel_r"},
             {"LHipYaw", "RHipYaw"},
             {"j_l_wheel_y", "j_r_wheel_y"},
             {"LF_HAA", "RF_HAA"},
             {"FL_hip", "FR_hip"},
             {"RL_calf", "RR_calf"},
             {"lh_kfe", "rh_kfe"},
         }) {
        SideNames const names = otherSideOf(name);
        EXPECT_TRUE(names.areMarked) << name;
        EXPECT_THAT(names.others, testing::Contains(other)) << name;
        EXPECT_THAT(otherSideOf(other).others, testing::Contains(name)) << other;
    }
    for (char const* const name : {"elbow", "joint_r1", "Label", "", "roll", "relative"}) {
        EXPECT_FALSE(otherSideOf(name).areMarked) << name;
    }
    EXPECT_EQ(withoutSides("LF_HAA"), withoutSides("RH_HAA"));
}

TEST(Sides, OfAUrdfBecomeMirrorsWhereTheirPlacesProveIt)
{
    auto const reading = ModelUtils::read(biped());
    auto const& joints = reading.robot->records()->joints;
    EXPECT_EQ(joints.find("left_roll")->mirrorName, "right_roll");
    EXPECT_EQ(joints.find("right_roll")->mirrorName, "left_roll");
    EXPECT_EQ(joints.find("left_roll")->mirrorKind, reflectedMirror);
    EXPECT_EQ(joints.find("left_knee")->mirrorKind, plainMirror);
    EXPECT_THAT(findingsOf(biped()), testing::IsEmpty());
    EXPECT_THAT(ModelUtils::toXml(*reading.robot), testing::HasSubstr("<mirror name=\"right_knee\"/>"));

    ModelUtils::ReadOptions options;
    options.inferMirrors = false;
    EXPECT_EQ(ModelUtils::read(biped(), options).robot->records()->joints.find("left_roll")->mirrorKind, noMirror);
}

TEST(Sides, AreComparedInAllThatMirrors)
{
    std::string const knee = "\"right_knee_link\"";
    std::string const kneeJoint = "<joint name=\"right_knee\"";
    struct Case {
        std::string text;
        Strings expected;
    };
    std::string const whole = biped();
    for (Case const& given : std::vector<Case>{
             {replacedAfter(whole, knee, "mass value=\"1\"", "mass value=\"1.1\""), {"18 mass-not-mirrored"}},
             {replacedAfter(whole, knee, "0.01 0 -0.1", "0.01 0.01 -0.1"), {"18 com-not-mirrored"}},
             {replacedAfter(whole, knee, "iyy=\"0.1\"", "iyy=\"0.11\""), {"18 inertia-not-mirrored"}},
             {replacedAfter(whole, kneeJoint, "upper=\"2\"", "upper=\"2.1\""), {"20 limits-not-mirrored"}},
             {replacedAfter(whole, kneeJoint, "effort=\"9\"", "effort=\"8\""), {"20 effort-not-mirrored"}},
             {replacedAfter(whole, kneeJoint, "velocity=\"4\"", "velocity=\"5\""), {"20 velocity-not-mirrored"}},
             {replacedAfter(whole, kneeJoint, "/></joint>", "/><dynamics damping=\"1\"/></joint>"),
              {"20 damping-not-mirrored"}},
             {replacedAfter(whole, kneeJoint, "0 1 0", "0 0.6 0.8"), {"19 axis-not-mirrored"}},
             {replacedAfter(whole, kneeJoint, "revolute", "fixed"), {"19 type-not-mirrored"}},
             // What the displaced joint carries is not told again.
             {replacedAfter(whole, "<joint name=\"right_hip\"", "0 0 -0.1", "0 0 -0.15"), {"16 place-not-mirrored"}},
             {replaced(whole, "</robot>", joint("left_toe", "left_knee_link", "0 0 0", "0 1 0", "") + "</robot>"),
              {"22 no-counterpart"}},
         }) {
        EXPECT_EQ(findingsOf(given.text), given.expected) << given.expected[0];
    }
}

TEST(Sides, CompareSensorsAndWheels)
{
    std::string text = ModelUtils::toXml(*ModelUtils::read(biped()).robot);
    text = replaced(text, "</robotDescription>", R"(
<sensor name="LSole" parent="left_knee" type="bumper"><placement xyz="0.1 0.02 0"/></sensor>
<sensor name="RSole" parent="right_knee" type="bumper"><placement xyz="0.1 -0.02 0"/></sensor>
<wheel name="LWheel" parent="left_knee" maxTorque="3" maxVelocity="3"/>
<wheel name="RWheel" parent="right_knee" maxTorque="3" maxVelocity="3"/>
</robotDescription>)");
    EXPECT_THAT(findingsOf(text), testing::IsEmpty());
    EXPECT_THAT(findingsOf(replaced(text, "0.1 -0.02", "0.1 -0.03")),
                testing::ElementsAre(testing::EndsWith(" sensor-not-mirrored")));
    EXPECT_THAT(findingsOf(replacedAfter(text, "RWheel", "maxTorque=\"3\"", "maxTorque=\"4\"")),
                testing::ElementsAre(testing::EndsWith(" wheel-not-mirrored")));
}

TEST(Sides, OfRobotsThatDoNotMirrorAreToldOnce)
{
    std::string const turned =
        replacedAfter(biped(), "<joint name=\"right_roll\"", "xyz=\"0 0 0\"", "xyz=\"0 0.1 0\" rpy=\"0 0.7 0.4\"");
    EXPECT_EQ(findingsOf(turned), Strings{"2 sides-not-mirrored"});
    EXPECT_EQ(ModelUtils::read(turned).robot->records()->joints.find("left_roll")->mirrorKind, noMirror);
}

TEST(Sides, OfANativeTextAreComparedAndNeverMade)
{
    auto const reading = ModelUtils::read(biped());
    std::string text = ModelUtils::toXml(*reading.robot);
    for (std::size_t at = text.find("<mirror"); at != std::string::npos; at = text.find("<mirror")) {
        text.erase(at, text.find('>', at) + 1 - at);
    }
    auto const native = ModelUtils::read(text);
    ASSERT_NE(native.robot, nullptr);
    EXPECT_EQ(native.robot->records()->joints.find("left_roll")->mirrorKind, noMirror);
    EXPECT_THAT(findingsOf(text), testing::IsEmpty());
    EXPECT_EQ(findingsOf(replacedAfter(text, "\"right_knee\"", "value=\"1\"", "value=\"1.1\"")).size(), 1U);
}

TEST(Sides, OfRealRobotsDifferWhereSomebodyLooked)
{
    auto const files = Tests::filesIn(Tests::realRobotsFolder(), ".urdf");
    if (files.empty()) {
        GTEST_SKIP() << "There are no robots in " << Tests::realRobotsFolder() << ".";
    }
    Strings expected;
    std::istringstream lines(Tests::readFile(VARO_SOURCE_DIR "/tests/rules/data/sides_of_real_robots.txt"));
    for (std::string line; std::getline(lines, line);) {
        if (line[0] != '#') {
            expected.push_back(line);
        }
    }
    Strings found;
    for (std::string const& file : files) {
        for (std::string const& finding : findingsOf(Tests::readFile(file))) {
            found.push_back(std::filesystem::path(file).filename().string() + " " + finding);
        }
    }
    EXPECT_EQ(found, expected);
}

/// A fault put into what follows `start`, all on one line of the text.
struct Fault {
    std::string start;
    std::string from;
    std::string to;
    std::string code;
};

void expectAllFound(std::string const& robot, std::vector<Fault> const& faults)
{
    std::string text = Tests::readFile(Tests::realRobotsFolder() + "/" + robot + ".urdf");
    Strings expected;
    for (Fault const& fault : faults) {
        std::size_t const start = text.find(fault.start);
        ASSERT_NE(start, std::string::npos) << fault.start;
        std::size_t place = text.find(fault.from, start);
        ASSERT_NE(place, std::string::npos) << fault.from;
        place = fault.code[0] == 't' ? start : place;  // types stand at the joint
        auto const line = std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(place), '\n') + 1;
        expected.push_back(std::to_string(line) + " " + fault.code);
        text = replacedAfter(text, fault.start, fault.from, fault.to);
    }
    EXPECT_THAT(findingsOf(text), testing::IsSupersetOf(expected)) << robot;
}

TEST(Sides, OfRealRobotsShowTenSeededFaultsEachOnItsLine)
{
    if (Tests::filesIn(Tests::realRobotsFolder(), ".urdf").empty()) {
        GTEST_SKIP() << "There are no robots in " << Tests::realRobotsFolder() << ".";
    }
    expectAllFound(
        "atlas_convex_hull",
        {
            {R"(<link name="r_uleg")", R"(0 0 -0.21)", R"(0 0.01 -0.21)", "com-not-mirrored"},
            {R"(<link name="r_larm")", R"(mass value="3.248")", R"(mass value="3.348")", "mass-not-mirrored"},
            {R"(<link name="r_uleg")", R"(ixx="0.09")", R"(ixx="0.08")", "inertia-not-mirrored"},
            {R"(<joint name="r_leg_hpx")", R"(lower="-0.523599")", R"(lower="-0.4")", "limits-not-mirrored"},
            {R"(<joint name="r_leg_akx")", R"(upper="0.8")", R"(upper="0.7")", "limits-not-mirrored"},
            {R"(<joint name="r_arm_ely")", R"(effort=")", R"(effort="1)", "effort-not-mirrored"},
            {R"(<joint name="r_leg_kny")", R"(velocity="12")", R"(velocity="2")", "velocity-not-mirrored"},
            {R"(<joint name="r_leg_hpz")", R"(0 0 1)", R"(0 0 -1)", "axis-direction-not-mirrored"},
            {R"(<joint name="r_arm_shx")", R"(0 -0.11 -0.245)", R"(0 -0.11 -0.255)", "place-not-mirrored"},
            {R"(<joint name="r_leg_kny")", R"(damping="0.1")", R"(damping="0.2")", "damping-not-mirrored"},
        });
    expectAllFound(
        "g1_inspire_hands",
        {
            {R"(<link name="right_elbow_link")", R"(0.064956 -0.004454)", R"(0.064956 0.004454)", "com-not-mirrored"},
            {R"(<link name="right_elbow_link")", R"(mass value="0.6")", R"(mass value="0.7")", "mass-not-mirrored"},
            {R"(<link name="right_hip_roll_link")", R"(ixx="0.0023773")", R"(ixx="0.00249617")",
             "inertia-not-mirrored"},
            {R"(<joint name="right_hip_roll_joint")", R"(lower="-2.9671")", R"(lower="-2.9")", "limits-not-mirrored"},
            {R"(<joint name="right_knee_joint")", R"(upper="2.8798")", R"(upper="2.8")", "limits-not-mirrored"},
            {R"(<joint name="right_knee_joint")", R"(xyz="-0.078273)", R"(xyz="-0.068273)", "place-not-mirrored"},
            {R"(<joint name="right_ankle_roll_joint")", R"(effort="35")", R"(effort="25")", "effort-not-mirrored"},
            {R"(<joint name="right_hip_roll_joint")", R"(velocity="20")", R"(velocity="2")", "velocity-not-mirrored"},
            {R"(<joint name="right_index_2_joint")", R"(multiplier=")", R"(multiplier="2)", "mimic-not-mirrored"},
            {R"(<joint name="right_elbow_joint")", R"("revolute")", R"("fixed")", "type-not-mirrored"},
        });
    expectAllFound(
        "pr2",
        {
            {R"(<link name="l_shoulder_pan_link")", R"(-0.001201 0.024513)", R"(-0.001201 0.064513)",
             "com-not-mirrored"},
            {R"(<link name="l_elbow_flex_link")", R"(mass value="1.90327")", R"(mass value="2.9")",
             "mass-not-mirrored"},
            {R"(<link name="l_elbow_flex_link")", R"(ixx="0.0034)", R"(ixx="0.0044)", "inertia-not-mirrored"},
            {R"(<joint name="l_shoulder_lift_joint")", R"(lower="-0.5236")", R"(lower="-0.4")", "limits-not-mirrored"},
            {R"(<joint name="l_elbow_flex_joint")", R"(upper="0.00")", R"(upper="0.10")", "limits-not-mirrored"},
            {R"(<joint name="l_wrist_flex_joint")", R"(effort="10")", R"(effort="20")", "effort-not-mirrored"},
            {R"(<joint name="l_shoulder_lift_joint")", R"(velocity="2.082")", R"(velocity="3")",
             "velocity-not-mirrored"},
            {R"(<joint name="l_forearm_roll_joint")", R"(1 0 0)", R"(-1 0 0)", "axis-direction-not-mirrored"},
            {R"(<joint name="l_wrist_flex_joint")", R"(0.321 0 0)", R"(0.331 0 0)", "place-not-mirrored"},
            {R"(<joint name="r_forearm_cam_frame_joint")", R"(.135 0 .044)", R"(.135 0 .144)", "place-not-mirrored"},
        });
}

}  // namespace

}  // namespace Varo::Model
