#include <nlohmann/json.hpp>

#include "run_tool.hpp"

namespace ToolTest {

namespace {

using Json = nlohmann::json;

std::string const robots = VARO_SOURCE_DIR "/robots/";
std::string const humanoid = robots + "humanoid.xml";
std::string const minimal = robots + "minimal.xml";
std::string const rover = robots + "rover.xml";

class Motion : public ToolFixture {
protected:
    Json json(std::vector<std::string> const& arguments) const { return Json::parse(run(arguments).out); }
};

TEST_F(Motion, PosesAreThoseOfTheJointValues)
{
    EXPECT_EQ(run({"pose", minimal, "--joint", "Turn=90", "--joint", "Nod=30", "--degrees", "NodLink", "Nod"}).out,
              "NAME     POSE\n"
              "NodLink  xyz 0.000 0.000 0.160  rpy 0.000 30.000 90.000\n"
              "Nod      xyz 0.000 0.000 0.160  rpy -90.000 0.000 90.000\n");
    EXPECT_EQ(run({"pose", "--relative-to", "TurnLink", "--posture", "StandInit", minimal}).out,
              "NAME      POSE\n"
              "BaseLink  xyz 0.000 0.000 -0.060  rpy 0.000 0.000 0.000\n"
              "TurnLink  xyz 0.000 0.000 0.000  rpy 0.000 0.000 0.000\n"
              "NodLink   xyz 0.000 0.000 0.100  rpy 0.000 0.100 0.000\n");
    Json const moved = json({"pose", "--json", "--joint", "MastLift=0.25", rover, "MastCamera"});
    EXPECT_EQ(moved["configuration"]["MastLift"], 0.25);
    EXPECT_EQ(moved["relativeTo"], "ChassisLink");
    EXPECT_NEAR(moved["poses"][0]["pose"][11], 0.075 + 0.25 + 0.3 + 0.06 + 0.012, 1e-6);
}

TEST_F(Motion, TreeTakesTheSameOptions)
{
    EXPECT_EQ(run({"tree", "--pose", "--joint", "Turn=-0.5", "--relative-to", "BaseLink", minimal}, {}, "LC_ALL=C").out,
              "[BaseLink]              xyz 0.000 0.000 0.000  rpy 0.000 0.000 0.000\n"
              "`- Turn -> [TurnLink]   xyz 0.000 0.000 0.060  rpy 0.000 0.000 -0.500\n"
              "   `- Nod -> [NodLink]  xyz 0.000 0.000 0.160  rpy 0.000 0.000 -0.500\n");
    Json const links = json({"tree", "--json", rover});
    ASSERT_EQ(links.size(), 14U);
    EXPECT_EQ(links[0]["joint"], nullptr);
    Json const& last = links[13];
    EXPECT_EQ(Json({last["link"], last["parentLink"], last["type"], last["mass"]}),
              Json({"RearRightWheelLink", "RearRightSteeringLink", "wheel", 1.2}));
}

/// Where joints that follow have an offset, only what moves the robot puts them there.
TEST_F(Motion, WithoutOptionsTheTreeStandsAsTheModelDoes)
{
    Json const links = json({"tree", "--json", humanoid});
    Json const dump = json({"dump", humanoid});
    ASSERT_EQ(links.size(), dump["links"].size());
    for (std::size_t i = 0; i < links.size(); ++i) {
        for (std::size_t entry = 0; entry < 16; ++entry) {
            double const expected = dump["links"][i]["globalPosition"][entry];
            EXPECT_NEAR(links[i]["pose"][entry].get<double>(), expected, 1e-6) << links[i]["link"];
        }
    }
}

TEST_F(Motion, MassesAddUp)
{
    std::string const text = run({"mass", "--joint", "Nod=0.3", minimal}).out;
    for (char const* const line : {"\nNodLink   0.3 kg   0.018 0.000 0.186\n", "\nNeck   0.45 kg  0.012 0.000 0.157\n",
                                   "\nrobot  1.25 kg  0.004 0.000 0.069\n"}) {
        EXPECT_NE(text.find(line), std::string::npos) << line << text;
    }
    Json const masses = json({"mass", "--json", "--posture", "Crouch", humanoid});
    double sum = masses["links"][0]["mass"];  // of the root, which is in no chain
    for (Json const& chain : masses["chains"]) {
        sum += chain["mass"].get<double>();
    }
    EXPECT_NEAR(sum, masses["mass"].get<double>(), 1e-4);
    EXPECT_EQ(masses["links"].size(), 43U);
    EXPECT_EQ(masses["inertia"].size(), 9U);
    EXPECT_LT(masses["com"][2], json({"mass", "--json", humanoid})["com"][2].get<double>() + 0.2);
}

TEST_F(Motion, ChainsAndPosturesAreListedAndShown)
{
    EXPECT_EQ(run({"list", "postures", minimal}).out, "NAME       ANGLES\nStandInit  Nod 0.1\n");
    EXPECT_EQ(run({"list", "chain", minimal}).out, "NAME  PARENT  JOINTS\nNeck  Base    Turn, Nod\n");
    EXPECT_EQ(json({"list", "--json", "postures", humanoid})[1]["angles"]["LHand"], 0.8);
    EXPECT_EQ(run({"show", "StandInit", minimal}).out, "posture StandInit\n  Nod                         0.1\n");
    Json const shown = json({"show", "--json", "Nod", minimal});
    ASSERT_EQ(shown.size(), 3U);
    EXPECT_EQ(Json({shown[0]["kind"], shown[0]["childLink"], shown[2]["kind"]}), Json({"joint", "NodLink", "sensor"}));
}

TEST_F(Motion, InfoIsDataToo)
{
    Json const info = json({"info", "--json", rover});
    EXPECT_EQ(Json({info["name"], info["prettyNames"]["0"], info["links"], info["wheels"], info["sensors"]["Camera"]}),
              Json({"VaroRover", "Varo Rover", 14, 4, 1}));
    EXPECT_NEAR(info["mass"].get<double>(), 28.55, 1e-5);
    EXPECT_EQ(info["chains"][6]["joints"], Json({"MastLift", "MastTurn", "MastNod"}));
    EXPECT_EQ(info["postures"], Json({"StandInit"}));
    EXPECT_EQ(info["findings"][0]["code"], "sensor-without-class");
    EXPECT_EQ(info["findings"][0]["count"], 1);
}

}  // namespace

}  // namespace ToolTest
