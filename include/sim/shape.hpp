#ifndef SIM_SHAPE_HPP
#define SIM_SHAPE_HPP

#include <memory>
#include <string>

#include "varo/math/transform.hpp"
#include "varo/model/shapes.hpp"

/// What Link::visuals() and Link::collisions() answer. Plain data, of which every copy is its owner's own: it may
/// outlive the model.
namespace Sim {

/// A solid that belongs to a link. Its numbers are the description's, in SI units and single precision; files are named
/// as the description names them and never opened.
struct Shape {
    std::string name;  ///< may be empty, and that of several shapes
    Varo::Math::Transform pose;  ///< of the shape's frame in the link's frame (m)
    Varo::Model::Geometry geometry;  ///< the solid, in the shape's frame
};

/// What is shown of a link, or a part of it.
struct Visual : Shape {
    std::shared_ptr<Varo::Model::Material const> material;  ///< null when the description states none
};

/// What a link collides with, or a part of it.
struct Collision : Shape {};

}  // namespace Sim

#endif
