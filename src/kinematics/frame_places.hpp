#ifndef VARO_KINEMATICS_FRAME_PLACES_HPP
#define VARO_KINEMATICS_FRAME_PLACES_HPP

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "sim/pose.hpp"
#include "varo/model/name_hash.hpp"

namespace Sim {

class Frame;
class Link;
class Model;

/// Finds out which link a frame moves with, and frames by name.
class FramePlaces {
public:
    struct Place {
        std::size_t link;  ///< its place in Model::links()
        Pose inLink;
    };

    explicit FramePlaces(Model const& model);

    /// Throws std::invalid_argument for a frame of another model.
    Place of(Frame const& frame) const;
    /// The place of a link in Model::links(). Throws std::invalid_argument for one of another model.
    std::size_t linkOf(Link const& link) const;
    /// As Kinematics::frame.
    Frame const& named(std::string const& name) const;

private:
    /// A frame that is a link's or a joint's.
    struct Known {
        std::uint32_t link;  ///< its place in Model::links()
        bool isLinks;  ///< whether it is the frame of that link
        Link const* behind;  ///< behind a joint; null for none
    };

    static Place placeOf(Frame const& frame, Known const& known);
    Place placeInside(Frame const& frame, Known const& known) const;
    void addNames(Model const& model);

    std::unordered_map<Frame const*, Known> _known;
    std::unordered_map<std::string, Frame const*, Varo::Model::NameHash> _byName;
};

}  // namespace Sim

#endif
