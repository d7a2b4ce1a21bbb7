#include "support/chain_colours.hpp"

#include <cmath>

#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "support/numbers.hpp"

namespace Tool {

ChainColours::ChainColours(Varo::Model::Robot const& robot, Sim::Model const& model)
{
    Varo::Model::ChainTable table;
    robot.listChains(_chains, table);
    std::map<std::string, std::size_t> chainOfJoint;
    for (std::size_t i = 0; i < _chains.size(); ++i) {
        for (std::string const& joint : table.at(_chains[i]).jointNames) {
            chainOfJoint.emplace(joint, i);
        }
    }
    // Links are made from the root outward, so that the one before is known already.
    for (Sim::Link const* link : model.links()) {
        Sim::Joint const* const joint = link->parentJoint();
        if (joint == nullptr) {
            continue;
        }
        auto const own = chainOfJoint.find(joint->name());
        auto const before = _chainOf.find(joint->parentLink());
        if (own != chainOfJoint.end()) {
            _chainOf.emplace(link, own->second);
        } else if (before != _chainOf.end()) {
            _chainOf.emplace(link, before->second);
        }
    }
}

std::string ChainColours::hueOf(std::size_t chain) const
{
    // Steps of the golden section keep the hues of however many chains apart.
    double const golden = 0.6180339887498949;
    return fixedPoint(std::fmod(0.58 + static_cast<double>(chain) * golden, 1.0), 3);
}

std::string ChainColours::fillOf(std::size_t chain) const
{
    return hueOf(chain) + " 0.220 0.980";
}

std::string ChainColours::fillOf(Sim::Link const& link) const
{
    auto const found = _chainOf.find(&link);
    return found == _chainOf.end() ? "0.000 0.000 0.900" : fillOf(found->second);
}

std::string ChainColours::strokeOf(Sim::Link const& link) const
{
    auto const found = _chainOf.find(&link);
    return found == _chainOf.end() ? "0.000 0.000 0.300" : hueOf(found->second) + " 0.800 0.650";
}

}  // namespace Tool
