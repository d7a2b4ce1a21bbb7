#include "view/shape_uris.hpp"

#include "sim/link.hpp"
#include "support/element_json.hpp"

namespace Tool {

namespace {

using Pointer = Json::json_pointer;

void addText(std::set<std::string>& texts, Json const& json, char const* path)
{
    Pointer const pointer(path);
    if (json.contains(pointer) && json[pointer].is_string() && !json[pointer].get_ref<std::string const&>().empty()) {
        texts.insert(json[pointer].get<std::string>());
    }
}

}  // namespace

ShapeUris shapeUrisOf(Sim::Model const& model)
{
    ShapeUris uris;
    ElementJson json;
    for (Sim::Link const* const link : model.links()) {
        Json const data = json.of(*link);
        addText(uris.meshes, data, "/visual/meshPath");
        for (char const* const shapes : {"visuals", "collisions"}) {
            for (Json const& shape : data.value(shapes, Json::array())) {
                addText(uris.meshes, shape, "/geometry/uri");
                addText(uris.textures, shape, "/material/texture");
            }
        }
    }
    return uris;
}

}  // namespace Tool
