#ifndef VARO_MODEL_NATIVE_SHAPES_HPP
#define VARO_MODEL_NATIVE_SHAPES_HPP

#include <string_view>
#include <type_traits>
#include <utility>

#include "native/schema.hpp"
#include "schema/children.hpp"
#include "xml/document.hpp"

/// What a body looks like and what it collides with: visuals and collisions, and the attribute `mesh`, which is short
/// for one visual. Where visuals stand without it, their first mesh is the mesh of the record as well.
namespace Varo::Model::Native {

extern Element<VisualConfig> const visualElement;
extern Element<CollisionConfig> const collisionElement;

/// Whether the record's own mesh has a place; other meshes are at the link frame.
template <class Record>
constexpr bool placesMesh = std::is_base_of_v<JointConfig, Record>;

/// Gives the record the mesh of the visual, if it is one, unless it has a mesh already.
template <class Record>
void implyMesh(Record& body, VisualConfig const& visual)
{
    if (!body.meshName.empty() || visual.geometry.type != GeometryType::mesh) {
        return;
    }
    body.meshName = visual.geometry.uri;
    if constexpr (placesMesh<Record>) {
        body.meshPosition = visual.position;
        body.meshOrientation = visual.orientation;
    }
}
template <class Record>
void implyMesh(Record& /*body*/, CollisionConfig const& /*collision*/)
{}

/// Whether the record has the mesh that its visuals give it, or none beside them. Of numbers the texts decide, as when
/// writing.
template <class Record>
bool isMeshImplied(Record const& body)
{
    VisualConfig const* const mesh = firstMeshOf(body.shapes);
    if (mesh == nullptr || body.meshName.empty()) {
        return mesh != nullptr;
    }
    if (body.meshName != mesh->geometry.uri) {
        return false;
    }
    if constexpr (placesMesh<Record>) {
        return Vector3::print(body.meshPosition) == Vector3::print(mesh->position) &&
               Vector3::print(body.meshOrientation) == Vector3::print(mesh->orientation);
    }
    return true;
}

/// To be called before the visuals change, or before the record gets a mesh of its own.
template <class Record>
void forgetImpliedMesh(Record& body)
{
    if (!isMeshImplied(body)) {
        return;
    }
    body.meshName.clear();
    if constexpr (placesMesh<Record>) {
        body.meshPosition = {};
        body.meshOrientation = {};
    }
}

/// An attribute of the record's own mesh, left out where the visuals give it that mesh.
template <auto member, class Type, class Record>
constexpr Attribute<Record> ofMesh(std::string_view name, std::string_view defaultText, std::string_view unit,
                                   std::string_view meaning)
{
    return optional<member, Type, Record>(name, defaultText, unit, meaning).printedBy([](Record const& body) {
        return isMeshImplied(body) ? Type::print(Record().*member) : Type::print(body.*member);
    });
}

template <class Record>
inline constexpr auto meshRow = ofMesh<&Record::meshName, Text, Record>(
    "mesh", "", "", "mesh file of the body; all that is shown of it where no `visual` stands");

/// The shapes of a list that an element is for.
template <auto list, auto const& element, class Record>
constexpr Child<Record> shapesChild()
{
    using Shape = RecordOfElement<element>;
    return {{&element, Occurrence::any},
            [](ElementReader& reader, XmlNode node, Record& body) {
                Shape shape = readRecord<element>(reader, node);
                implyMesh(body, shape);
                (body.shapes.*list).push_back(std::move(shape));
            },
            [](ElementWriter& writer, Record const& body) {
                for (Shape const& shape : body.shapes.*list) {
                    writer.write(element, shape);
                }
            },
            [](Record& body) {
                if constexpr (std::is_same_v<Shape, VisualConfig>) {
                    forgetImpliedMesh(body);
                }
                (body.shapes.*list).clear();
            }};
}
template <class Record>
inline constexpr auto visualChild = shapesChild<&BodyShapes::visuals, visualElement, Record>();
template <class Record>
inline constexpr auto collisionChild = shapesChild<&BodyShapes::collisions, collisionElement, Record>();

}  // namespace Varo::Model::Native

#endif
