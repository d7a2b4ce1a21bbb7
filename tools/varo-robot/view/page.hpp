#ifndef TOOL_VIEW_PAGE_HPP
#define TOOL_VIEW_PAGE_HPP

#include <string>
#include <string_view>

namespace Tool {

/// The page without a robot, as web/viewer builds it; empty in a tool that was built without it.
std::string_view viewerPage();

/// The page that shows the robot of this JSON, which no text in it can leave.
std::string pageOf(std::string_view page, std::string_view json);

}  // namespace Tool

#endif
