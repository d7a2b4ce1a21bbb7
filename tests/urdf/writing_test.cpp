#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "urdf_text.hpp"

namespace {

std::string const ownFolder = VARO_SOURCE_DIR "/tests/urdf/data";

using namespace UrdfTest;

std::string urdfOf(std::string const& text)
{
    return ModelUtils::toUrdf(*ModelUtils::robotFromXml(text));
}

std::string nativeOf(std::string const& text)
{
    return ModelUtils::toXml(*ModelUtils::robotFromXml(text));
}

/// Word by word: alike, or numbers that differ by rounding to single precision.
void expectAlike(std::string const& expected, std::string const& actual)
{
    std::istringstream expectedWords(expected);
    std::istringstream actualWords(actual);
    std::string word;
    std::string other;
    while (expectedWords >> word) {
        ASSERT_TRUE(actualWords >> other);
        if (word != other) {
            auto const number = [](std::string const& text) {
                return std::strtod(text.c_str() + (text.find('"') == std::string::npos ? 0 : text.find('"') + 1),
                                   nullptr);
            };
            ASSERT_EQ(word.find_first_of("0123456789"), other.find_first_of("0123456789")) << word << " " << other;
            ASSERT_NEAR(number(word), number(other), 3e-7) << word << " " << other;
        }
    }
    EXPECT_FALSE(actualWords >> other);
}

TEST(UrdfWriting, KeepsTheRecordsOfOwnTexts)
{
    for (std::string const& file : Tests::filesIn(ownFolder, ".urdf")) {
        SCOPED_TRACE(file);
        std::string const text = readFile(file);
        std::string const written = urdfOf(text);
        expectAlike(nativeOf(text), nativeOf(written));
        EXPECT_EQ(urdfOf(nativeOf(text)), written);
    }
}

TEST(UrdfWriting, KeepsTheRecordsOfRealRobots)
{
    for (std::string const& file : Tests::filesIn(Tests::realRobotsFolder(), ".urdf")) {
        SCOPED_TRACE(file);
        std::string const native = nativeOf(readFile(file));
        expectAlike(native, nativeOf(urdfOf(native)));
    }
}

TEST(UrdfWriting, WritesFewDigits)
{
    std::string const text = robot(
        link("a") + link("b") + link("c") + joint("J", "a", "b", R"(<origin xyz="0.1 0 -0.25" rpy="1.5708 0 -3.14159"/>
                                   <axis xyz="0 1 1"/><limit lower="-1e40" upper="0.5" effort="3" velocity="inf"/>)") +
        joint("K", "b", "c", R"(<origin xyz="0 0.3 0" rpy="0 0.7 1.57079632679"/>)", "fixed"));
    std::string const written = urdfOf(text);
    for (char const* expected : {R"(<origin xyz="0.1 0 -0.25" rpy="1.5708 0 -3.14159"/>)", R"(<axis xyz="0 1 1"/>)",
                                 R"(<limit lower="-1e+308" upper="0.5" effort="3" velocity="1e+308"/>)",
                                 R"(<origin xyz="0 0.3 0" rpy="0 0.7 1.57079632679"/>)"}) {
        EXPECT_NE(written.find(expected), std::string::npos) << expected << "\n" << written;
    }
}

TEST(UrdfWriting, PutsExtensionsWhereTheyStood)
{
    std::string const text = robot(R"(<link name="a" b="1"><visual><geometry><sphere radius="1" c='2'/></geometry>
                                   </visual><d><e/></d></link>
                                   <gazebo reference="a"><mu1>0.2</mu1></gazebo><gazebo><plugin name="p"/></gazebo>
                                   <sensor name="s" type="imu" update_rate="9"><parent link="a"/>
                                   <camera f="1"><g/></camera></sensor>)");
    std::string const written = urdfOf(text);
    EXPECT_EQ(nativeOf(written), nativeOf(text));
    for (char const* expected : {R"(<link name="a" b="1">)", R"(<sphere radius="1" c='2'/>)", "<d><e/></d>",
                                 "<gazebo reference=\"a\">\n      <mu1>0.2</mu1>", "<camera f=\"1\">\n        <g/>"}) {
        std::string wanted = expected;
        std::string flat = written;
        flat.erase(std::remove(flat.begin(), flat.end(), ' '), flat.end());
        wanted.erase(std::remove(wanted.begin(), wanted.end(), ' '), wanted.end());
        EXPECT_NE(flat.find(wanted), std::string::npos) << expected << "\n" << written;
    }
}

/// What check_urdf says of the tree; empty for a text that it refuses.
std::string treeOf(std::string const& urdf)
{
    std::string const file = ::testing::TempDir() + "written_robot.urdf";
    std::ofstream(file) << urdf;
    std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(("check_urdf \"" + file + "\" 2>/dev/null").c_str(), "r"), pclose);
    std::string output;
    std::array<char, 4096> buffer;
    while (std::size_t const count = std::fread(buffer.data(), 1, buffer.size(), pipe.get())) {
        output.append(buffer.data(), count);
    }
    return output.find("Successfully") == std::string::npos ? std::string() : output;
}

TEST(UrdfWriting, IsReadByOthersWithTheSameTree)
{
    if (std::system("command -v check_urdf >/dev/null") != 0) {
        GTEST_SKIP() << "check_urdf is not installed";
    }
    for (std::string const& folder : {ownFolder, Tests::realRobotsFolder()}) {
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
    for (std::string const& file : Tests::filesIn(VARO_SOURCE_DIR "/robots", ".xml")) {
        EXPECT_NE(treeOf(urdfOf(readFile(file))), "") << file;
    }
}

}  // namespace
