#include "run_tool.hpp"

namespace ToolTest {

namespace {

class Convert : public ToolFixture {
protected:
    /// Converting again must change nothing, and the models must be the same to the last bit.
    void expectRoundTrip(std::string const& file) const
    {
        SCOPED_TRACE(file);
        ASSERT_EQ(run({"convert", file, "-o", "once.xml"}).status, 0);
        ASSERT_EQ(run({"convert", "once.xml", "-o", "twice.xml"}).status, 0);
        EXPECT_EQ(readFile(folder() / "once.xml"), readFile(folder() / "twice.xml"));
        Outcome const original = run({"dump", file});
        ASSERT_EQ(original.status, 0) << original.err;
        EXPECT_TRUE(original.out == run({"dump", "once.xml"}).out) << "the dumps differ";
    }

    void expectRoundTrips(std::string const& directory, std::string const& extension) const
    {
        for (std::string const& file : Tests::filesIn(directory, extension)) {
            expectRoundTrip(file);
        }
    }
};

TEST_F(Convert, WritesTheCanonicalForm)
{
    write("wild.xml", R"(<!-- comments go -->
<robotDescription version='1' name='W &amp; "&lt;&gt;'>
  <posture name="Rest"><angle value="+1e-1" of="J"/></posture>
  <joint max="unlimited" min="-.5" name="J" type="revolute" damping="0.0" reflectionForced="1">
    <mirror reflected="true" name="J"/><placement rpy="0.3 -0.2 3.1" xyz="1 2.50 -0"/>
    <end matrix="0 -1 0 0  1 0 0 0  0 0 1 -0"/>
  </joint>
  <chain name="C" parent="T"><tipPlacement/><jointRef name="J"/></chain>
  <root name="T"><mass value="0" com="0 -0 0"/><attribute name="note" value="a&#10;b&#9;c"/></root>
  <actuator parent="J" name="A" min="0" max="1">
    <group><jointRef name="J" ratio="2"/><subJoint name="S" ratio="1"/></group>
  </actuator>
  <sensor parent="J" type="button" name="B"><key>  k&lt;1 </key></sensor>
  <prettyName>  Wild   One </prettyName>
</robotDescription>)");
    EXPECT_EQ(run({"convert", "wild.xml"}).out, R"(<?xml version="1.0" encoding="UTF-8"?>
<robotDescription name="W &amp; &quot;&lt;&gt;" version="1">
  <prettyName>Wild   One</prettyName>
  <root name="T">
    <mass value="0" com="0 -0 0"/>
    <attribute name="note" value="a&#10;b&#9;c"/>
  </root>
  <joint name="J" min="-0.5" max="unlimited" reflectionForced="true">
    <placement xyz="1 2.5 0" rpy="0.3 -0.2 3.1"/>
    <end matrix="0 -1 0 0 1 0 0 0 0 0 1 -0"/>
    <mirror name="J" reflected="true"/>
  </joint>
  <chain name="C" parent="T">
    <jointRef name="J"/>
  </chain>
  <actuator name="A" parent="J" min="0" max="1">
    <group>
      <jointRef name="J" ratio="2"/>
      <subJoint name="S" ratio="1"/>
    </group>
  </actuator>
  <sensor name="B" parent="J" type="button">
    <key>k&lt;1</key>
  </sensor>
  <posture name="Rest">
    <angle of="J" value="0.1"/>
  </posture>
</robotDescription>
)");
    expectRoundTrip("wild.xml");
}

TEST_F(Convert, ExampleRobotsComeBackTheSame)
{
    expectRoundTrips(VARO_SOURCE_DIR "/robots", ".xml");
}

TEST_F(Convert, UrdfRobotsComeBackTheSame)
{
    expectRoundTrips(VARO_SOURCE_DIR "/tests/urdf/data", ".urdf");
    expectRoundTrips(VARO_SOURCE_DIR "/../shared/robots", ".urdf");  // real robots, where there are any
}

TEST_F(Convert, RefusesWhatIsBad)
{
    Outcome const outcome = run({"convert", "-", "-o", "out.xml"}, "<robot name=\"r\"/>");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err.rfind("<stdin>:1:", 0), 0U) << outcome.err;
    EXPECT_FALSE(std::filesystem::exists(folder() / "out.xml"));
}

}  // namespace

}  // namespace ToolTest
