#include "support/global_poses.hpp"

#include <vector>

#include "sim/frame.hpp"

namespace Tool {

Varo::Math::Transform GlobalPoses::of(Sim::Frame const& frame)
{
    std::vector<Sim::Frame const*> path;
    Sim::Frame const* ancestor = &frame;
    while (ancestor != nullptr && _known.find(ancestor) == _known.end()) {
        path.push_back(ancestor);
        ancestor = ancestor->parentFrame();
    }
    Known known = ancestor == nullptr ? Known() : _known[ancestor];
    for (auto next = path.rbegin(); next != path.rend(); ++next) {
        bool const isExact = ++known.depth <= exactDepth;
        known.pose = isExact ? Sim::Frame::globalPosition(*next) : known.pose * (*next)->localPosition();
        _known.emplace(*next, known);
    }
    return known.pose;
}

}  // namespace Tool
