#ifndef VARO_MODEL_ROBOT_MIMICS_HPP
#define VARO_MODEL_ROBOT_MIMICS_HPP

#include <string>

#include "robot/cycles.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model {

/// What is said of the first joint of a cycle of mimics.
std::string mimicCycleText(Cycle const& cycle);

inline constexpr char multipliersTooLarge[] =
    "The multipliers of this mimic and of those that it leads to exceed all bounds together.";

/// Reports the mimics of joints that lead back to themselves, and those whose multipliers exceed all bounds. For
/// dialects whose records are not made of a LinkTree.
void checkMimics(Records const& records, Diagnostics& diagnostics);

}  // namespace Varo::Model

#endif
