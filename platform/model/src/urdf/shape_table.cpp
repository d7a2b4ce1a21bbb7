#include "schema/children.hpp"
#include "urdf/schema.hpp"
#include "urdf/surplus.hpp"
#include "urdf/urdf_codes.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

namespace {

constexpr Element<Origin> shapeOrigin = originElement("the frame of the shape in the link frame");

constexpr Attribute<Solid> meshAttributes[] = {
    required<&Solid::filename>("filename", "", "file of the mesh, kept as stated; without one the shape is left out"),
    optional<&Solid::scale, Scale>("scale", "1 1 1", "", "factors along the mesh's own axes; negative ones mirror it"),
};
constexpr auto radius = required<&Solid::radius, Length>("radius", "m", "radius");
constexpr Attribute<Solid> boxAttributes[] = {
    required<&Solid::size, Lengths3>("size", "m", "lengths along x, y and z"),
};
constexpr Attribute<Solid> cylinderAttributes[] = {
    radius,
    required<&Solid::length, Length>("length", "m", "length along z"),
};
constexpr Attribute<Solid> sphereAttributes[] = {radius};
constexpr Attribute<Solid> capsuleAttributes[] = {
    radius,
    required<&Solid::length, Length>("length", "m", "length along z between the centres of its two caps"),
};
constexpr Element<Solid> meshElement{"mesh", "a solid from a file", meshAttributes};
constexpr Element<Solid> boxElement{"box", "a box about the origin of its frame", boxAttributes};
constexpr Element<Solid> cylinderElement{"cylinder", "a cylinder along z about the origin of its frame",
                                         cylinderAttributes};
constexpr Element<Solid> sphereElement{"sphere", "a sphere about the origin of its frame", sphereAttributes};
constexpr Element<Solid> capsuleElement{"capsule", "a capsule along z about the origin of its frame",
                                        capsuleAttributes};

/// One of the solids that a geometry may be.
template <GeometryType type, auto const& element>
constexpr Child<Solid> solid()
{
    return {{&element, Occurrence::optional},
            [](ElementReader& reader, XmlNode node, Solid& geometry) {
                if (geometry.type) {
                    reportSurplus(node, reader.diagnostics());
                } else {
                    geometry.type = type;
                    reader.read(element, node, geometry);
                }
            },
            [](ElementWriter& writer, Solid const& geometry) {
                if (geometry.type == type) {
                    writer.write(element, geometry);
                }
            }};
}

constexpr Child<Solid> solids[] = {
    solid<GeometryType::mesh, meshElement>(),         solid<GeometryType::box, boxElement>(),
    solid<GeometryType::cylinder, cylinderElement>(), solid<GeometryType::sphere, sphereElement>(),
    solid<GeometryType::capsule, capsuleElement>(),
};
constexpr Element<Solid> geometryElement{
    "geometry", "one of the solids that follow; a shape without one is left out (warning)", {}, solids};

constexpr Attribute<Color> colorAttributes[] = {
    required<&Color::rgba>("rgba", "", "red, green, blue and opacity")
        .orElse({&codes::missingAttribute, "This color lacks its attribute \"rgba\" and says nothing."}),
};
constexpr Element<Color> colorElement{"color", "the colour of the surface", colorAttributes};

constexpr Attribute<Texture> textureAttributes[] = {
    required<&Texture::filename>("filename", "", "image file, kept as stated")
        .orElse({&codes::missingAttribute, "This texture lacks its attribute \"filename\" and says nothing."}),
};
constexpr Element<Texture> textureElement{"texture", "an image on the surface", textureAttributes};

constexpr Attribute<SurfaceMaterial> materialAttributes[] = {
    optional<&SurfaceMaterial::name>("name", "", "", "name of the material, by which visuals refer to it")
        .alwaysWritten(),
};
constexpr Child<SurfaceMaterial> materialChildren[] = {
    childOf<&SurfaceMaterial::color, colorElement>(),
    childOf<&SurfaceMaterial::texture, textureElement>(),
};

template <class AnyShape>
constexpr auto nameRow = optional<&Shape::name, View, AnyShape>("name", "", "", "name of the shape");

template <class AnyShape>
constexpr Child<AnyShape> originChild = childOf<&Shape::origin, shapeOrigin, AnyShape>();

template <class AnyShape>
constexpr Child<AnyShape> geometryChild = {
    {&geometryElement, Occurrence::optional},
    [](ElementReader& reader, XmlNode node, AnyShape& shape) {
        readItem(reader, geometryElement, node, shape.geometry);
    },
    [](ElementWriter& writer, AnyShape const& shape) { writer.write<Solid>(geometryElement, shape.geometry); }};

constexpr Attribute<Visual> visualAttributes[] = {nameRow<Visual>};
constexpr Child<Visual> visualChildren[] = {originChild<Visual>, geometryChild<Visual>,
                                            childOf<&Visual::material, materialElement>()};

constexpr Attribute<Collision> collisionAttributes[] = {nameRow<Collision>};
constexpr Child<Collision> collisionChildren[] = {originChild<Collision>, geometryChild<Collision>};

}  // namespace

constexpr Element<SurfaceMaterial> materialElement{
    "material",
    "how a surface looks; in a visual, a name alone stands for the material of that name that stands in the robot or, "
    "where none does, in the first visual that says what it is",
    materialAttributes, materialChildren};
constexpr Element<Visual> visualElement{
    "visual",
    "a visual of the body; the first mesh of a link is the mesh of its record too, and alone says it all when it is an "
    "unnamed one, of scale 1, at the link frame and without a material",
    visualAttributes, visualChildren};
constexpr Element<Collision> collisionElement{"collision", "a collision shape of the body", collisionAttributes,
                                              collisionChildren};

}  // namespace Varo::Model::Urdf
