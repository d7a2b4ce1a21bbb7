#include "view/shape_uris.hpp"

#include "sim/link.hpp"
#include "sim/visual_data.hpp"

namespace Tool {

ShapeUris shapeUrisOf(Sim::Model const& model)
{
    ShapeUris uris;
    for (Sim::Link const* const link : model.links()) {
        if (link->visual() != nullptr && !link->visual()->meshPath().empty()) {
            uris.meshes.insert(link->visual()->meshPath());
        }
    }
    return uris;
}

}  // namespace Tool
