#ifndef VARO_MODEL_XML_PARSE_HPP
#define VARO_MODEL_XML_PARSE_HPP

#include <pugixml.hpp>

#include "varo/model/diagnostics.hpp"
#include "varo/model/source_text.hpp"

namespace Varo::Model {

/// Parses the text and reports all that XML forbids. False when it is so broken that `document` is of no use; true
/// does not mean that nothing was reported.
///
/// The text is UTF-8, with or without byte order mark. White space between elements, comments and processing
/// instructions leave nothing in the document.
bool parseXml(SourceText const& source, pugi::xml_document& document, Diagnostics& diagnostics);

}  // namespace Varo::Model

#endif
