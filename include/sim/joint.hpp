#ifndef SIM_JOINT_HPP
#define SIM_JOINT_HPP

#include <string>

#include "varo/export.hpp"

namespace Sim {

class Frame;
class JointImpl;
class Link;

/// What connects two links: it turns about the z axis of its frame, counter-clockwise as seen from the tip of z, or
/// slides along it. A fixed joint does neither.
///
/// A joint is geometry only. What drives it, and within which limits, its actuators say (Model::angleActuator of its
/// name); which joint mirrors it, Model::jointSymmetry.
///
/// An element of a Model, which says how long it lives and who may ask it at once.
class VAROROBOTMODEL_API Joint {
public:
    Joint();
    Joint(Joint const&) = delete;
    Joint& operator=(Joint const&) = delete;
    ~Joint();

    /// Where the joint sits, posed in the frame of its parent link. Null only when its model is gone.
    Frame const* frame() const;
    /// As in the description; Model::joint finds the joint by it.
    std::string const& name() const;
    /// The link that the joint is attached to. Null only when its model is gone.
    Link const* parentLink() const;
    /// The link that the joint moves; null when it moves none.
    Link const* childLink() const;

private:
    friend class ModelImpl;

    JointImpl* _impl;
};

}  // namespace Sim

#endif
