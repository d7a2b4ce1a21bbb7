#include "shapes.hpp"

#include <stdexcept>

#include "arrays.hpp"
#include "types.hpp"

namespace Python {

namespace {

py::tuple tupleOf(Varo::Math::Position3D const& values)
{
    return py::make_tuple(values.x, values.y, values.z);
}

py::object geometryOf(Varo::Model::Geometry const& geometry)
{
    using Varo::Model::GeometryType;
    switch (geometry.type) {
    case GeometryType::mesh: return packageClass("Mesh")(geometry.uri, tupleOf(geometry.scale));
    case GeometryType::box: return packageClass("Box")(tupleOf(geometry.size));
    case GeometryType::cylinder: return packageClass("Cylinder")(geometry.radius, geometry.length);
    case GeometryType::sphere: return packageClass("Sphere")(geometry.radius);
    case GeometryType::capsule: return packageClass("Capsule")(geometry.radius, geometry.length);
    }
    throw std::logic_error("A shape is of an unknown type.");
}

py::object materialOf(Varo::Model::Material const* material)
{
    if (material == nullptr) {
        return py::none();
    }
    auto const& [red, green, blue, opacity] = material->rgba;
    py::object const rgba = material->hasColor ? py::make_tuple(red, green, blue, opacity) : py::object(py::none());
    return packageClass("Material")(material->name, rgba, material->texture);
}

}  // namespace

py::tuple visualsOf(Sim::Link const& link)
{
    py::list visuals;
    for (Sim::Visual const& visual : link.visuals()) {
        visuals.append(packageClass("Visual")(visual.name, arrayOf(visual.pose), geometryOf(visual.geometry),
                                              materialOf(visual.material.get())));
    }
    return visuals;
}

py::tuple collisionsOf(Sim::Link const& link)
{
    py::list collisions;
    for (Sim::Collision const& collision : link.collisions()) {
        collisions.append(
            packageClass("Collision")(collision.name, arrayOf(collision.pose), geometryOf(collision.geometry)));
    }
    return collisions;
}

}  // namespace Python
