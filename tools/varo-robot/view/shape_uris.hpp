#ifndef TOOL_VIEW_SHAPE_URIS_HPP
#define TOOL_VIEW_SHAPE_URIS_HPP

#include <set>
#include <string>

#include "sim/model.hpp"

namespace Tool {

/// The files that the bodies of a robot are drawn with, as the description names them.
struct ShapeUris {
    std::set<std::string> meshes;
    std::set<std::string> textures;
};

ShapeUris shapeUrisOf(Sim::Model const& model);

}  // namespace Tool

#endif
