#include <nlohmann/json.hpp>

#include "run_tool.hpp"

namespace ToolTest {

namespace {

using Json = nlohmann::ordered_json;
using Keys = std::vector<std::string>;

class Dump : public ToolFixture {};

Keys keysOf(Json const& object)
{
    Keys keys;
    for (auto const& [key, value] : object.items()) {
        keys.push_back(key);
    }
    return keys;
}

TEST_F(Dump, PrintsEveryNumberAndName)
{
    Json const dump = Json::parse(run({"dump", "-"}, legs).out);
    EXPECT_EQ(keysOf(dump),
              (Keys{"formatVersion", "name", "prettyName", "version", "rootLink", "links", "joints", "jointSymmetries",
                    "jointGroups", "actuators", "actuatorGroups", "sensors", "transmissions", "extensions"}));
    EXPECT_EQ(dump["prettyName"], "The Walker");
    EXPECT_EQ(dump["version"], "2.1");
    EXPECT_EQ(dump["rootLink"], "PelvisLink");
    EXPECT_EQ(dump["links"].size(), 3U);
    EXPECT_EQ(dump["links"][0].dump(), Json::parse(R"({
        "name": "PelvisLink", "descriptionName": "PelvisLink", "frame": "PelvisLink", "type": "regular", "parentJoint": null,
        "childrenJoints": ["LHip", "RHip"],
        "mass": {"mass": 4.5, "com": [0, 0, -0.01], "inertia": [0, 0, 0, 0, 0, 0, 0, 0, 0]},
        "frictionMaterial": "gum",
        "visual": {"meshPath": "pelvis.dae", "meshTransform": [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1]},
        "visuals": [{"name": "", "pose": [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1],
                     "geometry": {"type": "mesh", "uri": "pelvis.dae", "scale": [1, 1, 1]}, "material": null}],
        "collisions": [],
        "localPosition": [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1],
        "globalPosition": [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1]})")
                                           .dump());
    EXPECT_EQ(dump["joints"][1].dump(), Json::parse(R"({
        "name": "RHip", "frame": "RHip", "parentLink": "PelvisLink", "childLink": "RHipLink",
        "localPosition": [1, 0, 0, 0, 0, 1, 0, -0.1, 0, 0, 1, -0.05, 0, 0, 0, 1],
        "globalPosition": [1, 0, 0, -0, 0, 1, 0, -0.1, 0, 0, 1, -0.05, 0, 0, 0, 1],
        "type": "revolute", "moves": true, "motor": true, "limits": {"lower": -1.1, "upper": null},
        "effort": 0, "velocity": 6, "damping": 0, "friction": 0, "mimic": null, "safety": null, "calibration": null})")
                                            .dump());
    EXPECT_EQ(dump["jointSymmetries"].dump(), R"([{"joints":["LHip","RHip"],"type":"ReflectedSymmetric"}])");
    EXPECT_EQ(dump["jointGroups"][1].dump(), R"({"name":"RLeg","joints":["RHip"]})");
    EXPECT_EQ(dump["actuatorGroups"][0].dump(), R"({"name":"LLeg","parent":null,"actuators":["LHip"]})");
    EXPECT_EQ(dump["sensors"][2].dump(), Json::parse(R"({
        "name": "Eye", "type": "Camera", "frame": "Eye",
        "globalPosition": [1, 0, 0, 0.2, 0, 1, 0, -0, 0, 0, 1, -0, 0, 0, 0, 1],
        "bufferSize": 3686400, "width": 640, "height": 480, "settings": null})")
                                             .dump());
}

TEST_F(Dump, PrintsShapesWithWhatTheirKindHas)
{
    Json const link = Json::parse(run({"dump", "-"}, R"(<robotDescription name="R"><root name="B">
      <visual name="top"><placement xyz="1 2 3"/><box size="1 2 3"/>
        <material name="red" color="1 0 0 1"/></visual>
      <visual><mesh file="m.dae" scale="1 1 0.5"/><material texture="t.png"/></visual>
      <collision name="hull"><cylinder radius="0.5" length="2"/></collision>
      <collision><capsule radius="0.5" length="2"/></collision><collision><sphere radius="0.5"/></collision>
    </root></robotDescription>)")
                                      .out)["links"][0];
    Json visuals = link["visuals"];
    EXPECT_EQ(visuals[0]["pose"].dump(), "[1,0,0,1,0,1,0,2,0,0,1,3,0,0,0,1]");
    for (Json& visual : visuals) {
        visual.erase("pose");
    }
    EXPECT_EQ(visuals.dump(), Json::parse(R"([
        {"name": "top", "geometry": {"type": "box", "size": [1, 2, 3]},
         "material": {"name": "red", "rgba": [1, 0, 0, 1], "texture": ""}},
        {"name": "", "geometry": {"type": "mesh", "uri": "m.dae", "scale": [1, 1, 0.5]},
         "material": {"name": "", "rgba": null, "texture": "t.png"}}])")
                                  .dump());
    std::string geometries;
    for (Json const& collision : link["collisions"]) {
        EXPECT_EQ(keysOf(collision), (Keys{"name", "pose", "geometry"}));
        geometries += collision["geometry"].dump();
    }
    EXPECT_EQ(geometries, R"({"type":"cylinder","radius":0.5,"length":2})"
                          R"({"type":"capsule","radius":0.5,"length":2}{"type":"sphere","radius":0.5})");
    EXPECT_EQ(link["visual"]["meshPath"], "m.dae") << "the first mesh";
}

TEST_F(Dump, PrintsTheShortestNumbersWhateverTheLocale)
{
    std::string const dump = run({"dump", "-"}, legs).out;
    // Neither 1.25 with zeros behind it nor 0.1 as the double next to it; nothing is a number without end.
    for (char const* const line :
         {"\"mass\": 1.25,", "\"minValue\": -1.1,", "\"maxValue\": null,", ", 0, 0.1, 0, 0,"}) {
        EXPECT_NE(dump.find(line), std::string::npos) << line;
    }
    // CTest says where that locale is.
    std::string const environment = "LC_ALL=de_DE.UTF-8";
    EXPECT_EQ(runCommand("env " + environment + " printf %.1f 1,5").out, "1,5");
    EXPECT_EQ(run({"dump", "-"}, legs, environment).out, dump);
}

TEST_F(Dump, DeepChainsTakeLinearTime)
{
    constexpr int depth = 5000;
    write("snake.xml", serialChain(depth));
    Json const dump = Json::parse(run({"dump", "snake.xml"}).out);
    for (int const joint : {10, 499, 500, 1000, depth - 1}) {
        EXPECT_EQ(dump["joints"][static_cast<std::size_t>(joint)]["globalPosition"].dump(),
                  "[1,0,0," + std::to_string(joint + 1) + ",0,1,0,0,0,0,1,0,0,0,0,1]");
    }
}

TEST_F(Dump, HasTheSymmetriesOfAUrdfUnlessTold)
{
    std::string const quadruped = VARO_SOURCE_DIR "/robots/quadruped.urdf";
    EXPECT_EQ(Json::parse(run({"dump", quadruped}).out)["jointSymmetries"][0].dump(),
              R"({"joints":["left_front_hip_roll","right_front_hip_roll"],"type":"ReflectedSymmetricReversed"})");
    EXPECT_EQ(Json::parse(run({"dump", "--no-infer", quadruped}).out)["jointSymmetries"].dump(), "[]");
}

TEST_F(Dump, IsAsItsSchemaSays)
{
    std::string const schema = VARO_SOURCE_DIR "/schema/dump.schema.json";
    for (std::string const& file : Tests::exampleFiles()) {
        expectValid(run({"dump", file}).out, schema);
    }
    Json more = Json::parse(run({"dump", VARO_SOURCE_DIR "/robots/minimal.xml"}).out);
    more["links"][0]["mass"]["unknown"] = 1;
    for (std::string const& wrong : {std::string("{}"), more.dump()}) {
        EXPECT_NE(runCommand(VARO_PYTHON " " VARO_SOURCE_DIR "/tests/tools/validate_json.py " + schema, wrong).status,
                  0);
    }
}

}  // namespace

}  // namespace ToolTest
