#include "native/references.hpp"

namespace Varo::Model::Native {

void checkReferences(pugi::xml_node, ElementReader&) {}

}  // namespace Varo::Model::Native
