#include "run_tool.hpp"

namespace ToolTest {

namespace {

class Convert : public ToolFixture {
protected:
    /// Through either dialect and back nothing changes, and the models are the same to the last bit.
    void expectRoundTrip(std::string const& file) const
    {
        SCOPED_TRACE(file);
        ASSERT_EQ(run({"convert", file, "--force", "-o", "native.xml"}).status, 0);
        std::string const native = readFile(folder() / "native.xml");
        std::string const dump = run({"dump", file}).out;
        EXPECT_TRUE(run({"convert", "native.xml"}).out == native);
        EXPECT_TRUE(run({"dump", "native.xml"}).out == dump);
        for (std::string const& start : {file, std::string("native.xml")}) {
            SCOPED_TRACE(start);
            ASSERT_EQ(run({"convert", "--to", "urdf", start, "--force", "-o", "written.urdf"}).status, 0);
            EXPECT_TRUE(run({"convert", "--to", "urdf", "written.urdf"}).out == readFile(folder() / "written.urdf"));
            EXPECT_TRUE(run({"convert", "written.urdf"}).out == native);
            EXPECT_TRUE(run({"dump", "written.urdf"}).out == dump);
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

TEST_F(Convert, RobotsComeBackTheSame)
{
    for (std::string const& place : {std::string(VARO_SOURCE_DIR "/robots"),
                                     std::string(VARO_SOURCE_DIR "/tests/urdf/data"), Tests::realRobotsFolder()}) {
        for (char const* const extension : {".xml", ".urdf"}) {
            for (std::string const& file : Tests::filesIn(place, extension)) {
                expectRoundTrip(file);
            }
        }
    }
}

TEST_F(Convert, SaysOnceOfEachKindWhatUrdfCannotSay)
{
    write("legs.xml", legs);
    Outcome const outcome = run({"convert", "--to", "urdf", "legs.xml"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_NE(outcome.err.find("[beyond-urdf-chain]"), std::string::npos) << outcome.err;
    EXPECT_NE(outcome.out.find("<varo:description"), std::string::npos);
    write("long.xml", serialChain(100));
    std::string const told = run({"convert", "--to", "urdf", "long.xml"}).err;
    EXPECT_EQ(told.find("beyond-urdf-joint"), told.rfind("beyond-urdf-joint")) << told;
}

TEST_F(Convert, RefusesWhatIsBad)
{
    Outcome const outcome = run({"convert", "-", "-o", "out.xml"}, "<robot name=\"r\"/>");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err.rfind("<stdin>:1:", 0), 0U) << outcome.err;
    EXPECT_FALSE(std::filesystem::exists(folder() / "out.xml"));
}

/// What becomes of the file that -o names.
class ConvertOutput : public ToolFixture {
protected:
    ConvertOutput()
    {
        write("legs.xml", legs);
        write("long.xml", serialChain(100));
        converted = run({"convert", "legs.xml"}).out;
    }

    /// The command must fail, say so, and leave all files as they are.
    void expectRefusal(std::string const& command, std::string const& message) const
    {
        SCOPED_TRACE(command);
        std::string const before = runCommand("ls -AR").out;
        Outcome const outcome = runCommand(command);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_NE(outcome.err.find(message), std::string::npos) << outcome.err;
        EXPECT_EQ(readFile(folder() / "legs.xml"), legs);
        EXPECT_EQ(runCommand("ls -AR").out, before);
    }

    std::string converted;
};

TEST_F(ConvertOutput, ReplacesAnotherFileOnlyWhenToldTo)
{
    expectRefusal(VARO_ROBOT " convert long.xml -o legs.xml", "legs.xml: error: It is there already. [existing-file]");
    expectRefusal(VARO_ROBOT " convert - <legs.xml -o legs.xml", "--force");
    EXPECT_EQ(run({"convert", "long.xml", "--force", "-o", "legs.xml"}).status, 0);
    EXPECT_EQ(readFile(folder() / "legs.xml"), run({"convert", "long.xml"}).out);
}

TEST_F(ConvertOutput, KeepsPermissionsAndLinksOfWhatItReplaces)
{
    using std::filesystem::perms;
    perms const mode = perms::owner_read | perms::owner_write | perms::group_read;
    std::filesystem::permissions(folder() / "legs.xml", mode);
    std::filesystem::create_symlink("legs.xml", folder() / "link.xml");
    ASSERT_EQ(run({"convert", "./legs.xml", "-o", "link.xml"}).status, 0);  // onto itself
    EXPECT_TRUE(std::filesystem::is_symlink(folder() / "link.xml"));
    EXPECT_EQ(readFile(folder() / "legs.xml"), converted);
    EXPECT_EQ(std::filesystem::status(folder() / "legs.xml").permissions(), mode);

    std::filesystem::create_symlink("new.xml", folder() / "dangling.xml");
    ASSERT_EQ(runCommand("umask 027; " VARO_ROBOT " convert legs.xml -o dangling.xml").status, 0);
    EXPECT_EQ(readFile(folder() / "new.xml"), converted);
    EXPECT_EQ(std::filesystem::status(folder() / "new.xml").permissions(), mode);
}

TEST_F(ConvertOutput, AFileThatCannotBeWrittenStaysAsItWas)
{
    std::filesystem::create_directory(folder() / "closed");
    write("closed/legs.xml", legs);
    std::filesystem::permissions(folder() / "closed", std::filesystem::perms(0555));
    write("read-only.xml", legs);
    std::filesystem::permissions(folder() / "read-only.xml", std::filesystem::perms(0444));

    std::string const convertLong = VARO_ROBOT " convert long.xml --force -o ";
    expectRefusal("ulimit -f 1; " + convertLong + "legs.xml", "legs.xml: error: It cannot be written: File too large.");
    expectRefusal(convertLong + "closed", "closed: error: It cannot be written: Is a directory.");
    // Root may write where permissions forbid it, unless it gives that up.
    std::string const asAnyone = "setpriv --bounding-set=-dac_override,-dac_read_search ";
    std::string const prefix = runCommand(asAnyone + "true").status == 0 ? asAnyone : "";
    if (runCommand(prefix + "touch closed/new").status != 0) {
        std::string const convertForbidden = prefix + convertLong;
        for (std::string const file : {"read-only.xml", "closed/new.xml", "closed/legs.xml"}) {
            expectRefusal(convertForbidden + file, file + ": error: It cannot be written: Permission denied.");
        }
    }
    EXPECT_EQ(readFile(folder() / "closed/legs.xml"), legs);
    EXPECT_EQ(readFile(folder() / "read-only.xml"), legs);
    std::filesystem::permissions(folder() / "closed", std::filesystem::perms(0755));  // so that it can go
}

TEST_F(ConvertOutput, DevicesAndPipesAreWrittenAsTheyAre)
{
    expectRefusal(VARO_ROBOT " convert legs.xml -o /dev/full", "It cannot be written: No space left on device.");
    EXPECT_EQ(runCommand(VARO_ROBOT " convert legs.xml -o /dev/stdout").out, converted);
    EXPECT_EQ(runCommand("echo before; " VARO_ROBOT " convert legs.xml -o /dev/stdout | cat").out,
              "before\n" + converted);
    EXPECT_EQ(runCommand("mkfifo pipe; cat pipe & " VARO_ROBOT " convert legs.xml -o pipe; wait").out, converted);
}

}  // namespace

}  // namespace ToolTest
