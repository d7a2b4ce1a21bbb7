#ifndef SIM_FRAME_HPP
#define SIM_FRAME_HPP

#include <string>

#include "varo/export.hpp"
#include "varo/math/transform.hpp"

namespace Sim {

class FrameImpl;

/// A coordinate frame of the robot, posed in its parent frame with every joint at zero.
///
/// Every link, joint, sensor and actuator sits at one. Handed out by Model as a borrowed pointer that lives as long as
/// the model; immutable, so that any number of threads may ask it at once. Every getter throws std::runtime_error on a
/// frame that no model made.
class VAROROBOTMODEL_API Frame {
public:
    Frame();
    Frame(Frame const&) = delete;
    Frame& operator=(Frame const&) = delete;
    ~Frame();

    /// The name of the element that sits at it. Several frames may bear one name.
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
