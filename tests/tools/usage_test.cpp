#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>
#include <sstream>

#include "run_tool.hpp"

namespace ToolTest {

namespace {

constexpr int fine = 0;
constexpr int bad = 1;
constexpr int wrongUsage = 2;

class Usage : public ToolFixture {};

TEST_F(Usage, ExitStatusTellsBadDescriptionsFromWrongUsage)
{
    write("good.xml", legs);
    write("bad.xml", "<robotDescription/>");
    write("empty.xml", "");
    struct Case {
        std::vector<std::string> arguments;
        int status;
        std::string err;  // what standard error must hold
    };
    std::vector<Case> const cases = {
        {{"--version"}, fine, ""},
        {{"-V"}, fine, ""},
        {{"--help"}, fine, ""},
        {{"help", "list"}, fine, ""},
        {{"help", "lst"}, wrongUsage, "There is no command \"lst\".\nDid you mean \"list\"?"},
        {{"list", "good.xml", "joints"}, fine, ""},
        {{"show", "good.xml", "LHip"}, fine, ""},
        {{"pose", "LHip", "good.xml"}, fine, ""},
        {{"check", "good.xml"}, fine, ""},
        {{"check", "good.xml", "bad.xml"}, bad, "bad.xml:1:1: error: "},
        {{"dump", "bad.xml"}, bad, "bad.xml:1:1: error: "},
        {{"info", "none.xml"}, bad, "none.xml: error: It cannot be read: No such file or directory."},
        {{"tree", "."}, bad, ".: error: It cannot be read: Is a directory."},
        {{"check", "empty.xml"}, bad, "empty.xml: error: There is nothing in it."},
        {{"show", "Nobody", "good.xml"}, bad, "good.xml: error: Nothing in it is called \"Nobody\"."},
        {{"convert", "good.xml", "-o", "none/out.xml"}, bad, "none/out.xml: error: It cannot be written"},
        {{}, wrongUsage, "A subcommand is required"},
        {{"frobnicate"}, wrongUsage, "There is no command \"frobnicate\"."},
        {{"chek", "good.xml"}, wrongUsage, "There is no command \"chek\".\nDid you mean \"check\"?"},
        {{"list", "joints", "--jsn", "good.xml"}, wrongUsage, "Did you mean \"--json\"?"},
        {{"list", "joint", "--nothing-like-it", "good.xml"}, wrongUsage, "--nothing-like-it"},
        {{"list", "jionts", "good.xml"}, wrongUsage, "Did you mean \"joints\"?"},
        {{"show", "LHpi", "good.xml"}, bad, "Did you mean \"LHip\"?"},
        {{"check"}, wrongUsage, "FILE is required"},
        {{"tree", "--tall", "good.xml"}, wrongUsage, "--tall"},
        {{"list", "frobs", "good.xml"}, wrongUsage, "Known kinds:\nlinks, wheels, joints,"},
        {{"pose", "--joint", "LHip", "good.xml"}, wrongUsage, "--joint takes a name and a number"},
        {{"pose", "--joint", "LHip=0.5x", "good.xml"}, wrongUsage, "--joint takes a name and a number"},
        {{"pose", "--joint", "LHop=1", "good.xml"}, bad, "no joint or actuator \"LHop\". Did you mean \"LHip\"?"},
        {{"mass", "--posture", "Sit", "good.xml"}, bad, "good.xml: error: There is no posture \"Sit\"."},
        {{"tree", "--relative-to", "Eyes", "good.xml"}, bad, "actuator \"Eyes\". Did you mean \"Eye\"?"},
        {{"check", "--silence", "no-such-code", "good.xml"}, wrongUsage, "no-such-code"},
        {{"check", "--silence", "missing-element", "--silence", "missing-attribute", "bad.xml"}, bad, "1:1: error: "},
        {{"check", "--rule", "unheard-of", "good.xml"}, wrongUsage, "unheard-of"},
        {{"check", "--no-rule", "dangling-reference", "good.xml"}, wrongUsage, "dangling-reference"},
        {{"check", "--tolerance-mass=-1", "good.xml"}, wrongUsage, "A tolerance is a number"},
        {{"check", "--tolerance-mass=nan", "good.xml"}, wrongUsage, "A tolerance is a number"},
        {{"check", "--tolerance-mass=1x", "good.xml"}, wrongUsage, "A tolerance is a number"},
        {{"check", "--tolerance-mass=", "good.xml"}, wrongUsage, "A tolerance is a number"},
        {{"check", "--package-path", "made", "good.xml"}, wrongUsage, ""},
        {{"check", "--meshes", "--package", "arm_meshes", "good.xml"}, wrongUsage, "as NAME=FOLDER"},
        {{"check", "--meshes", "--package", "=made", "good.xml"}, wrongUsage, "as NAME=FOLDER"},
        {{"view", "none.xml"}, bad, "none.xml: error: "},
        {{"view", "good.xml", "--mesh-limit", "-1"}, wrongUsage, "--mesh-limit"},
    };
    for (Case const& expected : cases) {
        SCOPED_TRACE(testing::PrintToString(expected.arguments));
        Outcome const outcome = run(expected.arguments);
        EXPECT_EQ(outcome.status, expected.status);
        EXPECT_NE(outcome.err.find(expected.err), std::string::npos) << outcome.err;
        EXPECT_EQ(outcome.err.empty(), expected.status == fine);
    }
}

TEST_F(Usage, EveryCommandHasHelpAndReadsStandardInput)
{
    std::vector<std::vector<std::string>> const commands = {{"check"},        {"info"},   {"tree"}, {"list", "joints"},
                                                            {"show", "LHip"}, {"pose"},   {"mass"}, {"graph"},
                                                            {"dump"},         {"convert"}};
    std::string const overview = run({"--help"}).out;
    for (std::string const& help : {overview, run({"help", "diff"}).out, run({"help", "view"}).out}) {
        EXPECT_LE(widestLine(help), 80U);
    }
    for (std::vector<std::string> command : commands) {
        SCOPED_TRACE(command.front());
        EXPECT_NE(overview.find("\n  " + command.front() + " "), std::string::npos);
        std::string const help = run({command.front(), "--help"}).out;
        EXPECT_NE(help.find("Usage: varo-robot " + command.front()), std::string::npos);
        EXPECT_NE(help.find("Example"), std::string::npos);
        EXPECT_EQ(help.find("Example"), help.rfind("Example"));
        EXPECT_EQ(run({"help", command.front()}).out, help);
        EXPECT_LE(widestLine(help), 80U);

        command.emplace_back("-");
        Outcome const outcome = run(command, legs);
        EXPECT_EQ(outcome.status, fine) << outcome.err;
        EXPECT_FALSE(outcome.out.empty());
    }
}

std::set<std::string> wordsOf(std::string const& text)
{
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// Without lines that end with a colon: pages have titles in capitals.
std::string withoutTitles(std::string const& text)
{
    std::string rest;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        rest += line.empty() || line.back() != ':' ? line + '\n' : "";
    }
    return rest;
}

TEST_F(Usage, PagesForManSayWhatHelpSays)
{
    if (runCommand("man --version").status != 0) {
        GTEST_SKIP() << "man is not there";
    }
    ASSERT_EQ(run({"help", "--man-pages", "."}).status, fine);
    for (std::string const command : {"", "list", "check", "convert", "help"}) {
        SCOPED_TRACE(command);
        std::string const name = "varo-robot" + (command.empty() ? "" : "-" + command);
        std::string const page = "./" + name + ".1";
        std::string const forWhatis = runCommand("lexgrog " + page).out;
        EXPECT_EQ(forWhatis.rfind(page + ": \"" + name + " - ", 0), 0U) << forWhatis;
        Outcome const shown = runCommand("MANWIDTH=1000 LC_ALL=C man --warnings --nh --nj -l " + page);
        EXPECT_EQ(shown.err, "");
        std::set<std::string> const onPage = wordsOf(shown.out);
        std::string help = run({command.empty() ? "--help" : command, "--help"}).out;
        help = help.substr(help.find("\n\n", help.find("\nOptions:")));  // what the command's source says
        std::set<std::string> missing;
        for (std::string const& word : wordsOf(withoutTitles(help))) {
            bool const isCode = word.find('`') != word.npos;
            if (!isCode && onPage.count(word) == 0) {
                missing.insert(word);
            }
        }
        EXPECT_EQ(missing, std::set<std::string>());
    }
}

TEST_F(Usage, FullDiskIsReported)
{
    if (!std::filesystem::exists("/dev/full")) {
        GTEST_SKIP() << "there is no /dev/full";
    }
    write("good.xml", legs);
    Outcome const outcome = runCommand(VARO_ROBOT " dump good.xml >/dev/full");
    EXPECT_EQ(outcome.status, bad);
    EXPECT_EQ(outcome.err, "varo-robot: error: standard output cannot be written.\n");
}

}  // namespace

}  // namespace ToolTest
