#ifndef VARO_MODEL_URDF_URDF_READER_HPP
#define VARO_MODEL_URDF_URDF_READER_HPP

#include "range.hpp"
#include "robot/robot_record.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/records.hpp"
#include "xml/document.hpp"

namespace Varo::Model {

/// Reads the `robot` element of a URDF text. Of no use when a finding is an error.
Records readUrdf(XmlNode root, Diagnostics& diagnostics);

/// Where URDF writes what.
extern Range<PartPlace> const urdfParts;

}  // namespace Varo::Model

#endif
