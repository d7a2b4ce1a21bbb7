#ifndef SIM_JOINT_HPP
#define SIM_JOINT_HPP

#include <string>

#include "varo/export.hpp"

namespace Sim {

class Frame;
class JointImpl;
class Link;

/// A joint between two links. It turns about, or slides along, the z axis of its frame.
///
/// Handed out by Model as a borrowed pointer, as is everything that it returns: valid as long as the model, immutable,
/// and safe to ask from several threads. Every getter throws std::runtime_error on a joint that no model made.
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
    /// The link that the joint hangs on. Null only when its model is gone.
    Link const* parentLink() const;
    /// The link that the joint moves; null when it moves none.
    Link const* childLink() const;

private:
    friend class ModelImpl;

    JointImpl* _impl;
};

}  // namespace Sim

#endif
