#ifndef VARO_MODEL_NATIVE_READER_HPP
#define VARO_MODEL_NATIVE_READER_HPP

#include <memory>

#include <pugixml.hpp>

#include "diagnostics.hpp"
#include "varo/model/robot.hpp"

namespace Varo::Model {

/// Reads the `robotDescription` element of a text of the native dialect. Null when a finding is an error.
std::unique_ptr<Robot> readNative(pugi::xml_node root, Diagnostics& diagnostics);

}  // namespace Varo::Model

#endif
