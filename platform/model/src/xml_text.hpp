#ifndef VARO_MODEL_XML_TEXT_HPP
#define VARO_MODEL_XML_TEXT_HPP

#include <cstddef>
#include <string_view>

#include <pugixml.hpp>

#include "diagnostics.hpp"

namespace Varo::Model {

/// Longer texts are refused.
constexpr std::size_t largestText = std::size_t{256} << 20U;  // bytes

/// Parses the text and reports all that XML forbids. False when it is so broken that `document` is of no use; true
/// does not mean that nothing was reported.
///
/// The text is UTF-8, with or without byte order mark. White space between elements, comments and processing
/// instructions leave nothing in the document.
bool parseXml(std::string_view text, pugi::xml_document& document, Diagnostics& diagnostics);

}  // namespace Varo::Model

#endif
