#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <set>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;

std::string urdfOf(std::string const& text)
{
    return ModelUtils::toUrdf(*ModelUtils::robotFromXml(text));
}

TEST(UrdfWriting, SaysOnlyWhatUrdfCannotInOurOwnWords)
{
    for (char const* plain : {"gripper", "names", "sensors", "sensor_settings", "statements"}) {
        EXPECT_EQ(urdfOf(readFile(dataFile(std::string(plain) + ".urdf"))).find("varo"), std::string::npos) << plain;
    }
    Findings findings;
    auto const robot = ModelUtils::robotFromXml(readFile(dataFile("beyond_urdf.xml")));
    std::string const written = ModelUtils::toUrdf(*robot, findings);
    std::set<std::string> told;
    for (Finding const& finding : findings) {
        told.insert(std::to_string(finding.line) + " " + finding.code);
    }
    for (char const* expected :
         {"4 beyond-urdf-pretty-name", "4 beyond-urdf-root", "12 beyond-urdf-joint", "25 beyond-urdf-chain",
          "28 beyond-urdf-actuator", "29 beyond-urdf-wheel", "30 beyond-urdf-sensor", "36 beyond-urdf-posture",
          "38 beyond-urdf-transmission", "42 beyond-urdf-extension"}) {
        EXPECT_EQ(told.count(expected), 1U) << expected;
    }
    EXPECT_EQ(told.count("23 beyond-urdf-joint"), 0U) << "URDF says all of this one";
    EXPECT_NE(written.find(R"(<joint name="B" link="" min="3" max="1" motor="true")"), std::string::npos) << written;
}

TEST(UrdfWriting, TellsOfRobotsThatNoUrdfCanBeMadeOf)
{
    std::string const name(1010, 'x');  // URDF has shorter names
    Findings findings;
    auto const robot =
        ModelUtils::robotFromXml("<robotDescription name=\"r\"><root name=\"" + name + "\"/></robotDescription>");
    ModelUtils::toUrdf(*robot, findings);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings.front().code, "not-urdf");
    EXPECT_EQ(findings.front().severity, Severity::error);
}

/// But for blanks.
void expectParts(std::string written, std::vector<std::string> const& parts)
{
    auto const flatten = [](std::string& text) { text.erase(std::remove(text.begin(), text.end(), ' '), text.end()); };
    flatten(written);
    for (std::string part : parts) {
        flatten(part);
        EXPECT_NE(written.find(part), std::string::npos) << part << "\n" << written;
    }
}

TEST(UrdfWriting, WritesFewDigits)
{
    expectParts(urdfOf(robot(link("a") + link("b") + link("c") +
                             joint("J", "a", "b", R"(<origin xyz="0.1 0 -0.25" rpy="1.5708 0 -3.14159"/>
                                <axis xyz="0 1 1"/><limit lower="-1e40" upper="0.5" effort="3" velocity="inf"/>)") +
                             joint("K", "b", "c", R"(<origin xyz="0 0.3 0" rpy="0 0.7 1.57079632679"/>)", "fixed"))),
                {R"(<origin xyz="0.1 0 -0.25" rpy="1.5708 0 -3.14159"/>)", R"(<axis xyz="0 1 1"/>)",
                 R"(<limit lower="-1e+308" upper="0.5" effort="3" velocity="1e+308"/>)",
                 R"(<origin xyz="0 0.3 0" rpy="0 0.7 1.57079632679"/>)"});
}

TEST(UrdfWriting, PutsExtensionsWhereTheyStood)
{
    expectParts(urdfOf(robot(R"(<link name="a" b="1"><visual><geometry><sphere radius="1" c='2'/></geometry>
        </visual><d><e/></d></link><gazebo reference="a"><mu1>0.2</mu1></gazebo><gazebo><plugin name="p"/></gazebo>
        <sensor name="s" type="imu" update_rate="9"><parent link="a"/><camera f="1"><g/></camera></sensor>)")),
                {R"(<link name="a" b="1">)", R"(<sphere radius="1" c='2'/>)", "<d><e/></d>",
                 "<gazebo reference=\"a\">\n<mu1>0.2</mu1>", "<camera f=\"1\">\n<g/>"});
}

/// What check_urdf says of the tree; empty for a text that it refuses.
std::string treeOf(std::string const& urdf)
{
    std::string const file = ::testing::TempDir() + "written_robot_" + std::to_string(::getpid()) + ".urdf";
    std::ofstream(file) << urdf;
    std::string const printed = file + ".txt";
    std::system(("check_urdf '" + file + "' >'" + printed + "' 2>/dev/null").c_str());
    std::string const output = readFile(printed);
    std::remove(file.c_str());
    std::remove(printed.c_str());
    return output.find("Successfully") == std::string::npos ? std::string() : output;
}

TEST(UrdfWriting, IsReadByOthersWithTheSameTree)
{
    if (std::system("command -v check_urdf >/dev/null") != 0) {
        GTEST_SKIP() << "check_urdf is not installed";
    }
    for (std::string const& folder : {dataFile(""), Tests::realRobotsFolder()}) {
        for (std::string const& file : Tests::filesIn(folder, ".urdf")) {
            SCOPED_TRACE(file);
            std::string const text = readFile(file);
            std::string const tree = treeOf(text);
            std::string const written = treeOf(urdfOf(text));
            if (!tree.empty()) {
                EXPECT_EQ(written, tree);
            } else {  // a text that is not as strict as check_urdf wants it
                EXPECT_TRUE(!written.empty() || file.find("loose.urdf") != std::string::npos);
            }
        }
    }
    for (std::string const& folder : {dataFile(""), std::string(VARO_SOURCE_DIR "/robots")}) {
        for (std::string const& file : Tests::filesIn(folder, ".xml")) {
            EXPECT_NE(treeOf(urdfOf(readFile(file))), "") << file;
        }
    }
}

}  // namespace
