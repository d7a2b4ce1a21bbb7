#ifndef TOOL_SUPPORT_JSON_TEXT_HPP
#define TOOL_SUPPORT_JSON_TEXT_HPP

#include <string>

#include "support/json.hpp"

namespace Tool {

/// A value of an element's JSON for eyes: "-" for none, names separated by commas, poses as origin and angles, objects
/// as those of their members that have a value.
std::string readable(Json const& value);

/// The origin of a pose, for eyes.
std::string originOf(Json const& pose);

/// Whether the value is the 16 numbers of a pose.
bool isPose(Json const& value);

}  // namespace Tool

#endif
