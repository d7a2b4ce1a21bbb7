#ifndef VARO_MODEL_NATIVE_CHAIN_PLACES_HPP
#define VARO_MODEL_NATIVE_CHAIN_PLACES_HPP

#include <cstddef>

#include "varo/model/diagnostics.hpp"
#include "varo/model/records.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

/// So many places may the chains of a robot list, and so many more for each of its records.
inline constexpr std::size_t mostChainPlaces = 1'000'000;
inline constexpr std::size_t chainPlacesOfRecord = 16;

/// Reports a robot whose chains list more places than that. Each chain that lists a joint lists all that is attached to
/// the joint, too, and models have each of them again: a small text could take any time and memory.
void checkChainPlaces(Records const& robot, XmlNode root, Diagnostics& diagnostics);

}  // namespace Varo::Model::Native

#endif
