#ifndef TOOL_VIEW_BASE64_HPP
#define TOOL_VIEW_BASE64_HPP

#include <string>
#include <string_view>

namespace Tool {

/// RFC 4648, with padding.
std::string base64(std::string_view bytes);

}  // namespace Tool

#endif
