#ifndef VARO_MODEL_FRICTION_HPP
#define VARO_MODEL_FRICTION_HPP

#include <string>

#include "varo/export.hpp"

namespace Varo::Model {

/// Writes the static (dry) friction coefficient between two materials. The order of the two does not matter. False,
/// with `coefficient` untouched, for a pair that the table does not know. Never throws; thread-safe.
VAROROBOTMODEL_API bool getCoefFriction(std::string const& material1, std::string const& material2, float& coefficient);

/// Whether the table knows any pair with the material. Never throws; thread-safe.
VAROROBOTMODEL_API bool isFrictionMaterial(std::string const& material);

}  // namespace Varo::Model

#endif
