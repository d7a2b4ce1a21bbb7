#include "run_tool.hpp"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include <sys/wait.h>

namespace ToolTest {

namespace {

std::filesystem::path newFolder()
{
    std::string name = (std::filesystem::temp_directory_path() / "varo-robot-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("There is no place for temporary files.");
    }
    return name;
}

std::string shellQuoted(std::string const& text)
{
    std::string quoted = "'";
    for (char const c : text) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

}  // namespace

ToolFixture::ToolFixture() : _folder(newFolder()) {}

ToolFixture::~ToolFixture()
{
    std::filesystem::remove_all(_folder);
}

void ToolFixture::write(std::string const& name, std::string const& text) const
{
    std::ofstream(_folder / name, std::ios::binary) << text;
}

Outcome ToolFixture::run(std::vector<std::string> const& arguments, std::string const& input,
                         std::string const& environment) const
{
    std::string command = environment + " " + shellQuoted(VARO_ROBOT);
    for (std::string const& argument : arguments) {
        command += " " + shellQuoted(argument);
    }
    return runCommand(command, input);
}

void ToolFixture::expectValid(std::string const& json, std::string const& schema) const
{
    Outcome const outcome = runCommand(VARO_PYTHON " " VARO_SOURCE_DIR "/tests/tools/validate_json.py " + schema, json);
    EXPECT_EQ(outcome.status, 0) << outcome.out << outcome.err;
}

Outcome ToolFixture::runCommand(std::string const& command, std::string const& input) const
{
    write(".in", input);
    std::string const line = "cd " + shellQuoted(_folder.string()) + " && { " + command + "; } <.in >.out 2>.err";
    int const status = std::system(line.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, readFile(_folder / ".out"), readFile(_folder / ".err")};
}

std::size_t widestLine(std::string const& text)
{
    std::size_t widest = 0;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        auto const isContinued = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; };
        auto const continued = std::count_if(line.begin(), line.end(), isContinued);
        widest = std::max(widest, line.size() - static_cast<std::size_t>(continued));
    }
    return widest;
}

std::string serialChain(int joints)
{
    std::ostringstream text;
    text << "<robotDescription name=\"Snake\"><root name=\"Base\"/>";
    for (int i = 0; i < joints; ++i) {
        text << "<joint name=\"J" << i << "\" min=\"0\" max=\"1\"><placement xyz=\"1 0 0\"/></joint>";
    }
    text << "<chain name=\"Body\" parent=\"Base\">";
    for (int i = 0; i < joints; ++i) {
        text << "<jointRef name=\"J" << i << "\"/>";
    }
    text << "</chain></robotDescription>";
    return text.str();
}

char const legs[] = R"(<robotDescription name="Walker" version="2.1">
  <prettyName>The Walker</prettyName>
  <root name="Pelvis" mesh="pelvis.dae"><mass value="4.5" com="0 0 -0.01"/></root>
  <joint name="LHip" min="-1.1" max="unlimited" maxSpeed="6" mesh="thigh.dae">
    <placement xyz="0 0.1 -0.05"/><mass value="1.25" inertia="0.01 0 0 0 0.01 0 0 0 0.01"/><mirror name="RHip"/>
  </joint>
  <joint name="RHip" min="-1.1" max="unlimited" maxSpeed="6" mesh="thigh.dae">
    <placement xyz="0 -0.1 -0.05"/><mass value="1.25" inertia="0.01 0 0 0 0.01 0 0 0 0.01"/><mirror name="LHip"/>
  </joint>
  <chain name="LLeg" parent="Pelvis"><jointRef name="LHip"/></chain>
  <chain name="RLeg" parent="Pelvis"><jointRef name="RHip"/></chain>
  <sensor name="Eye" parent="Pelvis" type="camera">
    <placement xyz="0.2 0 0"/><attribute name="resolutions" value="640 480"/>
  </sensor>
</robotDescription>
)";

}  // namespace ToolTest
