#include "run_tool.hpp"

namespace ToolTest {

namespace {

class HostileNames : public ToolFixture {};

/// What moves the cursor, or begins a command to the terminal, or turns the direction of writing.
std::vector<std::string> const hidden = {"\x1B",         "\x7F",         "\xC2\x9B",     "\xE2\x80\xA8",
                                         "\xE2\x80\xA9", "\xE2\x80\xAE", "\xE2\x81\xA6", "\r"};

std::string const sly =
    "\xC2\x9B"
    "31m\x7F\xE2\x80\xA8\xE2\x80\xA9\xE2\x80\xAE\xE2\x81\xA6&#10;&#13;&#9;x";

std::string replaced(std::string text, std::string const& what, std::string const& with)
{
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size()) {
        text.replace(at, what.size(), with);
    }
    return text;
}

/// With sly names for whatever has one.
std::string slyRobot()
{
    std::string text = legs;
    for (char const* name : {"Walker", "Walker", "LHip", "RHip", "LLeg", "Eye", "Pelvis"}) {
        text = replaced(std::move(text), "\"" + std::string(name) + "\"", "\"" + std::string(name) + sly + "\"");
    }
    text = replaced(std::move(text), "The Walker", "The " + sly);
    return replaced(std::move(text), "</robotDescription>",
                    "<posture name='P" + sly + "'/><sensor name='S" + sly + "' parent='Nobody" + sly +
                        "' type='bumper'/></robotDescription>");
}

void expectHarmless(Outcome const& outcome, std::string const& what)
{
    for (std::string const& each : hidden) {
        EXPECT_EQ((outcome.out + outcome.err).find(each), std::string::npos) << what << outcome.out << outcome.err;
    }
}

TEST_F(HostileNames, GiveATerminalNothingThatItWouldObey)
{
    std::string const file = "robot\x1B[2J\n.xml";
    write(file, slyRobot());
    std::string name = replaced(sly, "&#10;", "\n");
    name = replaced(replaced(name, "&#13;", "\r"), "&#9;", "\t");
    std::vector<std::vector<std::string>> const commands = {{"check"},
                                                            {"check", "--all", "--format", "github"},
                                                            {"check", "--silence", name},
                                                            {"info"},
                                                            {"tree", "--mass", "--pose"},
                                                            {"list", "joints"},
                                                            {"list", "sensors"},
                                                            {"list", "chains"},
                                                            {"list", name},
                                                            {"show", "LHip" + name},
                                                            {"show", "Pelvis" + name + "Link"},
                                                            {"show", name},
                                                            {"pose"},
                                                            {"pose", "--posture", name},
                                                            {"mass"},
                                                            {"graph", "--sensors", "--actuators"},
                                                            {"convert"},
                                                            {"convert", "--to", "urdf"},
                                                            {"info", "--" + name},
                                                            {name}};
    for (std::vector<std::string> command : commands) {
        command.push_back(file);
        expectHarmless(run(command), testing::PrintToString(command));
    }
    Outcome const graph = run({"graph", file});
    EXPECT_NE(graph.out.find("LHip\\\\u009B31m\\\\u007F\\\\u2028\\\\u2029\\\\u202E\\\\u2066\\\\u000A"),
              std::string::npos)
        << graph.out;
    EXPECT_NE(run({"dump", file}).out.find("\"name\": \"Walker\xC2\x9B"), std::string::npos) << "JSON keeps names";
    EXPECT_NE(run({"check", "no\xFF\x9Bsuch"}).err.find("no\\xFF\\x9Bsuch: error:"), std::string::npos);
}

TEST_F(HostileNames, AreCutToALine)
{
    Outcome const outcome = run({"check", "<robot name=\"" + std::string(100'000, 'x') + "\">\n</robot>"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_LT(outcome.err.size(), 1500U);
}

class Obstacles : public ToolFixture {};

TEST_F(Obstacles, AreToldAsWhatTheyAre)
{
    write("good.xml", legs);
    std::filesystem::create_directory(folder() / "folder");
    std::filesystem::create_symlink("loop.xml", folder() / "loop.xml");
    std::string utf16;
    for (char const c : std::string(legs)) {
        utf16 += {c, '\0'};
    }
    write("utf16.xml", utf16);
    struct Case {
        std::string command;
        std::string err;
    };
    std::vector<Case> const cases = {
        {"check folder", "folder: error: It cannot be read: Is a directory. [unreadable-file]"},
        {"check loop.xml", "loop.xml: error: It cannot be read: Too many levels of symbolic links."},
        {"check good.xml/more.xml", "good.xml/more.xml: error: It cannot be read: Not a directory."},
        {"check /proc/self/mem", "/proc/self/mem: error: It cannot be read: Input/output error."},
        {"check /dev/zero", "/dev/zero: error: It cannot be read: It is a device."},
        {"check /dev/stdin </dev/full", "/dev/stdin:1:1: error: The text is longer than 256 MiB."},
        {"check - <folder", "<stdin>: error: It cannot be read: Is a directory."},
        {"check - <&-", "<stdin>: error: It cannot be read: Bad file descriptor."},
        {"check utf16.xml", "utf16.xml:1:1: error: The text is in UTF-16. [bad-encoding]"},
    };
    for (auto const& [command, err] : cases) {
        Outcome const outcome = runCommand(VARO_ROBOT " " + command);
        EXPECT_EQ(outcome.status, 1) << command;
        EXPECT_NE(outcome.err.find(err), std::string::npos) << command << outcome.err;
    }
    Outcome const ofPipe = runCommand("mkfifo pipe; cat good.xml >pipe & " VARO_ROBOT " check pipe");
    EXPECT_EQ(ofPipe.status, 0);
    EXPECT_EQ(ofPipe.out.rfind("pipe: ", 0), 0U) << ofPipe.err;
}

TEST_F(Obstacles, LackOfMemoryIsNone)
{
#ifdef VARO_SANITIZED
    GTEST_SKIP() << "A sanitizer has a malloc of its own.";
#endif
    write("good.xml", legs);
    int failures = 0;
    for (int number = 1; number < 4000; number += 37) {
        std::string const environment =
            "LD_PRELOAD=" FAIL_ALLOCATION " ASAN_OPTIONS=verify_asan_link_order=0 FAIL_ALLOCATION=";
        Outcome const outcome = run({"dump", "good.xml"}, {}, environment + std::to_string(number));
        if (outcome.status != 0) {
            ++failures;
            EXPECT_EQ(outcome.status, 1) << number;
            EXPECT_EQ(outcome.err, "varo-robot: error: not enough memory\n") << number;
        }
    }
    EXPECT_GT(failures, 20);
}

}  // namespace

}  // namespace ToolTest
