#ifndef VARO_MODEL_XML_DECLARATION_HPP
#define VARO_MODEL_XML_DECLARATION_HPP

#include <cstddef>
#include <string_view>

#include "varo/model/diagnostics.hpp"

namespace Varo::Model {

/// Reports what is wrong with a processing instruction, of which only the XML declaration has a form of its own. It
/// stands from `begin` to before the `?>` at `end`.
void checkInstruction(std::string_view text, std::size_t begin, std::size_t end, Diagnostics& diagnostics);

}  // namespace Varo::Model

#endif
