#ifndef TOOL_USAGE_MAN_PAGE_HPP
#define TOOL_USAGE_MAN_PAGE_HPP

#include <ostream>
#include <string>

namespace CLI {
class App;
}

namespace Tool {

/// "varo-robot", or "varo-robot-list" for the command list.
std::string manPageName(CLI::App const& app);

/// What --help says of the tool or of a command, as the source of a page for man.
void printManPage(std::ostream& out, CLI::App const& app);

}  // namespace Tool

#endif
