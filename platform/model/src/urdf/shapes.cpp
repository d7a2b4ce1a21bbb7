#include <algorithm>
#include <string>
#include <utility>

#include "urdf/translation.hpp"
#include "urdf/urdf_codes.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

namespace {

/// Whether the shape says what solid it is.
bool isWhole(Shape const& shape, Diagnostics& diagnostics)
{
    Solid const& solid = shape.geometry;
    bool const lacksFile = solid.type == GeometryType::mesh && solid.filename.empty();
    if (solid.type && !lacksFile) {
        return true;
    }
    std::string const kind(shape.node.name());
    diagnostics.report(at(solid.node ? solid.node : shape.node), codes::incompleteShape,
                       lacksFile ? "This mesh says no file: the " + kind + " is left out."
                                 : "This says no solid that URDF knows: the " + kind + " is left out.",
                       lacksFile ? "Give it an attribute \"filename\"."
                                 : "A geometry holds a mesh, a box, a cylinder, a sphere or a capsule.");
    return false;
}

Geometry toGeometry(Solid const& solid)
{
    Geometry geometry;
    geometry.type = *solid.type;
    geometry.uri = std::string(solid.filename);
    geometry.scale = toPosition(solid.scale);
    geometry.size = toPosition(solid.size);
    geometry.radius = static_cast<float>(solid.radius);
    geometry.length = static_cast<float>(solid.length);
    return geometry;
}

void translateShape(Shape const& stated, ShapeConfig& shape)
{
    shape.name = std::string(stated.name);
    if (stated.origin) {
        shape.position = toPosition(stated.origin->xyz);
        shape.orientation = toPosition(stated.origin->rpy);
    }
    shape.geometry = toGeometry(stated.geometry);
    shape.textOffset = at(stated.node);
}

/// Whether the mesh of the record says all that the visual does.
bool isMereMesh(Visual const& visual)
{
    Solid const& solid = visual.geometry;
    bool const isAtLinkFrame = !visual.origin || (visual.origin->xyz == Vector() && visual.origin->rpy == Vector());
    return visual.name.empty() && isAtLinkFrame && !visual.material && solid.type == GeometryType::mesh &&
           solid.scale == Solid().scale;
}

/// The mesh of a record is the first one of its visuals.
void translateMesh(VisualConfig const& visual, JointConfig& body)
{
    if (body.meshName.empty() && visual.geometry.type == GeometryType::mesh) {
        body.meshName = visual.geometry.uri;
        body.meshPosition = visual.position;
        body.meshOrientation = visual.orientation;
    }
}

}  // namespace

void translateShapes(Link const& link, Materials const& materials, JointConfig& body, Diagnostics& diagnostics)
{
    bool const isMeshAlone = link.visuals.size() == 1 && isMereMesh(link.visuals.front());
    body.shapes.visuals.reserve(isMeshAlone ? 0 : link.visuals.size());
    for (Visual const& stated : link.visuals) {
        if (isWhole(stated, diagnostics)) {
            VisualConfig visual;
            translateShape(stated, visual);
            visual.material = stated.material ? materials.find(*stated.material, diagnostics) : nullptr;
            translateMesh(visual, body);
            if (!isMeshAlone) {
                body.shapes.visuals.push_back(std::move(visual));
            }
        }
    }
    body.shapes.collisions.reserve(link.collisions.size());
    for (Collision const& stated : link.collisions) {
        if (isWhole(stated, diagnostics)) {
            translateShape(stated, body.shapes.collisions.emplace_back());
        }
    }
}

}  // namespace Varo::Model::Urdf
