#ifndef TOOL_SUPPORT_TERMINAL_HPP
#define TOOL_SUPPORT_TERMINAL_HPP

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

namespace Tool {

/// Whether the locale's character set, as the environment names it, is UTF-8.
bool isUtf8Locale();

/// What a piece of text is, for readers with a colour terminal.
enum class Ink { plain, heading, link, joint, faint, error, warning, note };

/// Puts colour into text where it goes to a terminal and the user did not refuse it (NO_COLOR, TERM=dumb).
class Palette {
public:
    /// For what goes to this file descriptor.
    explicit Palette(int fileDescriptor);

    std::string paint(Ink ink, std::string_view text) const;

private:
    bool _colourful;
};

/// The columns that a UTF-8 text takes up on a terminal, one for each code point.
std::size_t columnsOf(std::string_view text);

/// What has no bounds.
inline constexpr std::size_t unboundedWidth = std::numeric_limits<std::size_t>::max();

/// The columns of the terminal that standard output goes to; `unboundedWidth` for anything else.
std::size_t outputWidth();

/// The text, with an ellipsis for its end where it takes up more columns; colour takes up none.
std::string shortened(std::string_view text, std::size_t columns);

}  // namespace Tool

#endif
