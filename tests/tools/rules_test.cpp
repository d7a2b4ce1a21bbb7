#include <algorithm>
#include <set>
#include <sstream>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "run_tool.hpp"

namespace ToolTest {

namespace {

using Strings = std::vector<std::string>;

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

class Rules : public ToolFixture {
protected:
    /// "LINE CODE" of each.
    Strings findingsOf(std::string const& text, Strings const& options = {}) const
    {
        Strings arguments = {"check", "--json", "--silence", "sensor-without-class", "-"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        Strings findings;
        for (auto const& finding : nlohmann::json::parse(run(arguments, text).out)) {
            findings.push_back(finding["line"].dump() + " " + finding["code"].get<std::string>());
        }
        return findings;
    }
};

/// Without a fault: a mirror pair whose link frames differ, with hands, a joint that does not move, and a wheel.
constexpr char pair[] = R"(<robotDescription name="A"><root name="T"><mass value="9"/></root>
<joint name="L" min="-1" max="0.5" maxSpeed="1"><placement xyz="0 0.1 0"/><end rpy="0 0 1.5707963"/>
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

TEST_F(Rules, FindWhatIsFalseAndNothingElse)
{
    Replacement const moved = {"Fixed\" min=\"0\" max=\"0\" maxSpeed=\"0\"", "Fixed\" min=\"0\" max=\"1\""};
    auto const rootInertia = [](std::string const& inertia) {
        return std::vector<Replacement>{{"value=\"9\"", "value=\"9\" inertia=\"" + inertia + "\""}};
    };
    struct Case {
        std::vector<Replacement> replacements;
        Strings expected;
        Strings options = {};
    };
    for (Case const& given : std::vector<Case>{
             {{}, {}},
             {{{"value=\"9\"", "value=\"-9\""}}, {"1 negative-mass"}},
             {rootInertia("1 0.1 0 0 1 0 0 0 1"), {"1 inertia-not-symmetric"}},
             {rootInertia("1 0.1 0 0 1 0 0 0 1"), {}, {"--tolerance-inertia", "0.2"}},
             {rootInertia("1 0 0 0 1 2 0 2 1"), {"1 inertia-not-positive"}},
             {rootInertia("1 0 0 0 1 0 0 0 2.01"), {"1 inertia-not-possible"}},
             {rootInertia("1 0 0 0 1 0 0 0 2"), {}},  // a disc
             {rootInertia("0 0 0 0 1 0 0 0 1"), {}},  // a rod
             {{{"maxSpeed=\"1\"", "maxSpeed=\"0\""}}, {"2 speed-not-positive"}},
             {{{"maxVelocity=\"3\"", "maxVelocity=\"-3\""}}, {"12 speed-not-positive"}},
             {{moved}, {}},  // no speed stated
             {{{"value=\"0.4\"", "value=\"0.6\""}}, {"13 start-outside-limits"}},
             {{{"value=\"0.4\"", "value=\"0.6\""}}, {}, {"--tolerance-limit", "0.11"}},
             {{{"value=\"0.3\"", "value=\"-1.1\""}}, {"14 posture-outside-limits"}},
             {{{"value=\"0.9\"", "value=\"1.1\""}}, {"15 posture-outside-limits"}},
             {{{"Fixed\" min=\"0\" max=\"0\"", "Fixed\" min=\"1\" max=\"1\""}}, {"6 start-outside-limits"}},
             {{{"name=\"L\" reflected", "name=\"Fixed\" reflected"}}, {"5 mirror-not-mutual"}},
             {{{"<mirror name=\"RHand\"/>", ""}}, {"11 mirror-not-mutual"}},
             {{{"name=\"L\" reflected", "name=\"Nobody\" reflected"}}, {"5 dangling-reference"}},
             {{{"\"L\" reflected=\"true\"", "\"L\""}}, {"5 mirror-kinds-differ"}},
             {{{"2.000001", "2.01"}}, {"5 mass-not-mirrored"}},
             {{{"2.000001", "2.01"}}, {}, {"--tolerance-mass", "0.01"}},
             {{{"0.01 -0.02 0.03", "0.01 -0.021 0.03"}}, {"5 com-not-mirrored"}},
             {{{"0.01 -0.02 0.03", "0.01 -0.021 0.03"}}, {}, {"--tolerance-com", "0.002"}},
             {{{"4 -0.1 0.2 -0.1 5", "4 0.1 0.2 0.1 5"}}, {"5 inertia-not-mirrored"}},
             {{{"4 -0.1 0.2 -0.1 5", "4 -0.1 0.2 -0.1 5.01"}}, {"5 inertia-not-mirrored"}},
             {{{"4 -0.1 0.2 -0.1 5", "4 -0.1 0.2 -0.1 5.01"}}, {}, {"--tolerance-inertia", "0.01"}},
             {{{"4 -0.1 0.2 -0.1 5", "4 -0.1 0.2 -0.1 50"}}, {"5 inertia-not-possible"}},
             {{{"max=\"1\" maxSpeed=\"2\"", "max=\"1.1\" maxSpeed=\"2\""}}, {"4 limits-not-mirrored"}},
             {{{"max=\"1\" maxSpeed=\"2\"", "max=\"1.1\" maxSpeed=\"2\""}}, {}, {"--tolerance-limit", "0.11"}},
             {{{"\"L\" reflected=\"true\"", "\"L\""}, {"\"R\" reflected=\"true\"", "\"R\""}},
              {"4 limits-not-mirrored"}},
             {{{"R\" min=\"-0.5\"", "R\" min=\"2\""}}, {"4 reversed-limits"}},
             {{{"parent=\"L\"", "parent=\"Fixed\""}}, {"11 actuators-not-paired"}},
             {{{"parent=\"R\"", "parent=\"LHand\""}}, {"11 actuator-not-reached"}},
             {{{"<group><subJoint name=\"RF\" ratio=\"1\"/></group>", "<group/>"}}, {"11 idle-actuator"}},
             {{{"</robot", "<chain name=\"None\" parent=\"L\"/></robot"}}, {"16 empty-chain"}},
             {{{"rubber", "ruber"}}, {"12 unknown-material"}},
         }) {
        EXPECT_EQ(findingsOf(replaced(pair, given.replacements), given.options), given.expected)
            << (given.replacements.empty() ? "" : given.replacements[0].to);
    }
}

TEST_F(Rules, FindTenSeededFaultsEachOnItsLine)
{
    struct Fault {
        Replacement replacement;
        std::string code;
    };
    std::string text = readFile(VARO_SOURCE_DIR "/robots/humanoid.xml");
    Strings expected;
    for (auto const& [replacement, code] : std::vector<Fault>{
             {{"63.4e-3 0  1.1e-3 0 48.7e-3", "63.4e-3 0  1.1e-3 0 248.7e-3"}, "inertia-not-possible"},
             {{"max=\"1.9\" maxSpeed=\"6.5\"", "max=\"1.9\" maxSpeed=\"0\""}, "speed-not-positive"},
             {{"8e-3 0 0.15e-3  0 9.03e-3 0  0.15e-3", "8e-3 0 0.15e-3  0 9.03e-3 0  -0.15e-3"},
              "inertia-not-symmetric"},
             {{"0.584e-3 -0.02e-3 -0.015e-3  -0.02e-3", "0.584e-3 0.02e-3 -0.015e-3  0.02e-3"}, "inertia-not-mirrored"},
             {{"min=\"-2.8\" max=\"0.25\"", "min=\"-0.25\" max=\"2.8\""}, "limits-not-mirrored"},
             {{"0.66\" com=\"0.006 -0.002", "-0.66\" com=\"0.006 -0.002"}, "negative-mass"},
             {{"com=\"0.004 -0.012 -0.125\"", "com=\"0.004 0.012 -0.125\""}, "com-not-mirrored"},
             {{"<mirror name=\"LAnkleTilt\"", "<mirror name=\"LHipTwist\""}, "mirror-not-mutual"},
             {{"RHand\" parent=\"RWristTwist\"", "RHand\" parent=\"RElbowBend\""}, "actuators-not-paired"},
             {{"LKneeBend\" value=\"0.5\"", "LKneeBend\" value=\"2.5\""}, "start-outside-limits"},
         }) {
        expected.push_back(lineOf(text, replacement.from) + " " + code);
        text = replaced(text, {replacement});
    }
    EXPECT_EQ(findingsOf(text), expected);
}

TEST_F(Rules, FindAMisplacedLimbOnce)
{
    std::string const chain = "<chain name=\"RLeg\" parent=\"Pelvis\" tip=\"RSole\">\n    <placement xyz=\"";
    std::string const text =
        replaced(readFile(VARO_SOURCE_DIR "/robots/humanoid.xml"), {{chain + "0 -0.075", chain + "0 -0.085"}});
    EXPECT_EQ(findingsOf(text), Strings{lineOf(text, "com=\"-0.006 -0.003 -0.012\"") + " com-not-mirrored"});
}

TEST_F(Rules, FindFaultsOfUrdfInItsText)
{
    EXPECT_EQ(findingsOf(R"(<robot name="A">
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
              (Strings{"3 negative-mass", "6 inertia-not-possible", "10 speed-not-positive"}));
}

TEST_F(Rules, TakeNoToleranceButAPlainNumber)
{
    for (char const* const wrong : {"-1", "1x", "nan", "inf", ""}) {
        EXPECT_EQ(run({"check", std::string("--tolerance-mass=") + wrong, "-"}, pair).status, 2) << wrong;
    }
}

/// The codes of all rows "| `code` | severity | ...".
void collectCodes(std::string const& page, std::set<std::string>& codes)
{
    std::istringstream lines(page);
    std::string line;
    while (std::getline(lines, line)) {
        std::istringstream words(line);
        std::string bar;
        std::string code;
        std::string severity;
        words >> bar >> code >> bar >> severity;
        if (severity == "error" || severity == "warning" || severity == "note") {
            codes.insert(code.substr(1, code.size() - 2));
        }
    }
}

TEST_F(Rules, AreThoseOfTheDocumentation)
{
    Outcome const refusal = run({"check", "--silence", "unheard-of", "-"}, pair);
    EXPECT_EQ(refusal.status, 2);
    std::istringstream lines(refusal.err);
    std::string line;
    std::getline(lines, line);
    EXPECT_EQ(line, "There are no findings with the code \"unheard-of\". The codes are:");
    std::set<std::string> known;
    while (lines >> line) {
        known.insert(line);
    }
    std::set<std::string> documented;
    for (char const* const page : {"checking", "description-format", "urdf"}) {
        collectCodes(readFile(std::string(VARO_SOURCE_DIR "/docs/") + page + ".md"), documented);
    }
    EXPECT_EQ(documented, known);
}

}  // namespace

}  // namespace ToolTest
