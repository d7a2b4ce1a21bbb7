#include <algorithm>
#include <map>
#include <sstream>

#include <nlohmann/json.hpp>

#include "run_tool.hpp"

namespace ToolTest {

namespace {

using Json = nlohmann::json;

std::string const robots = VARO_SOURCE_DIR "/robots/";
std::string const humanoid = robots + "humanoid.xml";
/// A joint of every way to be driven, or not.
std::string const driven = R"(<robotDescription name="r"><root name="Base"/>
  <joint name="Motor" min="-1" max="1" link="arm"/><joint name="Free" min="unlimited" max="1" motor="false"/>
  <joint name="Copy" min="0" max="0" motor="false"><mimic joint="Free"/></joint>
  <joint name="Plate" min="0" max="0" type="fixed" motor="false"/>
  <chain name="C" parent="Base"><jointRef name="Motor"/><jointRef name="Free"/><jointRef name="Copy"/>
    <jointRef name="Plate"/></chain>
  <actuator name="Hand" parent="Plate" min="0" max="1"><group><subJoint name="Finger" ratio="1"/></group></actuator>
</robotDescription>)";

std::size_t countOf(std::string const& text, std::string const& part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

class Info : public ToolFixture {};

TEST_F(Info, SaysOnOneScreenWhatRobotItIs)
{
    EXPECT_EQ(run({"info", "-"}, legs).out, R"(name          Walker
pretty name   The Walker
version       2.1
dialect       native
root link     PelvisLink
links         3
joints        2: 2 actuated
total mass    7 kg
visuals       3: 3 mesh
actuators     2: 2 Angle
sensors       3: 2 Angle, 1 Camera
symmetries    1
joint groups  2
chains        LLeg: joints 1, on Pelvis
              RLeg: joints 1, on Pelvis
meshes        2, of them not found 2
)");
    Outcome const outcome = run({"info", humanoid});
    EXPECT_LE(std::count(outcome.out.begin(), outcome.out.end(), '\n'), 24);
}

TEST_F(Info, TellsWhichJointsAreDriven)
{
    std::string const info = run({"info", "-"}, driven).out;
    EXPECT_NE(info.find("\njoints        5: 1 actuated, 1 coupled, 1 fixed, 1 mimic, 1 passive\n"), std::string::npos)
        << info;
}

TEST_F(Info, SummarisesTheFindings)
{
    std::string const info = run({"info", "-"}, R"(<robot name="r">
  <link name="base"><self_filter/></link><link name="tip"><self_filter/></link>
  <joint name="j" type="floating"><parent link="base"/><child link="tip"/></joint>
</robot>)")
                                 .out;
    EXPECT_NE(info.find("dialect       urdf\n"), std::string::npos);
    EXPECT_NE(info.find("findings      1 note joint-frozen, line 3: "), std::string::npos) << info;
}

class NamesOfLinks : public ToolFixture {};

TEST_F(NamesOfLinks, AreThoseOfTheText)
{
    std::string const urdf = R"(<robot name="r"><link name="base"/><link name="tip"/>
  <joint name="j" type="fixed"><parent link="base"/><child link="tip"/></joint></robot>)";
    std::string const zero = "xyz 0.000 0.000 0.000  rpy 0.000 0.000 0.000\n";
    for (auto const& [arguments, part] : std::vector<std::pair<std::vector<std::string>, std::string>>{
             {{"info", "-"}, "\nroot link     base\n"},
             {{"tree", "-"}, "[base]\n`- j fixed -> [tip]\n"},
             {{"list", "links", "-"}, "\nbase  regular  -      0     0.000 0.000 0.000\ntip   regular  j      0 "},
             {{"show", "tip", "-"}, "link tip\n  name                        jLink\n"},
             {{"show", "jLink", "-"}, "link tip\n"},
             {{"show", "j", "-"}, "\n  childLink                   tip\n"},
             {{"show", "--json", "tip", "-"}, "\"urdfName\": \"tip\""},
             {{"show", "TI", "-"}, "Similar names: tip."},
             {{"graph", "-"}, "\"jLink\" [fillcolor="},
             {{"graph", "-"}, ", label=\"tip\"];\n"},
             {{"graph", "-"}, "\"baseLink\" -> \"jLink\" [label=\"j\""},
             {{"pose", "-"}, "NAME  POSE\nbase  " + zero + "tip   " + zero},
             {{"pose", "-", "tip"}, "NAME  POSE\ntip   " + zero},
             {{"pose", "--json", "-"}, "\"name\": \"jLink\""},
             {{"mass", "-"}, "\ntip   0 kg"},
             {{"mass", "--json", "-"}, "\"name\": \"jLink\""},
         }) {
        Outcome const outcome = run(arguments, urdf, "LC_ALL=C");
        EXPECT_NE((outcome.out + outcome.err).find(part), std::string::npos) << part << outcome.out << outcome.err;
    }
}

class Tree : public ToolFixture {};

TEST_F(Tree, DrawsBranchesAsTheLocaleCan)
{
    EXPECT_EQ(run({"tree", "-"}, legs, "LC_ALL=C.UTF-8").out,
              "[PelvisLink]\n"
              "├─ LHip → [LHipLink]\n"
              "└─ RHip → [RHipLink]\n");
    EXPECT_EQ(run({"tree", "--mass", "--pose", "-"}, legs, "LC_ALL=C").out,
              "[PelvisLink]           4.5 kg      xyz 0.000 0.000 0.000  rpy 0.000 0.000 0.000\n"
              "|- LHip -> [LHipLink]  1.25 kg     xyz 0.000 0.100 -0.050  rpy 0.000 0.000 0.000\n"
              "`- RHip -> [RHipLink]  1.25 kg     xyz 0.000 -0.100 -0.050  rpy 0.000 0.000 0.000\n");
}

/// What a terminal of that width gets.
class AtATerminal : public ToolFixture {
protected:
    std::string shownAt(int columns, std::string const& arguments) const
    {
        std::string const terminal = VARO_PYTHON " " VARO_SOURCE_DIR "/tests/tools/in_terminal.py ";
        return runCommand("TERM=dumb LC_ALL=C.UTF-8 " + terminal + std::to_string(columns) + " " VARO_ROBOT " " +
                          arguments)
            .out;
    }
};

TEST_F(AtATerminal, IsFittedUnlessAllIsWanted)
{
    write("legs.xml", legs);
    EXPECT_EQ(shownAt(60, "tree --pose legs.xml"),
              "[PelvisLink]\n"
              "│  xyz 0.000 0.000 0.000  rpy 0.000 0.000 0.000\n"
              "├─ LHip → [LHipLink]\n"
              "│     xyz 0.000 0.100 -0.050  rpy 0.000 0.000 0.000\n"
              "└─ RHip → [RHipLink]\n"
              "      xyz 0.000 -0.100 -0.050  rpy 0.000 0.000 0.000\n");
    EXPECT_EQ(shownAt(14, "tree legs.xml"), "[PelvisLink]\n├─ LHip → [LH…\n└─ RHip → [RH…\n");
    EXPECT_EQ(shownAt(25, "list joints legs.xml"),
              "NAME  TYPE   MOTOR  LINK\nLHip  revo…  yes    LHip…\nRHip  revo…  yes    RHip…\n");
    for (std::string const command :
         {"tree --pose --mass ", "list sensors ", "list joints ", "pose ", "list symmetries "}) {
        SCOPED_TRACE(command);
        std::string const piped = runCommand("LC_ALL=C.UTF-8 " VARO_ROBOT " " + command + humanoid).out;
        EXPECT_GT(widestLine(piped), 50U);
        EXPECT_LE(widestLine(shownAt(50, command + humanoid)), 50U);
        EXPECT_EQ(shownAt(50, command + "--wide " + humanoid), piped);
        EXPECT_EQ(shownAt(400, command + humanoid), piped);
    }
}

TEST_F(AtATerminal, TellsWhatTakesLongerThanASecond)
{
    write("legs.xml", legs);
    std::string const line = "\rReading <stdin>, 1 s";
    std::string const gone = "\r\033[K";
    std::string const terminal = VARO_PYTHON " " VARO_SOURCE_DIR "/tests/tools/in_terminal.py 80 " VARO_ROBOT;
    std::string const late = "{ sleep 1.5; cat legs.xml; } | TERM=dumb ";
    EXPECT_EQ(runCommand(late + terminal + " list joint-groups -").out.find(line + gone + "NAME"), 0U);
    EXPECT_EQ(runCommand("TERM=dumb " + terminal + " list joint-groups legs.xml").out.find("NAME"), 0U);
    Outcome const piped = runCommand(late + VARO_ROBOT " list joint-groups -");
    EXPECT_EQ(piped.err, "");
}

TEST_F(Tree, MarksWheelsAndWhatHasNoMotor)
{
    EXPECT_EQ(run({"tree", "-"}, driven, "LC_ALL=C").out, R"([BaseLink]
`- Motor -> [arm]
   `- Free passive -> [FreeLink]
      `- Copy mimic -> [CopyLink]
         `- Plate fixed -> [PlateLink]
            `- Finger coupled -> [FingerLink]
)");
    EXPECT_EQ(countOf(run({"tree", robots + "rover.xml"}).out, "] wheel\n"), 4U);
}

TEST_F(Tree, DeepTreesNeedNoStack)
{
    constexpr int depth = 20000;
    write("snake.xml", serialChain(depth));
    Outcome const outcome = runCommand("ulimit -s 1024; LC_ALL=C " VARO_ROBOT " tree snake.xml");
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(std::count(outcome.out.begin(), outcome.out.end(), '\n'), depth + 1);
    std::string const last = std::string(120, ' ') + "... 19999 `- J19999 -> [J19999Link]\n";
    EXPECT_EQ(outcome.out.substr(outcome.out.size() - last.size()), last);
}

class List : public ToolFixture {};

TEST_F(List, AlignsTheTable)
{
    EXPECT_EQ(run({"list", "angle-actuators", "-"}, legs).out,
              R"(NAME  JOINT  MIN   MAX        MIRROR  KEYS
LHip  LHip   -1.1  unlimited  RHip    LHip/Angle/Actuator
RHip  RHip   -1.1  unlimited  LHip    RHip/Angle/Actuator
)");
    EXPECT_EQ(run({"list", "joints", "-"}, driven).out, R"(NAME    TYPE      MOTOR  LINK
Motor   revolute  yes    arm
Free    revolute  no     FreeLink
Copy    revolute  no     CopyLink
Plate   fixed     no     PlateLink
Finger  revolute  no     FingerLink
)");
    EXPECT_EQ(run({"list", "cameras", "-"}, legs).out, R"(NAME  WIDTH  HEIGHT  POSITION           BYTES
Eye   640    480     0.200 0.000 0.000  3686400
)");
}

TEST_F(List, PrintsTheSameObjectsAsDump)
{
    Json const dump = Json::parse(run({"dump", humanoid}).out);
    auto const ofType = [&](char const* key, char const* type) {
        Json found = Json::array();
        std::copy_if(dump[key].begin(), dump[key].end(), std::back_inserter(found),
                     [&](Json const& element) { return element["type"] == type; });
        return found;
    };
    for (auto const& [kind, expected] : std::map<std::string, Json>{
             {"links", dump["links"]},
             {"Joint", dump["joints"]},
             {"symmetries", dump["jointSymmetries"]},
             {"jointGroup", dump["jointGroups"]},
             {"actuator_groups", dump["actuatorGroups"]},
             {"actuators", dump["actuators"]},
             {"LEDs", ofType("actuators", "LED")},
             {"coupledActuators", ofType("actuators", "Coupled")},
             {"sensors", dump["sensors"]},
             {"camera", ofType("sensors", "Camera")},
             {"CameraDepthSensors", ofType("sensors", "CameraDepth")},
             {"fsrs", ofType("sensors", "FSR")},
             {"wheels", Json::array()},
         }) {
        EXPECT_EQ(Json::parse(run({"list", "--json", kind, humanoid}).out), expected) << kind;
    }
    EXPECT_EQ(Json::parse(run({"list", "--json", "groups", humanoid}).out).size(),
              dump["jointGroups"].size() + dump["actuatorGroups"].size());
}

class Show : public ToolFixture {};

TEST_F(Show, PrintsAllThatBearsTheName)
{
    std::string const shown = run({"show", "LHip", "-"}, legs).out;
    EXPECT_EQ(shown.rfind("joint LHip\n", 0), 0U) << shown;
    for (char const* const fact :
         {"\nsymmetry of LHip\n", "\nactuator LHip\n", "\nsensor LHip\n",
          "\n  globalPosition              xyz 0.000 0.100 -0.050  rpy 0.000 0.000 0.000\n",
          "\n  joints                      LHip, RHip\n", "\n  maxValue                    unlimited\n",
          "\n  reflectedSymmetricReversed  no\n"}) {
        EXPECT_NE(shown.find(fact), std::string::npos) << fact << shown;
    }
}

TEST_F(Show, PrintsALineForEachShapeOfALink)
{
    std::string const rover = robots + "rover.xml";
    std::string const shown = run({"show", "ChassisLink", rover}).out;
    std::string const bar =
        "name FrontBar, pose xyz 0.265 0.000 -0.060  rpy 0.000 0.000 0.000, geometry type box, "
        "size 0.03 0.32 0.04";
    EXPECT_NE(shown.find("\n                              " + bar + ", material name black, rgba 0.05 0.05 0.05 1\n"),
              std::string::npos)
        << shown;
    EXPECT_NE(shown.find("\n  collisions                  name Hull, pose "), std::string::npos) << shown;
    std::string const info = run({"info", rover}).out;
    EXPECT_NE(info.find("\nvisuals       15: 14 mesh, 1 box\ncollisions    8: 3 box, 5 cylinder\n"), std::string::npos)
        << info;
    Json const counts = Json::parse(run({"info", "--json", rover}).out);
    EXPECT_EQ(counts["collisions"].dump(), R"({"box":3,"cylinder":5})");
}

class Graph : public ToolFixture {};

TEST_F(Graph, HasEveryLinkJointAndMirrorPair)
{
    Json const dump = Json::parse(run({"dump", humanoid}).out);
    std::string const graph = run({"graph", humanoid}).out;
    for (Json const& joint : dump["joints"]) {
        std::string const arrow = "  \"" + joint["parentLink"].get<std::string>() + "\" -> \"" +
                                  joint["childLink"].get<std::string>() + "\" [label=\"" +
                                  joint["name"].get<std::string>() + "\", color=";
        EXPECT_EQ(countOf(graph, arrow), 1U) << arrow;
    }
    EXPECT_EQ(countOf(graph, "style=dashed"), dump["jointSymmetries"].size());
    EXPECT_EQ(countOf(graph, "shape=note"), 0U);
    std::string const full = run({"graph", "--sensors", "--actuators", humanoid}).out;
    for (char const* const key : {"sensors", "actuators"}) {
        for (Json const& device : dump[key]) {
            std::string const line =
                device["type"].get<std::string>() + " " + device["name"].get<std::string>() + "\\l";
            EXPECT_NE(full.find(line), std::string::npos) << line;
        }
    }
}

TEST_F(Graph, ChainsHaveColoursOfTheirOwn)
{
    std::string const graph = run({"graph", "-"}, legs).out;
    auto const fillOf = [&](std::string const& node) {
        std::string const start = "  \"" + node + "\" [fillcolor=";
        std::size_t const at = graph.find(start) + start.size();
        return graph.substr(at, graph.find(']', at) - at);
    };
    EXPECT_NE(fillOf("LHipLink"), fillOf("RHipLink"));
    EXPECT_NE(fillOf("LHipLink"), fillOf("PelvisLink"));
}

#ifdef VARO_DOT
TEST_F(Graph, IsWhatGraphvizTakesWhateverTheNames)
{
    std::string text = legs;
    for (std::size_t at = text.find("LHip"); at != std::string::npos; at = text.find("LHip", at)) {
        text.replace(at, 4, "L \\&quot;&lt;N");
    }
    write("graph.dot", run({"graph", "--sensors", "--actuators", "-"}, text).out);
    Outcome const drawn = runCommand(VARO_DOT " -Tplain graph.dot");
    EXPECT_EQ(drawn.status, 0) << drawn.err;
    EXPECT_EQ(drawn.err, "");
    EXPECT_EQ(countOf(drawn.out, "\nedge "), 3U + 5U) << drawn.out;  // joints and mirrors, notes
}
#endif

}  // namespace

}  // namespace ToolTest
