#ifndef TOOL_USAGE_HELP_FORMAT_HPP
#define TOOL_USAGE_HELP_FORMAT_HPP

#include <string>

#include <CLI/CLI.hpp>

namespace Tool {

/// Help whose lines fit a terminal of 80 columns.
class HelpFormat : public CLI::Formatter {
public:
    std::string make_option_desc(CLI::Option const* option) const override;
};

}  // namespace Tool

#endif
