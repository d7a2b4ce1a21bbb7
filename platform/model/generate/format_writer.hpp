#ifndef VARO_MODEL_GENERATE_FORMAT_WRITER_HPP
#define VARO_MODEL_GENERATE_FORMAT_WRITER_HPP

#include <string>

/// What is written from the tables that the readers and the rules obey: here that of the native dialect.
namespace Varo::Model::Native {

/// The XML schema (XSD 1.0).
std::string writeSchema();

/// The part of the documentation that lists every element, attribute and type, in Markdown.
std::string writeElementReference();

/// The part of the documentation of URDF that lists the settings of sensors, in Markdown.
std::string writeSensorSettingsReference();

/// The part of the documentation that lists every code of a finding, in Markdown.
std::string writeFindingReference();

/// The part of the documentation that lists every rule, in Markdown.
std::string writeRuleReference();

}  // namespace Varo::Model::Native

namespace Varo::Model::Urdf {

/// The part of the documentation that lists every element, attribute and type of URDF, in Markdown.
std::string writeElementReference();

/// The part of the documentation that lists the code of every finding about URDF, errors first, in Markdown.
std::string writeFindingReference();

}  // namespace Varo::Model::Urdf

#endif
