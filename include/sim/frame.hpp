#ifndef SIM_FRAME_HPP
#define SIM_FRAME_HPP

#include <string>

#include "varo/export.hpp"
#include "varo/math/transform.hpp"

namespace Sim {

class FrameImpl;

/// A coordinate frame of the robot, right-handed and in metres, posed in its parent frame with every joint at zero.
///
/// Frames are the skeleton on which everything else sits. A joint has one of its name, posed in the frame of its parent
/// link; the link that it moves has one of the joint's name with "Link" appended, posed in the joint's frame. Sensors
/// and actuators sit at one of these, or at one of their own that is posed in one of these. Going from parent to parent
/// one comes to the frame of the root link, which has no parent.
///
/// Poses never change: a model says where things are while all joints stand at zero. A program that moves them puts the
/// motion of a joint, about or along its z axis, between the joint's frame and that of the link.
///
/// An element of a Model, which says how long it lives and who may ask it at once.
class VAROROBOTMODEL_API Frame {
public:
    Frame();
    Frame(Frame const&) = delete;
    Frame& operator=(Frame const&) = delete;
    ~Frame();

    /// The name of the element that sits at it. Several frames may have one name.
    std::string const& name() const;
    /// The frame in which this one is posed; null for a root frame.
    Frame const* parentFrame() const;
    /// The pose of this frame in its parent frame (m).
    Varo::Math::Transform const& localPosition() const;
    /// The same as localPosition().
    Varo::Math::Transform const& position() const;

    /// The pose of `frame` in the root frame that its parents lead to (m); the identity for null. Takes time
    /// proportional to the number of parents.
    static Varo::Math::Transform globalPosition(Frame const* frame);

private:
    friend class ModelImpl;

    FrameImpl* _impl;
};

}  // namespace Sim

#endif
