#include "support/link_chains.hpp"

#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "varo/model/records.hpp"

namespace Tool {

LinkChains::LinkChains(Sim::Model const& model)
{
    std::map<std::string, std::size_t> chainOfJoint;
    auto const records = Varo::Model::recordsOf(model.robot());
    for (Varo::Model::ChainConfig const& chain : records->chains) {
        for (std::string const& joint : chain.jointNames) {
            chainOfJoint.emplace(joint, _names.size());
        }
        _names.push_back(chain.name);
    }
    // Links are made from the root outward, so that the one before is known already.
    for (Sim::Link const* link : model.links()) {
        Sim::Joint const* const joint = link->parentJoint();
        if (joint == nullptr) {
            continue;
        }
        auto const own = chainOfJoint.find(joint->name());
        auto const before = _chains.find(joint->parentLink());
        if (own != chainOfJoint.end()) {
            _chains.emplace(link, own->second);
        } else if (before != _chains.end()) {
            _chains.emplace(link, before->second);
        }
    }
}

std::optional<std::size_t> LinkChains::chainOf(Sim::Link const& link) const
{
    auto const found = _chains.find(&link);
    return found == _chains.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace Tool
