#ifndef VARO_MODEL_SHAPES_HPP
#define VARO_MODEL_SHAPES_HPP

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "varo/math/position3d.hpp"
#include "varo/math/transform.hpp"
#include "varo/model/place.hpp"

/// What a body looks like and what it collides with. Plain data: copy it freely; reading from several threads is safe.
namespace Varo::Model {

using Math::Position3D;

/// What kind of solid a shape is.
enum class GeometryType { mesh, box, cylinder, sphere, capsule };

/// A solid, in the frame of its shape. Boxes and spheres are centred at its origin, and so are cylinders and capsules,
/// whose axis is z.
struct Geometry {
    GeometryType type = GeometryType::mesh;  ///< which of the following members mean something
    std::string uri;  ///< of a mesh: its file, as the description states it
    Position3D scale = {1.0F, 1.0F, 1.0F};  ///< of a mesh: factors along its own x, y and z
    Position3D size;  ///< m, of a box: its lengths along x, y and z
    float radius = 0.0F;  ///< m, of a cylinder, sphere or capsule
    float length = 0.0F;  ///< m, along z, of a cylinder, or of a capsule between the centres of its two caps
};

/// How a visual's surface looks.
struct Material {
    std::string name;  ///< may be empty
    bool hasColor = false;  ///< whether the description states a colour
    std::array<float, 4> rgba = {0.0F, 0.0F, 0.0F, 0.0F};  ///< red, green, blue and opacity, 0 to 1
    std::string texture;  ///< image file, as the description states it; empty for none
};

/// A shape and where it is on its body.
struct ShapeConfig {
    std::string name;  ///< may be empty
    Position3D position;  ///< m, origin of the shape's frame, in the link frame
    Position3D orientation;  ///< rad, roll, pitch and yaw of the shape's frame, in the link frame
    Geometry geometry;  ///< the solid itself
    TextOffset textOffset = {};  ///< of its element
};

/// What is shown of a body.
struct VisualConfig : ShapeConfig {
    std::shared_ptr<Material const> material;  ///< null when the description states none
};

/// What a body collides with.
struct CollisionConfig : ShapeConfig {};

/// All shapes of one body, in the order of the description.
struct BodyShapes {
    std::vector<VisualConfig>
        visuals;  ///< empty where the mesh of the record, at its place there, is all that is shown
    std::vector<CollisionConfig> collisions;  ///< as stated
};

/// The pose of the shape's frame in the link frame (m).
inline Math::Transform poseOf(ShapeConfig const& shape)
{
    auto const& [x, y, z] = shape.position;
    auto const& [roll, pitch, yaw] = shape.orientation;
    return Math::Transform::fromPosition(x, y, z) * Math::Transform::fromRpy(roll, pitch, yaw);
}

/// The first visual that is a mesh, which a record of the body has as its mesh where the description states no other;
/// null when none is.
inline VisualConfig const* firstMeshOf(BodyShapes const& shapes)
{
    for (VisualConfig const& visual : shapes.visuals) {
        if (visual.geometry.type == GeometryType::mesh) {
            return &visual;
        }
    }
    return nullptr;
}

}  // namespace Varo::Model

#endif
