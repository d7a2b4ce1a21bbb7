#ifndef TOOL_SUPPORT_ROBOT_JSON_HPP
#define TOOL_SUPPORT_ROBOT_JSON_HPP

#include <ostream>

#include "sim/model.hpp"

namespace Tool {

/// Writes the whole model as one JSON object, its elements one by one.
void printRobot(std::ostream& out, Sim::Model const& model);

}  // namespace Tool

#endif
