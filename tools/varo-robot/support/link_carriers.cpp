#include "support/link_carriers.hpp"

#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"

namespace Tool {

LinkCarriers::LinkCarriers(Sim::Model const& model)
{
    for (Sim::Link const* link : model.links()) {
        _links[link->frame()] = link;
    }
    for (Sim::Joint const* joint : model.joints()) {
        _links[joint->frame()] = joint->childLink();
    }
}

Sim::Link const* LinkCarriers::of(Sim::Frame const* frame) const
{
    for (; frame != nullptr; frame = frame->parentFrame()) {
        auto const found = _links.find(frame);
        if (found != _links.end()) {
            return found->second;
        }
    }
    return nullptr;
}

}  // namespace Tool
