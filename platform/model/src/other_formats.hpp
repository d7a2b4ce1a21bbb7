#ifndef VARO_MODEL_OTHER_FORMATS_HPP
#define VARO_MODEL_OTHER_FORMATS_HPP

#include "varo/model/diagnostics.hpp"
#include "xml/document.hpp"

namespace Varo::Model {

/// Whether the text is no description but one of those that people take for one: a xacro file, which is none before it
/// is expanded, or a robot of another format. Then that is reported, once. `root` is its root element.
bool reportOtherFormat(XmlNode root, Diagnostics& diagnostics);

}  // namespace Varo::Model

#endif
