#ifndef VARO_MODEL_NATIVE_REFERENCES_HPP
#define VARO_MODEL_NATIVE_REFERENCES_HPP

#include <pugixml.hpp>

#include "native/element_reader.hpp"

namespace Varo::Model::Native {

/// Reports what is wrong with the names that elements refer to each other by, once all elements are read.
void checkReferences(pugi::xml_node root, ElementReader& reader);

}  // namespace Varo::Model::Native

#endif
