#ifndef VARO_MODEL_URDF_URDF_READER_HPP
#define VARO_MODEL_URDF_URDF_READER_HPP

#include <memory>

#include <pugixml.hpp>

#include "diagnostics.hpp"
#include "varo/model/robot.hpp"

namespace Varo::Model {

/// Reads the `robot` element of a URDF text. Null when a finding is an error.
std::unique_ptr<Robot> readUrdf(pugi::xml_node root, Diagnostics& diagnostics);

}  // namespace Varo::Model

#endif
