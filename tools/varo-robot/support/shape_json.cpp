#include "support/shape_json.hpp"

#include "support/json_parts.hpp"

namespace Tool {

namespace {

using Varo::Model::Geometry;
using Varo::Model::GeometryType;

Json numbersOf(Varo::Math::Position3D const& numbers)
{
    return {numbers.x, numbers.y, numbers.z};
}

Json geometryJson(Geometry const& geometry)
{
    Json json = {{"type", nameOf(geometry.type)}};
    switch (geometry.type) {
    case GeometryType::mesh:
        json["uri"] = geometry.uri;
        json["scale"] = numbersOf(geometry.scale);
        break;
    case GeometryType::box: json["size"] = numbersOf(geometry.size); break;
    case GeometryType::sphere: json["radius"] = geometry.radius; break;
    case GeometryType::cylinder:
    case GeometryType::capsule:
        json["radius"] = geometry.radius;
        json["length"] = geometry.length;
        break;
    }
    return json;
}

Json materialJson(Varo::Model::Material const* material)
{
    if (material == nullptr) {
        return nullptr;
    }
    return {{"name", material->name},
            {"rgba", material->hasColor ? Json(material->rgba) : Json(nullptr)},
            {"texture", material->texture}};
}

Json shapeJson(Sim::Shape const& shape)
{
    return {{"name", shape.name}, {"pose", matrixOf(shape.pose)}, {"geometry", geometryJson(shape.geometry)}};
}

}  // namespace

char const* nameOf(GeometryType type)
{
    switch (type) {
    case GeometryType::mesh: return "mesh";
    case GeometryType::box: return "box";
    case GeometryType::cylinder: return "cylinder";
    case GeometryType::sphere: return "sphere";
    case GeometryType::capsule: break;
    }
    return "capsule";
}

Json shapesJson(std::vector<Sim::Visual> const& visuals)
{
    Json array = Json::array();
    for (Sim::Visual const& visual : visuals) {
        array.push_back(shapeJson(visual));
        array.back()["material"] = materialJson(visual.material.get());
    }
    return array;
}

Json shapesJson(std::vector<Sim::Collision> const& collisions)
{
    Json array = Json::array();
    for (Sim::Collision const& collision : collisions) {
        array.push_back(shapeJson(collision));
    }
    return array;
}

}  // namespace Tool
