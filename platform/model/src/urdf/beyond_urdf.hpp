#ifndef VARO_MODEL_URDF_BEYOND_URDF_HPP
#define VARO_MODEL_URDF_BEYOND_URDF_HPP

#include "native/amendment.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model::Urdf {

/// Reports at each record of the robot that URDF cannot say it, or what of it.
void noteBeyondUrdf(Native::Amendment const& amendment, Records const& records, Diagnostics& diagnostics);

}  // namespace Varo::Model::Urdf

#endif
