#include <algorithm>

#include <gmock/gmock.h>

#include "files.hpp"
#include "findings_of_text.hpp"

namespace RulesTest {

namespace {

struct Replacement {
    std::string from;  ///< stands once in the text
    std::string to;
};

std::size_t placeOf(std::string const& text, std::string const& part)
{
    std::size_t const place = text.find(part);
    EXPECT_TRUE(place != std::string::npos && text.find(part, place + 1) == std::string::npos) << part;
    return place;
}

std::string lineOf(std::string const& text, std::string const& part)
{
    auto const place = static_cast<std::ptrdiff_t>(placeOf(text, part));
    return std::to_string(1 + std::count(text.begin(), text.begin() + place, '\n'));
}

std::string replaced(std::string text, std::vector<Replacement> const& replacements)
{
    for (auto const& [from, to] : replacements) {
        text.replace(placeOf(text, from), from.size(), to);
    }
    return text;
}

/// Without a fault: a mirror pair whose link frames differ, with hands, a joint that does not move, and a wheel.
constexpr char pair[] = R"(<robotDescription name="A"><root name="T"><mass value="9"/></root>
<joint name="L" min="-1" max="0.5" maxSpeed="2.0"><placement xyz="0 0.1 0"/><end rpy="0 0 1.5707963"/>
 <mass value="2" com="0.02 -0.01 0.03" inertia="5 -0.1 0.3 -0.1 4 -0.2 0.3 -0.2 6"/><mirror name="R" reflected="true"/></joint>
<joint name="R" min="-0.5" max="1" maxSpeed="2"><placement xyz="0 -0.1 0"/>
 <mass value="2.000001" com="0.01 -0.02 0.03" inertia="4 -0.1 0.2 -0.1 5 -0.3 0.2 -0.3 6"/><mirror name="L" reflected="true"/></joint>
<joint name="Fixed" min="0" max="0" maxSpeed="0"/>
<chain name="LArm" parent="T"><jointRef name="L"/></chain>
<chain name="RArm" parent="T"><jointRef name="R"/></chain>
<chain name="Plate" parent="T"><jointRef name="Fixed"/></chain>
<actuator name="LHand" parent="L" min="0" max="1"><mirror name="RHand"/><group><subJoint name="LF" ratio="1"/></group></actuator>
<actuator name="RHand" parent="R" min="0" max="1"><mirror name="LHand"/><group><subJoint name="RF" ratio="1"/></group></actuator>
<wheel name="W" parent="Fixed" maxTorque="1" maxVelocity="3"><attribute name="material" value="rubber"/></wheel>
<posture name="StandInit"><angle of="L" value="0.4"/><angle of="R" value="-0.4"/></posture>
<posture name="Rest"><angle of="L" value="0.3"/>
 <angle of="LHand" value="0.9"/></posture>
</robotDescription>
)";

TEST(Rules, FindWhatIsFalseAndNothingElse)
{
    Replacement const moved = {"Fixed\" min=\"0\" max=\"0\" maxSpeed=\"0\"", "Fixed\" min=\"0\" max=\"1\""};
    auto const rootInertia = [](std::string const& inertia) {
        return std::vector<Replacement>{{"value=\"9\"", "value=\"9\" inertia=\"" + inertia + "\""}};
    };
    struct Case {
        std::vector<Replacement> replacements;
        Strings expected;
        double LintTolerances::*tolerance = nullptr;
        double value = 0.0;
    };
    for (Case const& given : std::vector<Case>{
             {{}, {}},
             {{{"value=\"9\"", "value=\"-9\""}}, {"1 negative-mass"}},
             {rootInertia("1 0.1 0 0 1 0 0 0 1"), {"1 inertia-not-symmetric"}},
             {rootInertia("1 0.1 0 0 1 0 0 0 1"), {}, &LintTolerances::inertia, 0.2},
             {rootInertia("1 0 0 0 1 2 0 2 1"), {"1 inertia-not-positive"}},
             {rootInertia("1 0 0 0 1 0 0 0 2.01"), {"1 inertia-not-possible"}},
             {rootInertia("1 0 0 0 1 0 0 0 2"), {}},  // a disc
             {rootInertia("0 0 0 0 1 0 0 0 1"), {}},  // a rod
             {{{"maxSpeed=\"2.0\"", "maxSpeed=\"0\""}}, {"2 speed-not-positive"}},
             {{{"maxVelocity=\"3\"", "maxVelocity=\"-3\""}}, {"12 speed-not-positive"}},
             {{moved}, {}},  // no speed stated
             {{{"value=\"0.4\"", "value=\"0.6\""}}, {"13 start-outside-limits"}},
             {{{"value=\"0.4\"", "value=\"0.6\""}}, {}, &LintTolerances::limit, 0.11},
             {{{"value=\"0.3\"", "value=\"-1.1\""}}, {"14 posture-outside-limits"}},
             {{{"value=\"0.9\"", "value=\"1.1\""}}, {"15 posture-outside-limits"}},
             {{{"Fixed\" min=\"0\" max=\"0\"", "Fixed\" min=\"1\" max=\"1\""}}, {"6 start-outside-limits"}},
             {{{"name=\"L\" reflected", "name=\"Fixed\" reflected"}}, {"5 mirror-not-mutual"}},
             {{{"<mirror name=\"RHand\"/>", ""}}, {"11 mirror-not-mutual"}},
             {{{"name=\"L\" reflected", "name=\"Nobody\" reflected"}}, {"5 dangling-reference"}},
             {{{"\"L\" reflected=\"true\"", "\"L\""}}, {"5 mirror-kinds-differ"}},
             {{{"2.000001", "2.01"}}, {"5 mass-not-mirrored"}},
             {{{"2.000001", "2.01"}}, {}, &LintTolerances::mass, 0.01},
             {{{"0.01 -0.02 0.03", "0.01 -0.021 0.03"}}, {"5 com-not-mirrored"}},
             {{{"0.01 -0.02 0.03", "0.01 -0.021 0.03"}}, {}, &LintTolerances::centerOfMass, 0.002},
             {{{"4 -0.1 0.2 -0.1 5", "4 0.1 0.2 0.1 5"}}, {"5 inertia-not-mirrored"}},
             {{{"4 -0.1 0.2 -0.1 5", "4 -0.1 0.2 -0.1 5.01"}}, {"5 inertia-not-mirrored"}},
             {{{"4 -0.1 0.2 -0.1 5", "4 -0.1 0.2 -0.1 5.01"}}, {}, &LintTolerances::inertia, 0.01},
             {{{"4 -0.1 0.2 -0.1 5", "4 -0.1 0.2 -0.1 50"}}, {"5 inertia-not-possible"}},
             {{{"max=\"1\" maxSpeed=\"2\"", "max=\"1.1\" maxSpeed=\"2\""}}, {"4 limits-not-mirrored"}},
             {{{"max=\"1\" maxSpeed=\"2\"", "max=\"1.1\" maxSpeed=\"2\""}}, {}, &LintTolerances::limit, 0.11},
             {{{"\"L\" reflected=\"true\"", "\"L\""}, {"\"R\" reflected=\"true\"", "\"R\""}},
              {"4 limits-not-mirrored", "13 start-not-mirrored"}},
             {{{"R\" min=\"-0.5\"", "R\" min=\"2\""}}, {"4 reversed-limits"}},
             {{{"parent=\"L\"", "parent=\"Fixed\""}}, {"11 actuators-not-paired"}},
             {{{"parent=\"R\"", "parent=\"LHand\""}}, {"11 actuator-not-reached"}},
             {{{"<group><subJoint name=\"RF\" ratio=\"1\"/></group>", "<group/>"}}, {"11 idle-actuator"}},
             {{{"</robot", "<chain name=\"None\" parent=\"L\"/></robot"}}, {"16 empty-chain"}},
             {{{"rubber", "ruber"}}, {"12 unknown-material"}},
         }) {
        LintOptions options;
        if (given.tolerance != nullptr) {
            options.tolerances.*given.tolerance = given.value;
        }
        EXPECT_EQ(linesAndCodes(replaced(pair, given.replacements), options), given.expected)
            << (given.replacements.empty() ? "" : given.replacements[0].to);
    }
}

TEST(Rules, FindAMisplacedLimbOnce)
{
    std::string const chain = "<chain name=\"RLeg\" parent=\"Pelvis\" tip=\"RSole\">\n    <placement xyz=\"";
    std::string const text =
        replaced(Tests::readFile(VARO_SOURCE_DIR "/robots/humanoid.xml"), {{chain + "0 -0.075", chain + "0 -0.085"}});
    EXPECT_EQ(linesAndCodes(text), Strings{lineOf(text, "<joint name=\"RHipTwist\"") + " place-not-mirrored"});
}

TEST(Rules, FindFaultsOfUrdfInItsText)
{
    EXPECT_EQ(linesAndCodes(R"(<robot name="A">
<link name="Base"><inertial>
 <mass value="-1"/><inertia ixx="1" iyy="1" izz="1"/></inertial></link>
<link name="J"><inertial><origin rpy="0.3 0.2 0.1"/>
 <mass value="1"/>
 <inertia ixx="1" iyy="1" izz="3"/></inertial></link>
<link name="Point"><inertial><mass value="1"/><inertia ixx="0" iyy="0" izz="0"/></inertial></link>
<link name="Flange"/>
<joint name="J" type="revolute"><parent link="Base"/><child link="Point"/>
 <limit lower="1" upper="2" effort="1" velocity="0"/></joint>
<joint name="K" type="continuous"><parent link="Point"/><child link="J"/>
 <limit effort="1" velocity="1e31"/><mimic joint="J"/></joint>
<joint name="F" type="fixed"><parent link="J"/><child link="Flange"/><limit velocity="0" effort="0"/></joint>
</robot>)"),
              (Strings{"3 negative-mass", "6 inertia-not-possible", "7 zero-inertia", "10 speed-not-positive"}));
}

TEST(Rules, FindNumbersThatHardlyCanBeMeant)
{
    struct Case {
        std::string joint;  ///< attributes of the limit, on line 5, and what follows it
        std::string body;  ///< on line 3
        Strings expected;
    };
    std::string const limit = "lower='-1' upper='1' effort='1' velocity='1'/>";
    std::string const body = "<inertial><mass value='1'/><inertia ixx='0.01' iyy='0.01' izz='0.01'/></inertial>";
    std::string const box = "<collision><geometry><box size='0.3 0.3 0.3'/></geometry></collision>";
    auto const massive = [](std::string const& mass, std::string const& moment) {
        return "<inertial><mass value='" + mass + "'/><inertia ixx='" + moment + "' iyy='" + moment + "' izz='" +
               moment + "'/></inertial>";
    };
    for (Case const& given : std::vector<Case>{
             {limit, body + box, {}},
             {"lower='-1' upper='1' effort='0' velocity='1'/>", body, {"5 effort-not-positive"}},
             {"lower='-1' upper='1' effort='-3' velocity='1'/>", body, {"5 effort-not-positive"}},
             {"lower='0' upper='0' effort='0' velocity='0'/>", body, {}},
             {"lower='-1' upper='90' effort='1' velocity='1'/>", body, {"5 limits-in-degrees"}},
             {"lower='-22.5' upper='45' effort='1' velocity='1'/>", body, {"5 limits-in-degrees"}},
             {"lower='-9.42477796077' upper='10' effort='1' velocity='1'/>", body, {}},
             {"lower='-1e16' upper='1e16' effort='1' velocity='1'/>", body, {}},
             {limit + "<dynamics damping='-1' friction='-2'/>", body, {"5 negative-damping", "5 negative-friction"}},
             {limit, massive("1", "0"), {"3 zero-inertia"}},
             {limit, massive("1", "10") + box, {"3 inertia-unlike-shapes"}},
             {limit, massive("1", "1e-6") + box, {"3 inertia-unlike-shapes"}},
             {limit, massive("9000", "10") + box, {}},  // no matter is so dense: the box stands for something else
             {limit, massive("5e4", "10"), {"3 mass-unlike-others"}},
             {limit, massive("5e-5", "1e-7"), {"3 mass-unlike-others"}},
         }) {
        std::string text = "<robot name='A'><link name='t'>" + body + "</link>\n<link name='u'>" + body +
                           "</link>\n<link name='a'>" + given.body +
                           "</link><joint name='U' type='fixed'><parent link='t'/><child link='u'/></joint>\n"
                           "<joint name='A' type='revolute'><parent link='t'/><child link='a'/>\n<limit " +
                           given.joint + "</joint></robot>";
        EXPECT_EQ(linesAndCodes(text), given.expected) << given.joint << given.body;
    }
}

TEST(Rules, CanBeSwitchedOnAndOff)
{
    std::string const text =
        replaced(pair, {{"value=\"9\"", "value=\"-9\""}, {"rubber", "ruber"}, {"2.000001", "2.01"}});
    LintOptions options;
    options.without = {"negative-mass"};
    EXPECT_EQ(linesAndCodes(text, options), (Strings{"5 mass-not-mirrored", "12 unknown-material"}));
    options.only = {"negative-mass", "unknown-material"};
    EXPECT_EQ(linesAndCodes(text, options), Strings{"12 unknown-material"});
    options.only = {"unheard-of"};
    EXPECT_THROW(linesAndCodes(text, options), std::invalid_argument);
}

}  // namespace

}  // namespace RulesTest
