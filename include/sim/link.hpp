#ifndef SIM_LINK_HPP
#define SIM_LINK_HPP

#include <string>
#include <vector>

#include "sim/shape.hpp"
#include "varo/export.hpp"

namespace Sim {

class Frame;
class Joint;
class LinkImpl;
class MassData;
class VisualData;

/// A rigid body of the robot, between its joints: the root body, or what one joint or wheel moves.
///
/// Links and joints alternate in a tree whose root is Model::rootLink(): a link has one joint that moves it, but for
/// the root link, and any number of joints attached to it that move others. What belongs to the body as a body is here:
/// its frame, its mass, what it looks like and collides with, and what its surface is made of.
///
/// An element of a Model, which says how long it lives and who may ask it at once.
class VAROROBOTMODEL_API Link {
public:
    /// The kinds of links.
    enum LinkType {
        Regular = 0,  ///< the root body, or what a joint moves
        Wheel = 1,  ///< what a wheel of the description is
    };

    Link();
    Link(Link const&) = delete;
    Link& operator=(Link const&) = delete;
    virtual ~Link();

    /// Where the link sits, posed in the frame of the joint that moves it; a root frame for the root link. Null only
    /// when its model is gone.
    Frame const* frame() const;
    /// The name of the joint that moves it (of the root for the root link), with "Link" appended.
    std::string const& name() const;
    /// What the description itself calls it, where it names links: in URDF, or by the attribute `link` of a joint or
    /// the root; otherwise name(). Model::link finds the link by either.
    std::string const& descriptionName() const;
    /// The joint that moves it; null for the root link.
    Joint const* parentJoint() const;
    /// The mass properties; null when the link was made without. Loading makes none without: what the description
    /// leaves out is zero.
    MassData const* mass() const;
    /// The material of its surface, as frictionCoeff takes it; "gum" when the description names none.
    std::string const& frictionMaterial() const;
    /// Whether it is a wheel.
    LinkType type() const;
    /// Its mesh file, which is one of visuals() or stands for them in programs that show one file a link; null when the
    /// link was made without. Loading makes none without: what the description leaves out is empty.
    VisualData const* visual() const;
    /// All that is shown of it, in the order of the description: what it states as visuals, or else its one mesh at its
    /// place. Made anew from the description at each call; empty when there is nothing.
    std::vector<Visual> visuals() const;
    /// What it collides with; as visuals(), but a mesh that is only shown is none.
    std::vector<Collision> collisions() const;
    /// The joints attached to it, in building order; never null inside.
    std::vector<Joint const*> childrenJoints() const;

private:
    friend class ModelImpl;

    LinkImpl* _impl;
};

}  // namespace Sim

#endif
