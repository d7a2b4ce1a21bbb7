#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <new>
#include <sstream>
#include <string_view>

#include <CLI/CLI.hpp>

#include "commands/commands.hpp"
#include "support/description.hpp"
#include "support/finding_text.hpp"
#include "support/visible_text.hpp"
#include "usage/completion.hpp"
#include "usage/help_format.hpp"
#include "usage/suggestion.hpp"

namespace Tool {

namespace {

constexpr char description[] = "Shows, checks, compares and converts robot descriptions";

constexpr char footer[] =
    R"(A description is an XML file in the native dialect (root element
robotDescription) or in URDF (robot); the root element decides. FILE may be -
for standard input. Data goes to standard output, problems to standard error.
The descriptions of the examples are installed in share/varorobotmodel/robots/.

Exit status:
  0  fine
  1  the description is bad, or what was asked for is not in it
  2  wrong usage

`varo-robot help COMMAND` says more about a command.)";

constexpr Command const* commands[] = {&checkCommand, &infoCommand, &treeCommand,  &listCommand, &showCommand,
                                       &poseCommand,  &massCommand, &graphCommand, &dumpCommand, &convertCommand,
                                       &diffCommand,  &viewCommand, &helpCommand};

void declareCommands(CLI::App& app, std::function<int()>& chosen)
{
    for (Command const* const command : commands) {
        CLI::App* const subcommand = app.add_subcommand(command->name, command->summary);
        subcommand->footer(command->details);
        subcommand->callback([&chosen, action = command->declare(*subcommand)] { chosen = action; });
    }
    app.require_subcommand(1);
}

/// Says what is wrong with the arguments, or prints the help that they ask for. The answer is 0 for the latter.
int explain(CLI::App const& app, CLI::Error const& error)
{
    std::ostringstream out;
    std::ostringstream err;
    int const status = app.exit(error, out, err);
    std::cout << out.str();
    std::cerr << visibleLines(err.str());
    return status;
}

/// The answer is the exit status.
int runChosen(std::function<int()> const& chosen)
{
    try {
        int const status = chosen();
        if (!std::cout.flush()) {
            std::cerr << "varo-robot: error: standard output cannot be written.\n";
            return exitStatus::bad;
        }
        return status;
    } catch (Refused const& refused) {
        std::cout.flush();
        printFindings(std::cerr, refused.file(), refused.findings());
    }
    return exitStatus::bad;
}

int run(int argumentCount, char** arguments)
{
    std::ios::sync_with_stdio(false);
    CLI::App app(description, "varo-robot");
    app.set_version_flag("-V,--version", "varo-robot " VARO_ROBOT_VERSION);
    app.footer(footer);
    app.formatter(std::make_shared<HelpFormat>());  // before the commands, which take it over
    std::function<int()> chosen;
    declareCommands(app, chosen);
    if (argumentCount > 1 && std::string_view(arguments[1]) == "complete") {  // asked by the scripts in completion/
        printCompletions(std::cout, app, {arguments + 2, arguments + argumentCount});
        return exitStatus::fine;
    }
    try {
        app.parse(argumentCount, arguments);
    } catch (CLI::RequiredError const& error) {
        std::vector<std::string> const unknown = app.remaining();
        if (!unknown.empty()) {
            std::cerr << "There is no command \"" << visible(unknown.front()) << "\".\n";
            suggestCommand(unknown.front(), app);
        }
        explain(app, error);
        return exitStatus::wrongUsage;
    } catch (CLI::ParseError const& error) {
        bool const isFine = explain(app, error) == 0;
        for (CLI::App const* command : app.get_subcommands()) {
            suggestOption(*command);
        }
        return isFine ? exitStatus::fine : exitStatus::wrongUsage;
    }
    return runChosen(chosen);
}

/// The status with which the tool ends for this.
int sayLackOfMemory()
{
    std::fputs("varo-robot: error: not enough memory\n", stderr);
    return exitStatus::bad;
}

/// Destructors of JSON need memory, and cannot say that there is none in another way.
[[noreturn]] void endInTheMiddle()
{
    try {
        if (std::exception_ptr const reason = std::current_exception()) {
            std::rethrow_exception(reason);
        }
    } catch (std::bad_alloc const&) {
        std::_Exit(sayLackOfMemory());
    } catch (...) {
        // A fault of the tool.
    }
    std::abort();
}

}  // namespace

}  // namespace Tool

int main(int argumentCount, char** arguments)
{
    std::signal(SIGXFSZ, SIG_IGN);  // a limit on the size of files is reported as any other lack of room
    std::set_terminate(Tool::endInTheMiddle);
    try {
        return Tool::run(argumentCount, arguments);
    } catch (std::bad_alloc const&) {
        return Tool::sayLackOfMemory();
    } catch (std::exception const& error) {
        std::fprintf(stderr, "varo-robot: error: %s\n", Tool::visible(error.what()).c_str());
    }
    return Tool::exitStatus::bad;
}
