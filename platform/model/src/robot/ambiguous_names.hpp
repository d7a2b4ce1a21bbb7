#ifndef VARO_MODEL_ROBOT_AMBIGUOUS_NAMES_HPP
#define VARO_MODEL_ROBOT_AMBIGUOUS_NAMES_HPP

#include "varo/model/diagnostics.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model {

/// Warns of each joint, wheel, sub-joint or root that is named like the link of another one, at the later of the two
/// in the text; and of each link whose name in the text is that of another link, be it there or in models.
void checkLinkNames(Records const& records, Diagnostics& diagnostics);

}  // namespace Varo::Model

#endif
