#ifndef SIM_FRICTION_HPP
#define SIM_FRICTION_HPP

#include <string>

#include "varo/export.hpp"

namespace Sim {

/// Writes the static friction coefficient between two materials as Link::frictionMaterial names them, in either order.
/// False, with `coefficient` untouched, for an unknown pair. Never throws; thread-safe.
VAROROBOTMODEL_API bool frictionCoeff(std::string const& material1, std::string const& material2, float& coefficient);

}  // namespace Sim

#endif
