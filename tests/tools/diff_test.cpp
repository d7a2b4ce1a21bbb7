#include <nlohmann/json.hpp>

#include "run_tool.hpp"
#include "texts.hpp"

namespace ToolTest {

namespace {

using Json = nlohmann::json;
using Tests::replaced;

std::string const robots = VARO_SOURCE_DIR "/robots/";

class Diff : public ToolFixture {};

TEST_F(Diff, ARobotIsTheSameInWhateverDialectAndWriting)
{
    for (std::string const robot : {"humanoid.xml", "rover.xml", "mobile_arm.urdf", "quadruped.urdf"}) {
        SCOPED_TRACE(robot);
        write("native.xml", run({"convert", robots + robot}).out);
        Outcome const outcome = run({"diff", "--tolerance", "0", robots + robot, "native.xml"});
        EXPECT_EQ(outcome.status, 0) << outcome.out;
        EXPECT_EQ(outcome.out, "");
    }
    // Another order, a whole turn, a comment, and defaults that are stated.
    write("a.urdf", R"(<robot name="r"><link name="base"/><link name="a"/><link name="b"/>
      <joint name="j" type="fixed"><parent link="base"/><child link="a"/><origin xyz="0 0 1"/></joint>
      <joint name="k" type="fixed"><parent link="base"/><child link="b"/></joint></robot>)");
    write("b.urdf", R"(<robot name="r"><!-- --><link name="b"/><link name="base"/>
      <joint type="fixed" name="k"><origin rpy="0 0 0"/><child link="b"/><parent link="base"/></joint><link name="a"/>
      <joint name="j" type="fixed"><child link="a"/><parent link="base"/>
        <origin rpy="0 0 6.283185307179586" xyz="0.0 0 1e0"/></joint></robot>)");
    Outcome const outcome = run({"diff", "a.urdf", "b.urdf"});
    EXPECT_EQ(outcome.status, 0) << outcome.out;
}

TEST_F(Diff, SaysWhatDiffersByNameAndPlace)
{
    std::string changed = replaced(legs, "maxSpeed=\"6\"", "maxSpeed=\"6.5\"");
    changed = replaced(changed, " com=\"0 0 -0.01\"", "");
    changed = replaced(changed, "<placement xyz=\"0 -0.1 -0.05\"/>", "<placement xyz=\"0 -0.1 -0.06\"/>");
    changed = replaced(changed, "name=\"Eye\"", "name=\"Ear\"");
    changed = replaced(changed, "640 480", "641 480");
    write("a.xml", legs);
    write("b.xml", changed);
    Outcome const outcome = run({"diff", "a.xml", "b.xml"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out,
              "joint LHip (a.xml:4, b.xml:4)\n"
              "  maxSpeed: 6 | 6.5\n"
              "joint RHip (a.xml:7, b.xml:7)\n"
              "  placement: xyz 0 -0.1 -0.05 | xyz 0 -0.1 -0.06\n"
              "root (a.xml:3, b.xml:3)\n"
              "  mass com: 0 0 -0.01 | not stated\n"
              "sensor Eye (a.xml:12) is not in b.xml\n"
              "sensor Ear (b.xml:12) is not in a.xml\n");
    Json const json = Json::parse(run({"diff", "--json", "a.xml", "b.xml"}).out);
    ASSERT_EQ(json.size(), 5U);
    EXPECT_EQ(json[0], Json::parse(R"({"kind": "joint", "name": "LHip", "in": "both", "lineA": 4, "lineB": 4,
                                       "facts": [{"fact": "maxSpeed", "a": "6", "b": "6.5"}]})"));
    EXPECT_EQ(json[4]["in"], "b");
}

TEST_F(Diff, TakesATolerance)
{
    write("a.xml", legs);
    std::string changed = replaced(legs, "maxSpeed=\"6\"", "maxSpeed=\"6.005\"");
    write("b.xml", replaced(changed, "0 0 -0.01", "0 0.0005 -0.01"));
    EXPECT_EQ(run({"diff", "--tolerance", "0.001", "a.xml", "b.xml"}).out, "");
    EXPECT_EQ(run({"diff", "--tolerance", "0.0006", "a.xml", "b.xml"}).out,
              "joint LHip (a.xml:4, b.xml:4)\n  maxSpeed: 6 | 6.005\n");
    EXPECT_EQ(run({"diff", "a.xml", "b.xml"}).status, 1);
}

TEST_F(Diff, OrderCountsWhereItMeansSomething)
{
    std::string const chain = serialChain(2);
    write("a.xml", chain);
    write("b.xml", replaced(chain, R"(<jointRef name="J0"/><jointRef name="J1"/>)",
                            R"(<jointRef name="J1"/><jointRef name="J0"/>)"));
    EXPECT_EQ(run({"diff", "a.xml", "b.xml"}).out, "chain Body (a.xml:1, b.xml:1)\n  joints: J0, J1 | J1, J0\n");
}

TEST_F(Diff, WhatCannotBeReadIsTrouble)
{
    write("a.xml", legs);
    write("bad.xml", "<robotDescription/>");
    for (std::vector<std::string> const& arguments : {std::vector<std::string>{"diff", "a.xml", "bad.xml"},
                                                      {"diff", "none.xml", "a.xml"},
                                                      {"diff", "a.xml"},
                                                      {"diff", "--tolerance", "-1", "a.xml", "a.xml"}}) {
        Outcome const outcome = run(arguments);
        EXPECT_EQ(outcome.status, 2) << outcome.out;
        EXPECT_NE(outcome.err, "");
    }
    EXPECT_EQ(run({"diff", "-", "a.xml"}, legs).status, 0);
}

}  // namespace

}  // namespace ToolTest
