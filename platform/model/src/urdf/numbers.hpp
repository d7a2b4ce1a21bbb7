#ifndef VARO_MODEL_URDF_NUMBERS_HPP
#define VARO_MODEL_URDF_NUMBERS_HPP

#include <cstddef>
#include <string_view>

#include <pugixml.hpp>

#include "robot/link_tree.hpp"
#include "varo/model/diagnostics.hpp"

/// The numbers of a URDF text, which are looser than our own: lists may be too short, too long or padded. What is no
/// number at all is reported, and read as the default.
namespace Varo::Model::Urdf {

/// A decimal number; white space around it and a leading plus are taken. Infinite when the text says so or is beyond
/// the range of numbers.
bool parseNumber(std::string_view text, double& value);

/// The attribute's value; `fallback` when there is no such attribute.
double readNumber(pugi::xml_node node, char const* attribute, double fallback, Diagnostics& diagnostics);

/// As readNumber, but minus infinity (`sign` -1) or infinity (1), which mean "no limit", for one beyond the largest
/// number on that side.
double readLimit(pugi::xml_node node, char const* attribute, int sign, Diagnostics& diagnostics);

/// The first numbers of the list that is the attribute's value or, when `attribute` is null, the element's text; those
/// that it lacks are 0. False when one is no number.
bool readNumbers(pugi::xml_node node, pugi::xml_attribute attribute, double* values, std::size_t count,
                 Diagnostics& diagnostics);

/// The attribute's three numbers; `fallback` when there is no such attribute.
Vector readVector(pugi::xml_node node, char const* attribute, Vector const& fallback, Diagnostics& diagnostics);

/// The pose that an `origin` element states; the identity for a null node.
Pose readOrigin(pugi::xml_node origin, Diagnostics& diagnostics);

}  // namespace Varo::Model::Urdf

#endif
