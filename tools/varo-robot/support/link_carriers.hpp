#ifndef TOOL_SUPPORT_LINK_CARRIERS_HPP
#define TOOL_SUPPORT_LINK_CARRIERS_HPP

#include <map>

#include "sim/model.hpp"

namespace Tool {

/// Which link of a model carries a frame. What sits at a joint is carried by the link that the joint moves.
class LinkCarriers {
public:
    explicit LinkCarriers(Sim::Model const& model);

    /// Null for a frame that no link carries.
    Sim::Link const* of(Sim::Frame const* frame) const;

private:
    std::map<Sim::Frame const*, Sim::Link const*> _links;
};

}  // namespace Tool

#endif
