#ifndef TOOL_SUPPORT_SHAPE_JSON_HPP
#define TOOL_SUPPORT_SHAPE_JSON_HPP

#include <vector>

#include "sim/shape.hpp"
#include "support/json.hpp"

namespace Tool {

/// What the kind of solid is called.
char const* nameOf(Varo::Model::GeometryType type);

/// What `dump` prints of the shapes of a link.
Json shapesJson(std::vector<Sim::Visual> const& visuals);
Json shapesJson(std::vector<Sim::Collision> const& collisions);

}  // namespace Tool

#endif
