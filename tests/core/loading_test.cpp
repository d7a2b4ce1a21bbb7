#include <cstdio>
#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "descriptions.hpp"
#include "sim/link.hpp"
#include "sim/load_error.hpp"
#include "sim/model.hpp"
#include "throws.hpp"
#include "varo/model/finding.hpp"
#include "varo/model/text_file.hpp"

namespace {

using Tests::messageOf;
using Tests::robot;

/// A path that no other test has.
std::string ownPath()
{
    return testing::TempDir() + testing::UnitTest::GetInstance()->current_test_info()->name();
}

/// A file of that content for as long as a test runs.
class TemporaryFile {
public:
    explicit TemporaryFile(std::string const& content) : path(ownPath() + ".xml") { std::ofstream(path) << content; }
    ~TemporaryFile() { std::remove(path.c_str()); }

    std::string const path;
};

std::string refusalOf(std::string const& argument)
{
    return messageOf<Varo::Model::DescriptionError>([&] { Sim::Model const model(argument); });
}

template <class Action>
Varo::Model::Findings findingsOf(Action const& action)
{
    try {
        action();
    } catch (Varo::Model::DescriptionError const& error) {
        return error.findings();
    }
    return {};
}

}  // namespace

TEST(Loading, TakesATextOrTheFileOfAPathAndKeepsTheText)
{
    std::string const text = robot("");
    EXPECT_EQ(Sim::Model(text).configFile(), text);

    TemporaryFile const file(text);
    Sim::Model const model(file.path);
    EXPECT_EQ(model.configFile(), text);
    EXPECT_EQ(model.name(), "Testbot");
    EXPECT_EQ(model.rootLink()->name(), "BaseLink");

    std::string const nameLikeAText = "<robotDescription name='Other'>";
    std::ofstream(nameLikeAText) << text;
    EXPECT_EQ(Sim::Model(nameLikeAText).configFile(), text);
    std::remove(nameLikeAText.c_str());
}

TEST(Loading, RefusesWithItsFixedMessages)
{
    EXPECT_EQ(refusalOf("no such file"),
              "Could not load model. 'no such file' does not exist.Trying to load the given string as XML.\n"
              "'no such file' is not a valid DCM XML.\n");
    EXPECT_EQ(refusalOf(""),
              "Could not load model. '' does not exist.Trying to load the given string as XML.\n"
              "'' is not a valid DCM XML.\n");
    TemporaryFile const file("<robotDescription");
    EXPECT_EQ(refusalOf(file.path), "Could not load model. '" + file.path + "' is not a valid DCM XML.\n");
}

TEST(Loading, NeverTakesATextForTheFileThatItsFirstBytesName)
{
    TemporaryFile const file(robot(""));
    std::string const argument = file.path + '\0' + "rest";
    EXPECT_THAT(refusalOf(argument), testing::StartsWith("Could not load model. '" + file.path));
}

TEST(Loading, SaysThatAFileCannotBeOpened)
{
    // A socket is there, and nobody can open it as a file.
    std::string const path = ownPath();
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    ASSERT_LT(path.size(), sizeof address.sun_path);
    path.copy(address.sun_path, path.size());
    int const socketFile = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(socketFile, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(messageOf<std::invalid_argument>([&] { Sim::Model const model(path); }),
              "Could not load model. '" + path + "' could not be opened.\n");
    close(socketFile);
    std::remove(path.c_str());
}

TEST(Loading, SaysInItsFindingsWhatIsInTheWayOfAFile)
{
    std::string const path = ownPath();
    std::filesystem::create_directory(path);
    struct Case {
        std::string argument;
        std::string message;
        std::string reason;
    };
    std::string const none = path + "/none.xml";
    std::string const tooLong(256, 'n');
    std::vector<Case> const cases = {
        {path, "", "It cannot be read: Is a directory."},
        {none, "'" + none + "' does not exist.Trying to load the given string as XML.\n",
         "There is no file of that name"},
        {tooLong, "'" + tooLong + "' does not exist.Trying to load the given string as XML.\n",
         "It cannot be read: File name too long."},
    };
    for (auto const& [argument, note, reason] : cases) {
        Varo::Model::Findings const findings = findingsOf([&a = argument] { Sim::Model const model(a); });
        ASSERT_EQ(findings.size(), 1U) << argument;
        EXPECT_THAT(findings[0].message + findings[0].hint, testing::HasSubstr(reason));
        EXPECT_EQ(refusalOf(argument),
                  "Could not load model. " + note + "'" + argument + "' is not a valid DCM XML.\n");
    }
    std::filesystem::remove_all(path);
}

TEST(Loading, ReadsAFileIntoRoomForIt)
{
    std::string const text(200'000, 'x');
    TemporaryFile const file(text);
    std::string const read = Varo::Model::readTextFile(file.path).text;
    EXPECT_EQ(read, text);
    EXPECT_LT(read.capacity(), text.size() + 1000);
}

TEST(Loading, TakesATextForATextAndANameForAName)
{
    // A folder tree that is named like a text, and has another robot in it.
    std::string const text = robot("<prettyName>N</prettyName>");
    std::filesystem::path const before = std::filesystem::current_path();
    std::filesystem::path const folder = ownPath();
    std::filesystem::create_directories((folder / text).parent_path());
    std::filesystem::current_path(folder);
    std::ofstream(text) << robot("", "Another");
    EXPECT_EQ(Sim::Model(text).name(), "Another");
    EXPECT_EQ(Sim::Model::fromText(text).name(), "Testbot");
    EXPECT_EQ(Sim::Model::fromFile(text).name(), "Another");
    std::filesystem::current_path(before);
    std::filesystem::remove_all(folder);

    EXPECT_EQ(messageOf<Varo::Model::DescriptionError>([] { Sim::Model::fromFile("no such file"); }),
              "Could not load model. \"no such file\": It cannot be read: No such file or directory.");
    Varo::Model::Finding const finding = findingsOf([] { Sim::Model::fromText("robot.xml"); }).at(0);
    EXPECT_EQ(finding.code, "path-not-text");
    EXPECT_EQ(std::pair(finding.line, finding.column), std::pair(1, 1));
}

TEST(Loading, AnErrorThatWasMovedFromHasNoFindings)
{
    Varo::Model::DescriptionError error("what", {Varo::Model::Finding{}});
    Varo::Model::DescriptionError const taken(std::move(error));
    EXPECT_EQ(taken.findings().size(), 1U);
    EXPECT_TRUE(error.findings().empty());
    Sim::BuildError build("what", taken.findings());
    build = Sim::BuildError("other", {});
    EXPECT_TRUE(build.findings().empty());
}

TEST(Loading, AMovedFromModelSaysSo)
{
    Sim::Model model(robot(""));
    Sim::Link const* const root = model.rootLink();
    Sim::Model target(std::move(model));
    EXPECT_EQ(target.rootLink(), root);
    model = std::move(target);
    EXPECT_EQ(model.rootLink(), root);
    EXPECT_EQ(messageOf<std::runtime_error>([&] { static_cast<void>(target.links()); }),
              "Could not query Model as it seems not correctly constructed.");
}
