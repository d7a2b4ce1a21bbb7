#ifndef VARO_MODEL_URDF_NUMBERS_HPP
#define VARO_MODEL_URDF_NUMBERS_HPP

#include <cstddef>
#include <string_view>

#include "robot/link_tree.hpp"
#include "varo/model/diagnostics.hpp"
#include "xml/document.hpp"

/// The numbers of a URDF text, which are looser than our own: lists may be too short, too long or padded. What is no
/// number at all is reported, and read as the default.
namespace Varo::Model::Urdf {

/// A decimal number; white space around it and a leading plus are taken. Infinite when the text says so or is beyond
/// the range of numbers.
bool parseNumber(std::string_view text, double& value);

/// Whether products of a few such numbers are still finite in single precision.
bool isInBounds(double value);

/// The numbers of a list, as far as there is room for them, and how many there are. False when one is no number or out
/// of bounds.
bool parseNumbers(std::string_view text, double* values, std::size_t count, std::size_t& found);

constexpr std::string_view missingIsZero = "missing ones are read as 0";
constexpr std::string_view missingIsOpaque = "missing ones are read as 0, a missing opacity as 1";

void reportNotANumber(TextOffset place, std::string_view text, Diagnostics& diagnostics);

/// What is wrong with a list that should have `count` numbers; `missing` says what is made of those that it lacks.
void reportWrongList(TextOffset place, std::string_view text, std::size_t count, std::string_view missing,
                     Diagnostics& diagnostics);

/// The first numbers of the list that is the attribute's value or, when `attribute` is null, the element's text; those
/// that it lacks are left as they are.
void readNumbers(XmlNode node, XmlAttribute attribute, double* values, std::size_t count, Diagnostics& diagnostics);

/// The pose that an `origin` element states; the identity for a null node.
Pose readOrigin(XmlNode origin, Diagnostics& diagnostics);

}  // namespace Varo::Model::Urdf

#endif
