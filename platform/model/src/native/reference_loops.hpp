#ifndef VARO_MODEL_NATIVE_REFERENCE_LOOPS_HPP
#define VARO_MODEL_NATIVE_REFERENCE_LOOPS_HPP

#include <pugixml.hpp>

#include "native/element_reader.hpp"

namespace Varo::Model::Native {

/// Reports every circle of actuators that hang on each other, once.
void checkActuatorLoops(pugi::xml_node root, ElementReader& reader);

/// Reports every circle of chains that hang on each other's joints, once.
void checkChainLoops(pugi::xml_node root, ElementReader& reader);

}  // namespace Varo::Model::Native

#endif
