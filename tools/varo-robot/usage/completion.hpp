#ifndef TOOL_USAGE_COMPLETION_HPP
#define TOOL_USAGE_COMPLETION_HPP

#include <ostream>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace Tool {

/// What completes a word of a command line of the tool. The scripts in completion/ ask for it, in whatever shell.
///
/// `words` are those of the line, the tool's name first; the one at `index` is to be completed. Prints a line for each
/// candidate: the word and, behind a tab, what it means, which may be empty. A line "\tfiles" says that the names of
/// files complete it, too.
void printCompletions(std::ostream& out, CLI::App const& tool, std::vector<std::string> const& words,
                      std::size_t index);

/// The same for arguments as a script gives them: the index, then the words.
void printCompletions(std::ostream& out, CLI::App const& tool, std::vector<std::string> const& arguments);

}  // namespace Tool

#endif
