#include <set>
#include <sstream>

#include <nlohmann/json.hpp>

#include "run_tool.hpp"
#include "texts.hpp"

namespace ToolTest {

namespace {

using Json = nlohmann::json;

class Check : public ToolFixture {};

constexpr char fixErrors[] = "Fix the errors first: a description with errors is refused.\n";

/// Loads, and names a joint that is not there.
constexpr char doubtful[] = R"(<robotDescription name="A">
  <root name="T"/>
  <prettyName>Little A</prettyName>
  <sensor name="S" parent="Nobody" type="bumper"/>
</robotDescription>
)";

TEST_F(Check, ReportsFiveFaultsInOneRunEachInItsPlace)
{
    write("five.xml", R"(<robotDescription name="A">
  <root nam="Torso"/>
  <joint name="J" min="x" max="1"/>
  <joint name="J" min="0" max="1"/>
  <blob/>
  <chain name="C" parent="Torso"><jointRef/></chain>
</robotDescription>
)");
    Outcome const outcome = run({"check", "five.xml"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "five.xml: 5 errors\n");
    EXPECT_EQ(outcome.err,
              R"(five.xml:2:9: error: root has no attribute "nam". [unknown-attribute]
    Did you mean "name"?
five.xml:3:19: error: The value of "min", "x", is not a finite decimal number or the word unlimited. [wrong-value]
five.xml:4:10: error: Another joint already has the name "J". [duplicate-name]
    Give each its own; the first one counts.
five.xml:5:3: error: robotDescription holds no element "blob". [unknown-element]
    Known here: prettyName, root, joint, chain, actuator, wheel, sensor, posture, transmission, extension.
five.xml:6:34: error: jointRef lacks its attribute "name". [missing-attribute]
    Add it: a joint of the description.
)" + std::string(fixErrors));
}

TEST_F(Check, StrictTakesWarningsForErrorsUnlessSilenced)
{
    write("doubtful.xml", doubtful);
    struct Case {
        std::vector<std::string> options;
        int status;
        std::string summary;
    };
    for (Case const& expected : std::vector<Case>{
             {{}, 0, "doubtful.xml: 1 warning\n"},
             {{"--strict"}, 1, "doubtful.xml: 1 error\n"},
             {{"--strict", "--silence", "dangling-reference"}, 0, "doubtful.xml: fine\n"},
             {{"--silence", "wrong-value", "--silence", "dangling-reference"}, 0, "doubtful.xml: fine\n"},
         }) {
        std::vector<std::string> arguments = {"check", "doubtful.xml"};
        arguments.insert(arguments.end(), expected.options.begin(), expected.options.end());
        SCOPED_TRACE(testing::PrintToString(arguments));
        Outcome const outcome = run(arguments);
        EXPECT_EQ(outcome.status, expected.status);
        EXPECT_EQ(outcome.out, expected.summary);
    }
}

TEST_F(Check, BuildsTheModelTooAndTellsOfAFaultOnce)
{
    std::string sizeless = legs;
    sizeless.erase(sizeless.find("<attribute"), sizeless.find("</sensor>") - sizeless.find("<attribute"));
    EXPECT_EQ(run({"check", "-"}, sizeless).err,
              "<stdin>:12:3: error: The sensor \"Eye\" states no resolution, so no model can be built. "
              "[model-not-built]\n"
              "    Add <attribute name=\"resolutions\" value=\"640 480\"/> with its own width and height.\n" +
                  std::string(fixErrors));
    std::string const misspelt =
        Tests::replaced(readFile(VARO_SOURCE_DIR "/robots/minimal.xml"), "\"Turn\"/>", "\"TurN\"/>");
    Outcome const outcome = run({"check", "-"}, misspelt);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err,
              "<stdin>:39:15: error: There is no joint \"TurN\", so no model can be built. [model-not-built]\n"
              "    Did you mean \"Turn\"?\n" +
                  std::string(fixErrors));
}

TEST_F(Check, PrintsFindingsAsData)
{
    write("doubtful.xml", doubtful);
    Outcome const outcome = run({"check", "--json", "doubtful.xml", "none.xml"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "");
    Json const findings = Json::parse(outcome.out);
    ASSERT_EQ(findings.size(), 2U);
    EXPECT_EQ(findings[0]["file"], "doubtful.xml");
    EXPECT_EQ(findings[0]["path"], "/robotDescription/sensor[@name=\"S\"]");
    EXPECT_EQ(findings[1]["code"], "unreadable-file");
    EXPECT_TRUE(findings[1]["line"].is_null());
    EXPECT_EQ(Json::parse(run({"check", "--json", "-"}, legs).out), Json::array());
}

TEST_F(Check, PutsManyOfAKindTogetherBelowTheErrors)
{
    write("many.xml", R"(<robotDescription name="A"><root name="T"/>
<sensor name="A" parent="Nobody" type="bumper"/><sensor name="B" parent="Nobody" type="bumper"/>
<sensor name="C" parent="Nobody" type="bumper"/><sensor name="D" parent="Nobody" type="bumper"/>
<sensor name="E" parent="T" type="camera"/></robotDescription>
)");
    std::string const err = run({"check", "many.xml"}).err;
    std::size_t const error = err.find("many.xml:4:1: error:");
    std::size_t const warning = err.find("many.xml:2:18: warning: ");
    EXPECT_LT(error, warning);
    EXPECT_EQ(err.find("many.xml:2:", warning + 1), std::string::npos);
    EXPECT_NE(err.find("    and 3 more, at 2:66, 3:18, 3:66\n", warning), std::string::npos) << err;
    EXPECT_NE(run({"check", "--all", "many.xml"}).err.find("many.xml:3:66: warning: "), std::string::npos);
}

TEST_F(Check, PrintsTheFormatsOfItsSchemas)
{
    write("100%, \"x\": a.xml", doubtful);
    std::vector<std::string> const files = {"100%, \"x\": a.xml", "none.xml"};
    auto const checkAs = [&](std::string const& format) {
        Outcome const outcome = run({"check", "--format", format, files[0], files[1]});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.err, "");
        return outcome.out;
    };
    expectValid(checkAs("json"), VARO_SOURCE_DIR "/schema/check.schema.json");
    EXPECT_EQ(Json::parse(checkAs("json"))["findings"], Json::parse(run({"check", "--json", files[0], files[1]}).out));
    std::string const sarif = checkAs("sarif");
    expectValid(sarif, VARO_SOURCE_DIR "/tests/tools/data/sarif/sarif-schema-2.1.0.json");
    Json const result = Json::parse(sarif)["runs"][0]["results"][0];
    EXPECT_EQ(result["level"], "warning");
    EXPECT_EQ(result["locations"][0]["physicalLocation"], Json::parse(R"({
        "artifactLocation": {"uri": "100%25%2C%20%22x%22%3A%20a.xml"}, "region": {"startLine": 4, "startColumn": 20}})"));
    EXPECT_EQ(run({"check", "--json", "--format", "json", "none.xml"}).status, 2);
}

TEST_F(Check, AnnotatesForGithub)
{
    write("100%, a:b.xml",
          "<robotDescription name=\"A\"><root name=\"T\"/><joint name=\"100%\" min=\"x\" max=\"1\"/>"
          "</robotDescription>");
    EXPECT_EQ(
        run({"check", "--format", "github", "100%, a:b.xml"}).out,
        "::warning file=100%25%2C a%3Ab.xml,line=1,col=44,title=joint-in-no-chain::The joint \"100%25\" stands in "
        "no chain, so that no model will contain it.%0AAdd a jointRef to a chain.\n"
        "::error file=100%25%2C a%3Ab.xml,line=1,col=63,title=wrong-value::The value of \"min\", \"x\", is not a "
        "finite decimal number or the word unlimited.\n");
}

TEST_F(Check, SwitchesRulesOff)
{
    std::string text = readFile(VARO_SOURCE_DIR "/robots/humanoid.xml");
    std::string const mass = "mass value=\"";
    text.insert(text.find(mass) + mass.size(), "-");
    EXPECT_EQ(run({"check", "--strict", "-"}, text).status, 1);
    EXPECT_EQ(run({"check", "--strict", "--no-rule", "negative-mass", "-"}, text).status, 0);
    EXPECT_EQ(run({"check", "--strict", "--rule", "idle-actuator", "-"}, text).status, 0);
}

TEST_F(Check, KnowsTheCodesOfTheDocumentation)
{
    Outcome const refusal = run({"check", "--silence", "unheard-of", "-"}, legs);
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
    for (char const* const name : {"checking", "description-format", "urdf"}) {
        std::istringstream page(readFile(std::string(VARO_SOURCE_DIR "/docs/") + name + ".md"));
        while (std::getline(page, line)) {
            // A row of a table: "| `code` | severity ...".
            std::size_t const end = line.find("` | ");
            std::string const severity = end == line.npos ? "" : line.substr(end + 4, 4);
            if (line.find("| `") == 0 && (severity == "erro" || severity == "warn" || severity == "note")) {
                documented.insert(line.substr(3, end - 3));
            }
        }
    }
    EXPECT_EQ(documented, known);
}

}  // namespace

}  // namespace ToolTest
