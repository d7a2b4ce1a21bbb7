#include <algorithm>

#include <gmock/gmock.h>

#include "files.hpp"
#include "findings_of_text.hpp"
#include "robot/side_names.hpp"
#include "texts.hpp"

namespace RulesTest {

namespace {

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

using Tests::replaced;

/// "LINE CODE" of what the rules find about left and right.
Strings sidesOf(std::string const& text)
{
    Strings found = linesAndCodes(text);
    auto const isOfOthers = [](std::string const& finding) {
        return finding.find("mirrored") == finding.npos && finding.find("no-counterpart") == finding.npos &&
               finding.find("side") == finding.npos && finding.find("sensor-set") == finding.npos;
    };
    found.erase(std::remove_if(found.begin(), found.end(), isOfOthers), found.end());
    return found;
}

std::vector<std::string> markedOthersOf(std::string_view name)
{
    SideNames names;
    names.read(name);
    std::vector<std::string> others;
    for (std::size_t i = 0; names.areMarked() && i < names.size(); ++i) {
        others.push_back(names.other(i));
    }
    return others;
}

TEST(SideNames, LeadToTheOtherSide)
{
    using Pair = std::pair<char const*, char const*>;
    for (auto const& [name, other] :
         {Pair{"left_hip", "right_hip"}, Pair{"RightArm", "LeftArm"}, Pair{"ARM_LEFT", "ARM_RIGHT"},
          Pair{"wheel_l", "wheel_r"}, Pair{"LHipYaw", "RHipYaw"}, Pair{"j_l_wheel_y", "j_r_wheel_y"},
          Pair{"LF_HAA", "RF_HAA"}, Pair{"FL_hip", "FR_hip"}, Pair{"RL_calf", "RR_calf"}, Pair{"lh_kfe", "rh_kfe"}}) {
        EXPECT_THAT(markedOthersOf(name), testing::Contains(other)) << name;
        EXPECT_THAT(markedOthersOf(other), testing::Contains(name)) << other;
    }
    EXPECT_THAT(markedOthersOf("left_LR"), testing::ElementsAre("right_RR", "right_LR", "left_RR"));
    for (char const* const name : {"elbow", "joint_r1", "Label", "", "roll", "relative"}) {
        EXPECT_THAT(markedOthersOf(name), testing::IsEmpty()) << name;
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
    EXPECT_THAT(sidesOf(biped()), testing::IsEmpty());
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
             {replaced(whole, "mass value=\"1\"", "mass value=\"1.1\"", knee), {"18 mass-not-mirrored"}},
             {replaced(whole, "upper=\"2\"", "upper=\"2.1\"", kneeJoint), {"20 limits-not-mirrored"}},
             {replaced(whole, "effort=\"9\"", "effort=\"8\"", kneeJoint), {"20 effort-not-mirrored"}},
             {replaced(whole, "/></joint>", "/><dynamics damping=\"1\"/></joint>", kneeJoint),
              {"20 damping-not-mirrored"}},
             {replaced(whole, "0 1 0", "0 0.6 0.8", kneeJoint), {"19 axis-not-mirrored"}},
             {replaced(whole, "revolute", "fixed", kneeJoint), {"19 type-not-mirrored"}},
             // What the displaced joint carries is not told again.
             {replaced(whole, "0 0 -0.1", "0 0 -0.15", "<joint name=\"right_hip\""), {"16 place-not-mirrored"}},
             {replaced(whole, "</robot>", joint("left_toe", "left_knee_link", "0 0 0", "0 1 0", "") + "</robot>"),
              {"22 no-counterpart"}},
         }) {
        EXPECT_EQ(sidesOf(given.text), given.expected) << given.expected[0];
    }
}

TEST(Sides, CompareWhatIsAttachedToThem)
{
    std::string text = ModelUtils::toXml(*ModelUtils::read(biped()).robot);
    text = replaced(text, "</robotDescription>", R"(
<sensor name="LSole" parent="left_knee" type="camera"><placement xyz="0.1 0.02 0" rpy="0 0 0.3"/><attribute name="resolutions" value="9 9"/></sensor>
<sensor name="RSole" parent="right_knee" type="camera"><placement xyz="0.1 -0.02 0" rpy="0 0 -0.3"/><attribute name="resolutions" value="9 9"/></sensor>
<sensor name="LSonar" parent="trunk" type="sonar"><placement xyz="0.1 0.3 0"/><key>a</key><key>b</key></sensor>
<sensor name="RSonar" parent="trunk" type="sonar"><placement xyz="0.1 -0.1 0"/><key>c</key><key>d</key></sensor>
<wheel name="LWheel" parent="left_knee" maxTorque="3" maxVelocity="3"><placement xyz="0 0.1 0"/></wheel>
<wheel name="RWheel" parent="right_knee" maxTorque="3" maxVelocity="3"><placement xyz="0 -0.1 0"/></wheel>
<actuator name="LHand" parent="left_knee" min="0" max="1" maxTorque="5"><group><subJoint name="LF" ratio="1"><placement xyz="0.1 0.2 0"/></subJoint></group></actuator>
<actuator name="RHand" parent="right_knee" min="0" max="1" maxTorque="5.0"><group><subJoint name="RF" ratio="1"><placement xyz="0.1 -0.2 0"/></subJoint></group></actuator>
</robotDescription>)");
    EXPECT_THAT(sidesOf(text), testing::IsEmpty());
    struct Case {
        std::string start;
        std::string from;
        std::string to;
        std::string code;
    };
    for (Case const& given : std::vector<Case>{
             {"RSole", "0.1 -0.02", "0.1 -0.03", "sensor-not-mirrored"},
             {"RSole", "0 0 -0.3", "0 0 0.3", "sensor-not-mirrored"},
             {"RSole", "9 9", "9 8", "sensor-set-otherwise"},
             {"RSonar", "0.1 -0.1", "0.13 -0.1", "sensor-not-mirrored"},
             {"RWheel", "maxTorque=\"3\"", "maxTorque=\"4\"", "wheel-not-mirrored"},
             {"RWheel", "0 -0.1", "0.02 -0.1", "wheel-not-mirrored"},
             {"RHand", "maxTorque=\"5.0\"", "maxTorque=\"6\"", "actuator-not-mirrored"},
             {"RHand", "ratio=\"1\"", "ratio=\"2\"", "actuator-not-mirrored"},
             {"RHand", "0.1 -0.2", "0.1 -0.3", "actuator-not-mirrored"},
         }) {
        EXPECT_THAT(sidesOf(replaced(text, given.from, given.to, given.start)),
                    testing::ElementsAre(testing::EndsWith(" " + given.code)))
            << given.to;
    }
    std::string const humanoid = Tests::readFile(VARO_SOURCE_DIR "/robots/humanoid.xml");
    EXPECT_THAT(sidesOf(replaced(humanoid, "0 0.02 -0.1", "0 0.03 -0.1")),
                testing::ElementsAre("145 tip-not-mirrored"));
}

/// With more in the links, or in the joints, of the knees.
std::string bipedWith(std::string const& left, std::string const& right, std::string const& before = "</link>")
{
    std::string const start = before == "</link>" ? "<link name=\"" : "<joint name=\"";
    std::string const text = replaced(biped(), before, left + before, start + "left_knee");
    return replaced(text, before, right + before, start + "right_knee");
}

TEST(Sides, AreComparedInShapesAndMeshes)
{
    auto const shape = [](std::string const& xyz, std::string const& solid) {
        return "<collision><origin xyz=\"" + xyz + "\"/>\n<geometry>\n<" + solid + "/></geometry></collision>";
    };
    std::string const box = R"(box size="0.1 0.2 0.3")";
    struct Case {
        std::string left;
        std::string right;
        Strings expected;
    };
    for (Case const& given : std::vector<Case>{
             {shape("0 0.05 0", box), shape("0 -0.05 0", box), {}},
             {shape("0 0.05 0", box), shape("0 0.05 0", box), {"20 shapes-not-mirrored"}},
             {shape("0 0.05 0", box), shape("0 -0.05 0", R"(box size="0.1 0.2 0.4")"), {"22 shapes-not-mirrored"}},
             {shape("0 0 0", box), shape("0 0 0", R"(sphere radius="0.1")"), {"22 shapes-not-mirrored"}},
             {shape("0 0 0", box), "", {"9 shapes-not-mirrored"}},
         }) {
        EXPECT_EQ(sidesOf(bipedWith(given.left, given.right)), given.expected) << given.right;
    }
    auto const mesh = [](std::string const& file) {
        std::string const visual = "<visual><geometry><mesh filename=\"package://legs/" + file;
        return visual + ".stl\"/></geometry></visual>" + visual + "_foot.stl\"/></geometry></visual>";
    };
    EXPECT_THAT(sidesOf(bipedWith(mesh("left_shank"), mesh("right_shank"))), testing::IsEmpty());
    EXPECT_THAT(sidesOf(bipedWith(mesh("left_shank"), mesh("left_shank"))), testing::IsEmpty());  // one for both
    EXPECT_EQ(sidesOf(replaced(bipedWith(mesh("left_shank"), mesh("right_shank")), "right_shank_foot", "left_foot")),
              Strings{"18 mesh-of-other-side"});
}

/// Hips have equal values on both sides, rolls opposite ones.
TEST(Sides, HaveMimicsWithTheSignsOfTheirAxes)
{
    struct Case {
        std::string left;
        std::string right;
        bool isFine;
    };
    for (Case const& given : std::vector<Case>{
             {"hip\" multiplier=\"0.5\"", "hip\" multiplier=\"0.5\"", true},
             {"hip\" multiplier=\"0.5\"", "hip\" multiplier=\"-0.5\"", false},
             {"hip\" multiplier=\"0.5\"", "hip\" multiplier=\"0.6\"", false},
             {"hip\" offset=\"0.5\"", "hip\" offset=\"-0.5\"", false},
             {"roll\" multiplier=\"0.5\"", "roll\" multiplier=\"-0.5\"", true},
             {"roll\" multiplier=\"0.5\"", "roll\" multiplier=\"0.5\"", false},
         }) {
        std::string const text = bipedWith("<mimic joint=\"left_" + given.left + "/>",
                                           "<mimic joint=\"right_" + given.right + "/>", "</joint>");
        EXPECT_EQ(sidesOf(text), given.isFine ? Strings() : Strings{"20 mimic-not-mirrored"}) << given.right;
    }
}

TEST(Sides, OfRobotsThatDoNotMirrorAreToldOnce)
{
    std::string const turned =
        replaced(biped(), "xyz=\"0 0 0\"", "xyz=\"0 0.1 0\" rpy=\"0 0.7 0.4\"", "<joint name=\"right_roll\"");
    EXPECT_EQ(sidesOf(turned), Strings{"2 sides-not-mirrored"});
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
    EXPECT_THAT(sidesOf(text), testing::IsEmpty());
    EXPECT_EQ(sidesOf(replaced(text, "value=\"1\"", "value=\"1.1\"", "\"right_knee\"")).size(), 1U);
}

}  // namespace

}  // namespace RulesTest
