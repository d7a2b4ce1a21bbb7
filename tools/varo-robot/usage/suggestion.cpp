#include "usage/suggestion.hpp"

#include <iostream>

#include <CLI/CLI.hpp>

#include "varo/model/spelling.hpp"

namespace Tool {

namespace {

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

}  // namespace

std::vector<CLI::App const*> commandsOf(CLI::App const& tool)
{
    return tool.get_subcommands([](CLI::App const*) { return true; });
}

void suggestCommand(std::string const& written, CLI::App const& tool)
{
    std::vector<std::string> names;
    for (CLI::App const* const command : commandsOf(tool)) {
        names.push_back(command->get_name());
    }
    suggest(written, names);
}

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

}  // namespace Tool
