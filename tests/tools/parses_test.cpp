#include "run_tool.hpp"

namespace ToolTest {

class Parses : public ToolFixture {};

/// A fault that only building notices makes no difference.
TEST_F(Parses, AreOneForEachCommand)
{
    std::string broken = legs;
    broken.erase(broken.find("<attribute"), broken.find("</sensor>") - broken.find("<attribute"));
    write("robot.xml", legs);
    write("broken.xml", broken);
    write("arm.urdf", readFile(VARO_SOURCE_DIR "/tests/urdf/data/sensors.urdf"));
    std::vector<std::vector<std::string>> const commands = {
        {"check"}, {"info"}, {"tree"}, {"list", "joints"}, {"show", "Eye"}, {"graph"}, {"dump"}, {"convert"},
    };
    for (char const* file : {"robot.xml", "broken.xml", "arm.urdf"}) {
        for (std::vector<std::string> arguments : commands) {
            arguments.emplace_back(file);
            write("log", "");
            run(arguments, {}, "LD_PRELOAD=" COUNT_PARSES " ASAN_OPTIONS=verify_asan_link_order=0 PARSE_LOG=log");
            EXPECT_EQ(readFile(folder() / "log"), ".") << testing::PrintToString(arguments);
        }
    }
}

}  // namespace ToolTest
