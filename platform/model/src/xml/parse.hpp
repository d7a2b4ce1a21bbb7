#ifndef VARO_MODEL_XML_PARSE_HPP
#define VARO_MODEL_XML_PARSE_HPP

#include "varo/model/diagnostics.hpp"
#include "varo/model/source_text.hpp"
#include "xml/document.hpp"

namespace Varo::Model {

/// Parses the text into a fresh document and reports all that XML forbids. False when it is so broken that `document`
/// is of no use; true does not mean that nothing was reported.
///
/// The text is UTF-8, with or without byte order mark.
bool parseXml(SourceText const& source, XmlDocument& document, Diagnostics& diagnostics);

}  // namespace Varo::Model

#endif
