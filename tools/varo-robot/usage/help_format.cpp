#include "usage/help_format.hpp"

#include <cstddef>
#include <sstream>

namespace Tool {

namespace {

constexpr std::size_t lineWidth = 80;

/// The words of a text, in lines of at most so many columns; a word that is longer has a line of its own.
std::string filled(std::string const& text, std::size_t width)
{
    std::istringstream words(text);
    std::string lines;
    std::size_t column = 0;
    for (std::string word; words >> word; column += word.size()) {
        if (column > 0) {
            bool const fits = column + 1 + word.size() <= width;
            lines += fits ? ' ' : '\n';
            column = fits ? column + 1 : 0;
        }
        lines += word;
    }
    return lines;
}

}  // namespace

std::string HelpFormat::make_option_desc(CLI::Option const* option) const
{
    return filled(CLI::Formatter::make_option_desc(option), lineWidth - get_column_width());
}

}  // namespace Tool
