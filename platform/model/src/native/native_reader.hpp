#ifndef VARO_MODEL_NATIVE_NATIVE_READER_HPP
#define VARO_MODEL_NATIVE_NATIVE_READER_HPP

#include "range.hpp"
#include "robot/robot_record.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/records.hpp"
#include "xml/document.hpp"

namespace Varo::Model {

/// Reads the `robotDescription` element of a text of the native dialect. Of no use when a finding is an error.
Records readNative(XmlNode root, Diagnostics& diagnostics);

/// Where the native dialect writes what.
extern Range<PartPlace> const nativeParts;

}  // namespace Varo::Model

#endif
