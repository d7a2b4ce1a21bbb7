#ifndef TOOL_USAGE_NAMES_HPP
#define TOOL_USAGE_NAMES_HPP

#include <string>
#include <vector>

#include "sim/model.hpp"

/// The names in a description that commands take.
namespace Tool {

/// Of everything that `show` finds.
std::vector<std::string> namesIn(Sim::Model const& model);
/// Of what has a frame: links, joints, sensors and actuators.
std::vector<std::string> framesIn(Sim::Model const& model);
/// Of postures.
std::vector<std::string> posturesIn(Sim::Model const& model);
/// Of what can be set: joints, wheels and actuators.
std::vector<std::string> variablesIn(Sim::Model const& model);

}  // namespace Tool

#endif
