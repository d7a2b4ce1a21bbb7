#ifndef TOOL_USAGE_SUGGESTION_HPP
#define TOOL_USAGE_SUGGESTION_HPP

#include <string>
#include <vector>

namespace CLI {
class App;
}

/// What the tool says to words that it does not know.
namespace Tool {

/// In the order in which the tool's help lists them.
std::vector<CLI::App const*> commandsOf(CLI::App const& tool);

/// Asks on standard error whether the command that is spelt most like it was meant; nothing when none is.
void suggestCommand(std::string const& written, CLI::App const& tool);

/// The same for the first of the arguments that looks like an option and is none of the command's.
void suggestOption(CLI::App const& command);

}  // namespace Tool

#endif
