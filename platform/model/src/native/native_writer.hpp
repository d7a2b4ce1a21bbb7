#ifndef VARO_MODEL_NATIVE_NATIVE_WRITER_HPP
#define VARO_MODEL_NATIVE_NATIVE_WRITER_HPP

#include <string>

#include "varo/model/robot.hpp"

namespace Varo::Model {

/// The text of a robot in the native dialect.
std::string writeNative(Robot const& robot);

}  // namespace Varo::Model

#endif
