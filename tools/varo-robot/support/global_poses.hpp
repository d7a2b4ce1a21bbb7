#ifndef TOOL_SUPPORT_GLOBAL_POSES_HPP
#define TOOL_SUPPORT_GLOBAL_POSES_HPP

#include <cstddef>
#include <unordered_map>

#include "varo/math/transform.hpp"

namespace Sim {
class Frame;
}

namespace Tool {

/// The poses of a model's frames in the frame of the root, for those who ask for many of them.
///
/// They are what Sim::Frame::globalPosition says, to the last bit, down to a depth that no robot reaches. That
/// composes each pose from the root on, so that all frames of a chain take time that grows with the square of its
/// length; deeper frames are therefore composed from the pose before them.
class GlobalPoses {
public:
    static constexpr std::size_t exactDepth = 1000;

    Varo::Math::Transform of(Sim::Frame const& frame);

private:
    struct Known {
        Varo::Math::Transform pose;
        std::size_t depth = 0;
    };

    std::unordered_map<Sim::Frame const*, Known> _known;
};

}  // namespace Tool

#endif
