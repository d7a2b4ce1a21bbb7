#ifndef VARO_MODEL_URDF_URDF_WRITER_HPP
#define VARO_MODEL_URDF_URDF_WRITER_HPP

#include <string>

#include "varo/model/robot.hpp"

namespace Varo::Model {

/// The text of a robot in URDF, and of what URDF cannot say, in our own namespace, which `diagnostics` is told of.
std::string writeUrdf(Robot const& robot, Diagnostics& diagnostics);

}  // namespace Varo::Model

#endif
