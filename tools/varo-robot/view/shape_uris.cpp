#include "view/shape_uris.hpp"

#include "sim/link.hpp"
#include "sim/shape.hpp"

namespace Tool {

namespace {

void addMesh(std::set<std::string>& meshes, Sim::Shape const& shape)
{
    if (shape.geometry.type == Varo::Model::GeometryType::mesh && !shape.geometry.uri.empty()) {
        meshes.insert(shape.geometry.uri);
    }
}

}  // namespace

ShapeUris shapeUrisOf(Sim::Model const& model)
{
    ShapeUris uris;
    for (Sim::Link const* const link : model.links()) {
        for (Sim::Visual const& visual : link->visuals()) {
            addMesh(uris.meshes, visual);
            if (visual.material != nullptr && !visual.material->texture.empty()) {
                uris.textures.insert(visual.material->texture);
            }
        }
        for (Sim::Collision const& collision : link->collisions()) {
            addMesh(uris.meshes, collision);
        }
    }
    return uris;
}

}  // namespace Tool
