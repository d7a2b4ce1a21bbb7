#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <new>
#include <sstream>

#include <CLI/CLI.hpp>

#include "commands/commands.hpp"
#include "support/description.hpp"
#include "support/finding_text.hpp"
#include "support/visible_text.hpp"
#include "varo/model/spelling.hpp"

namespace Tool {

namespace {

constexpr char description[] = "varo-robot shows, checks and converts robot descriptions.";

constexpr char footer[] =
    R"(A description is an XML file in the native dialect (root element
robotDescription) or in URDF (robot); the root element decides. FILE may be -
for standard input. Data goes to standard output, problems to standard error.

Exit status:
  0  fine
  1  the description is bad, or what was asked for is not in it
  2  wrong usage

`varo-robot COMMAND --help` says more about a command.)";

constexpr std::array<Command const*, 11> commands = {&checkCommand, &infoCommand,    &treeCommand, &listCommand,
                                                     &showCommand,  &poseCommand,    &massCommand, &graphCommand,
                                                     &dumpCommand,  &convertCommand, &viewCommand};

void declareCommands(CLI::App& app, std::function<int()>& chosen)
{
    for (Command const* const command : commands) {
        CLI::App* const subcommand = app.add_subcommand(command->name, command->summary);
        subcommand->footer(command->details);
        subcommand->callback([&chosen, action = command->declare(*subcommand)] { chosen = action; });
    }
    app.require_subcommand(1);
}

void suggest(std::string const& written, std::vector<std::string> const& words)
{
    Varo::Model::ClosestWord closest(written);
    for (std::string const& word : words) {
        closest.offer(word);
    }
    if (!closest.word().empty()) {
        std::cerr << "Did you mean \"" << closest.word() << "\"?\n";
    }
}

void suggestCommand(std::string const& written)
{
    std::vector<std::string> names;
    for (Command const* const command : commands) {
        names.emplace_back(command->name);
    }
    suggest(written, names);
}

/// For the first of the arguments that looks like an option and is none of the command's.
void suggestOption(CLI::App const& command)
{
    std::vector<std::string> names;
    for (CLI::Option const* option : command.get_options()) {
        for (std::string const& name : option->get_lnames()) {
            names.push_back("--" + name);
        }
    }
    for (std::string const& argument : command.remaining()) {
        if (argument.compare(0, 2, "--") == 0) {
            suggest(argument.substr(0, argument.find('=')), names);
            return;
        }
    }
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
    app.set_version_flag("--version", "varo-robot " VARO_ROBOT_VERSION);
    app.footer(footer);
    std::function<int()> chosen;
    declareCommands(app, chosen);
    try {
        app.parse(argumentCount, arguments);
    } catch (CLI::RequiredError const& error) {
        std::vector<std::string> const unknown = app.remaining();
        if (!unknown.empty()) {
            std::cerr << "There is no command \"" << visible(unknown.front()) << "\".\n";
            suggestCommand(unknown.front());
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
