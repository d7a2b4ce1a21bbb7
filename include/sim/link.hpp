#ifndef SIM_LINK_HPP
#define SIM_LINK_HPP

#include <string>
#include <vector>

#include "varo/export.hpp"

namespace Sim {

class Frame;
class Joint;
class LinkImpl;
class MassData;
class VisualData;

/// A rigid body of the robot: the root body, or what a joint or wheel moves.
///
/// Handed out by Model as a borrowed pointer, as is everything that it returns: valid as long as the model, immutable,
/// and safe to ask from several threads. Every getter throws std::runtime_error on a link that no model made.
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

    /// Where the link sits. Null only when its model is gone.
    Frame const* frame() const;
    /// The name of the joint that moves it (of the root for the root link), with "Link" appended.
    std::string const& name() const;
    /// The joint that moves it; null for the root link.
    Joint const* parentJoint() const;
    /// Null when the link has none.
    MassData const* mass() const;
    /// The material of its surface, as frictionCoeff takes it; "gum" when the description names none.
    std::string const& frictionMaterial() const;
    /// Whether it is a wheel.
    LinkType type() const;
    /// Null when the link has none.
    VisualData const* visual() const;
    /// The joints that hang on it, in building order; never null inside.
    std::vector<Joint const*> childrenJoints() const;

private:
    friend class ModelImpl;

    LinkImpl* _impl;
};

}  // namespace Sim

#endif
