#include "native/shapes.hpp"

#include <algorithm>
#include <string>

#include "xml/document.hpp"

namespace Varo::Model::Native {

namespace {

/// Where a shape is on its body.
template <class Shape>
constexpr Attribute<Shape> placementAttributes[] = {
    optional<&ShapeConfig::position, Vector3, Shape>("xyz", "0 0 0", "m", "position of the shape's origin"),
    optional<&ShapeConfig::orientation, Vector3, Shape>(
        "rpy", "0 0 0", "rad",
        "orientation of the shape's frame: roll about x, then pitch about y, then yaw about z, all about the fixed "
        "axes of the link frame"),
};
template <class Shape>
constexpr Element<Shape> placementElement{"placement", "the shape's frame, in the link frame",
                                          placementAttributes<Shape>};

bool isMirrored(Geometry const& mesh, XmlNode /*node*/)
{
    return std::min({mesh.scale.x, mesh.scale.y, mesh.scale.z}) < 0.0F;
}

constexpr Attribute<Geometry> meshAttributes[] = {
    required<&Geometry::uri, File>("file", "", "the mesh file, a path or a URI"),
    optional<&Geometry::scale>("scale", "1 1 1", "", "factors along the x, y and z of the file"),
};
constexpr Rule<Geometry> meshRules[] = {
    {"scale",
     isMirrored,
     {&codes::mirroredMesh, "A negative factor mirrors the mesh, which not all programs show.",
      "Mirror the mesh in its file instead."}},
};
constexpr Attribute<Geometry> boxAttributes[] = {
    required<&Geometry::size, Lengths3>("size", "m", "lengths along x, y and z"),
};
constexpr auto radiusRow =
    required<&Geometry::radius, Length>("radius", "m", "from the axis or the centre to the surface");
constexpr Attribute<Geometry> cylinderAttributes[] = {
    radiusRow,
    required<&Geometry::length, Length>("length", "m", "length along z"),
};
constexpr Attribute<Geometry> sphereAttributes[] = {radiusRow};
constexpr Attribute<Geometry> capsuleAttributes[] = {
    radiusRow,
    required<&Geometry::length, Length>("length", "m", "distance of the centres of its two half spheres, along z"),
};

constexpr Element<Geometry> meshElement{
    "mesh", "a mesh file, whose origin and axes are those of the shape", meshAttributes, {}, meshRules};
constexpr Element<Geometry> boxElement{"box", "a box about the origin of the shape", boxAttributes};
constexpr Element<Geometry> cylinderElement{"cylinder", "a cylinder about z whose middle is the origin of the shape",
                                            cylinderAttributes};
constexpr Element<Geometry> sphereElement{"sphere", "a sphere about the origin of the shape", sphereAttributes};
constexpr Element<Geometry> capsuleElement{
    "capsule", "a cylinder about z that ends in half spheres, and whose middle is the origin of the shape",
    capsuleAttributes};

bool isGeometry(std::string_view name)
{
    ElementInfo const* const elements[] = {&meshElement, &boxElement, &cylinderElement, &sphereElement,
                                           &capsuleElement};
    return std::any_of(std::begin(elements), std::end(elements),
                       [name](ElementInfo const* element) { return element->name == name; });
}

/// The second of two of one kind is told of by the reader of elements.
bool followsAnother(XmlNode geometry)
{
    for (XmlNode other = geometry.previous(); other; other = other.previous()) {
        if (isGeometry(other.name())) {
            return true;
        }
    }
    return false;
}

template <GeometryType type, auto const& element, class Shape>
constexpr Child<Shape> geometryChild()
{
    return {{&element, Occurrence::optional},
            [](ElementReader& reader, XmlNode node, Shape& shape) {
                if (followsAnother(node)) {
                    reader.diagnostics().report(at(node), codes::repeatedElement,
                                                std::string(node.parent().name()) +
                                                    " already has a geometry, beside which no " +
                                                    std::string(node.name()) + " can stand.",
                                                "Make it a " + std::string(node.parent().name()) + " of its own.");
                    return;
                }
                shape.geometry.type = type;
                reader.read(element, node, shape.geometry);
            },
            [](ElementWriter& writer, Shape const& shape) {
                if (shape.geometry.type == type) {
                    writer.write(element, shape.geometry);
                }
            }};
}

/// An element that is unknown was meant as a geometry, and is told of.
template <class Shape>
bool lacksGeometry(Shape const& /*shape*/, XmlNode node)
{
    auto const children = node.children();
    return std::all_of(children.begin(), children.end(), [](XmlNode child) {
        std::string_view const name = child.name();
        return name.empty() || name == "placement" || name == "material";
    });
}

template <class Shape>
constexpr Rule<Shape> shapeRules[] = {
    {"",
     lacksGeometry<Shape>,
     {&codes::missingElement, "The shape has no geometry.", "Add its mesh, box, cylinder, sphere or capsule."}},
};

template <class Shape>
constexpr Attribute<Shape> shapeAttributes[] = {
    optional<&ShapeConfig::name, Text, Shape>("name", "", "", "what the shape is called; several may share a name"),
};

constexpr Attribute<Material> colorRow{
    {"color", &Color::type, "", "red, green, blue and opacity, 0 to 1", false, {}, nullptr, nullptr},
    [](std::string_view text, Material& material) { return material.hasColor = Color::parse(text, material.rgba); },
    [](Material const& material) { return material.hasColor ? Color::print(material.rgba) : std::string(); }};
constexpr Attribute<Material> materialAttributes[] = {
    optional<&Material::name>("name", "", "", "what the material is called"),
    colorRow,
    optional<&Material::texture>("texture", "", "", "image file of the surface, a path or a URI"),
};
constexpr Element<Material> materialElement{
    "material", "how the surface looks; friction goes by the attribute of that name of the body", materialAttributes};

constexpr Child<VisualConfig> visualChildren[] = {
    inPlace<placementElement<VisualConfig>>(),
    geometryChild<GeometryType::mesh, meshElement, VisualConfig>(),
    geometryChild<GeometryType::box, boxElement, VisualConfig>(),
    geometryChild<GeometryType::cylinder, cylinderElement, VisualConfig>(),
    geometryChild<GeometryType::sphere, sphereElement, VisualConfig>(),
    geometryChild<GeometryType::capsule, capsuleElement, VisualConfig>(),
    pointedTo<&VisualConfig::material, materialElement>(),
};
constexpr Child<CollisionConfig> collisionChildren[] = {
    inPlace<placementElement<CollisionConfig>>(),
    geometryChild<GeometryType::mesh, meshElement, CollisionConfig>(),
    geometryChild<GeometryType::box, boxElement, CollisionConfig>(),
    geometryChild<GeometryType::cylinder, cylinderElement, CollisionConfig>(),
    geometryChild<GeometryType::sphere, sphereElement, CollisionConfig>(),
    geometryChild<GeometryType::capsule, capsuleElement, CollisionConfig>(),
};

}  // namespace

constexpr Element<VisualConfig> visualElement{
    "visual", "what is shown of the body, or a part of it: one mesh, box, cylinder, sphere or capsule",
    shapeAttributes<VisualConfig>, visualChildren, shapeRules<VisualConfig>};
constexpr Element<CollisionConfig> collisionElement{
    "collision", "what the body collides with, or a part of it: one mesh, box, cylinder, sphere or capsule",
    shapeAttributes<CollisionConfig>, collisionChildren, shapeRules<CollisionConfig>};

}  // namespace Varo::Model::Native
