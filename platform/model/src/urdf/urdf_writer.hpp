#ifndef VARO_MODEL_URDF_URDF_WRITER_HPP
#define VARO_MODEL_URDF_URDF_WRITER_HPP

#include <string>

#include "varo/model/robot.hpp"

namespace Varo::Model {

/// The text of a robot in URDF.
std::string writeUrdf(Robot const& robot);

}  // namespace Varo::Model

#endif
