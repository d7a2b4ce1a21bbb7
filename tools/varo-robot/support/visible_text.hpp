#ifndef TOOL_SUPPORT_VISIBLE_TEXT_HPP
#define TOOL_SUPPORT_VISIBLE_TEXT_HPP

#include <string>
#include <string_view>

namespace Tool {

/// Text of others as it may go to a terminal: what would move the cursor, begin a command to the terminal, break the
/// line or turn the direction of writing is written as its code, `\u001B`, and bytes that are no UTF-8 as `\x9B`. That
/// is the control characters up to U+001F and from U+007F to U+009F, the separators U+2028 and U+2029, and the
/// directional controls U+202A to U+202E and U+2066 to U+2069.
std::string visible(std::string_view text);

/// The same of a text of several lines, which keep their ends.
std::string visibleLines(std::string_view text);

/// The name of a file, cut when it is as long as only a text is that stands in its place.
std::string visibleName(std::string_view file);

}  // namespace Tool

#endif
