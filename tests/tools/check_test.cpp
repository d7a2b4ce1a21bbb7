#include <nlohmann/json.hpp>

#include "run_tool.hpp"

namespace ToolTest {

namespace {

using Json = nlohmann::json;

class Check : public ToolFixture {};

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
)");
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

TEST_F(Check, ErrorsCannotBeSilenced)
{
    EXPECT_EQ(
        run({"check", "--silence", "missing-element", "--silence", "missing-attribute", "-"}, "<robotDescription/>")
            .status,
        1);
}

TEST_F(Check, BuildsTheModelToo)
{
    std::string text = legs;
    text.erase(text.find("<attribute"), text.find("</sensor>") - text.find("<attribute"));
    Outcome const outcome = run({"check", "-"}, text);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err,
              "<stdin>:12:3: error: The sensor \"Eye\" states no resolution, so no model can be built. "
              "[model-not-built]\n"
              "    Add <attribute name=\"resolutions\" value=\"640 480\"/> with its own width and height.\n");
}

TEST_F(Check, ReportsAMisspeltJointOnce)
{
    std::string text = readFile(VARO_SOURCE_DIR "/robots/minimal.xml");
    text.replace(text.find("\"Turn\"/>"), 6, "\"TurN\"");
    EXPECT_EQ(run({"check", "-"}, text).err,
              "<stdin>:39:15: error: There is no joint \"TurN\", so no model can be built. [model-not-built]\n"
              "    Did you mean \"Turn\"?\n");
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
    EXPECT_EQ(findings[0]["severity"], "warning");
    EXPECT_EQ(findings[0]["code"], "dangling-reference");
    EXPECT_EQ(findings[0]["line"], 4);
    EXPECT_EQ(findings[0]["column"], 20);
    EXPECT_EQ(findings[0]["path"], "/robotDescription/sensor[@name=\"S\"]");
    EXPECT_EQ(findings[1]["code"], "unreadable-file");
    EXPECT_TRUE(findings[1]["line"].is_null());
    EXPECT_EQ(Json::parse(run({"check", "--json", "-"}, legs).out), Json::array());
}

TEST_F(Check, ExampleRobotsAreClean)
{
    for (std::string const& file : Tests::exampleFiles()) {
        Outcome const outcome = run({"check", "--strict", file});
        EXPECT_EQ(outcome.status, 0) << outcome.err;
    }
}

}  // namespace

}  // namespace ToolTest
