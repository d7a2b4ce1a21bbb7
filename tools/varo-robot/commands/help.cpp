#include <filesystem>
#include <iostream>
#include <memory>
#include <sstream>

#include <CLI/CLI.hpp>

#include "commands/commands.hpp"
#include "support/output_file.hpp"
#include "usage/man_page.hpp"
#include "usage/suggestion.hpp"

namespace Tool {

namespace {

struct Options {
    std::string command;
    std::string folder;
    bool forMan = false;
};

/// Null when there is none.
CLI::App const* findCommand(CLI::App const& tool, std::string const& name)
{
    for (CLI::App const* const command : commandsOf(tool)) {
        if (command->get_name() == name) {
            return command;
        }
    }
    return nullptr;
}

void writeManPages(CLI::App const& tool, std::filesystem::path const& folder)
{
    std::vector<CLI::App const*> described = commandsOf(tool);
    described.push_back(&tool);
    for (CLI::App const* const app : described) {
        std::ostringstream page;
        printManPage(page, *app);
        writeFile((folder / (manPageName(*app) + ".1")).string(), page.str(), Existing::isReplaced);
    }
}

int help(Options const& options, CLI::App const& tool)
{
    if (!options.folder.empty()) {
        writeManPages(tool, options.folder);
        return exitStatus::fine;
    }
    CLI::App const* const asked = options.command.empty() ? &tool : findCommand(tool, options.command);
    if (asked == nullptr) {
        std::cerr << "There is no command \"" << options.command << "\".\n";
        suggestCommand(options.command, tool);
        return exitStatus::wrongUsage;
    }
    if (options.forMan) {
        printManPage(std::cout, *asked);
    } else {
        std::string const name = asked == &tool ? tool.get_name() : tool.get_name() + " " + asked->get_name();
        std::cout << tool.get_formatter()->make_help(asked, name, CLI::AppFormatMode::Normal);
    }
    return exitStatus::fine;
}

std::function<int()> declare(CLI::App& app)
{
    auto const options = std::make_shared<Options>();
    app.add_option("COMMAND", options->command, "The command to explain; without it, the tool")->type_name("");
    auto* const forMan = app.add_flag("--man", options->forMan, "Print it as a page for man");
    app.add_option("--man-pages", options->folder, "Write the pages of the tool and of all commands into this folder")
        ->type_name("FOLDER")
        ->excludes(forMan);
    return [options, tool = app.get_parent()] { return help(*options, *tool); };
}

}  // namespace

Command const helpCommand = {"help", "Explain a command",
                             R"(Prints what --help says of the tool or of a command. Where the pages for man are
installed, `man varo-robot` and `man varo-robot-list` say the same.

Examples:
  varo-robot help list
  varo-robot help --man list | man -l -)",
                             declare};

}  // namespace Tool
