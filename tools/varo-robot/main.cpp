#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>
#include <string_view>

#include <CLI/CLI.hpp>

#include "commands/commands.hpp"
#include "support/description.hpp"
#include "support/finding_text.hpp"
#include "usage/completion.hpp"
#include "usage/suggestion.hpp"

namespace Tool {

namespace {

constexpr char description[] = "Shows, checks, compares and converts robot descriptions";

constexpr char footer[] =
    R"(A description is an XML file in the native dialect (root element
robotDescription) or in URDF (robot); the root element decides. FILE may be -
for standard input. Data goes to standard output, problems to standard error.

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
            std::cerr << "There is no command \"" << unknown.front() << "\".\n";
            suggestCommand(unknown.front(), app);
        }
        app.exit(error);
        return exitStatus::wrongUsage;
    } catch (CLI::ParseError const& error) {
        bool const isFine = app.exit(error) == 0;
        for (CLI::App const* command : app.get_subcommands()) {
            suggestOption(*command);
        }
        return isFine ? exitStatus::fine : exitStatus::wrongUsage;
    }
    return runChosen(chosen);
}

}  // namespace

}  // namespace Tool

int main(int argumentCount, char** arguments)
{
    std::signal(SIGXFSZ, SIG_IGN);  // a limit on the size of files is reported as any other lack of room
    try {
        return Tool::run(argumentCount, arguments);
    } catch (std::exception const& error) {  // want of memory, say
        std::fprintf(stderr, "varo-robot: error: %s\n", error.what());
    }
    return Tool::exitStatus::bad;
}
