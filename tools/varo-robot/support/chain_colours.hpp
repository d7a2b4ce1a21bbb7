#ifndef TOOL_SUPPORT_CHAIN_COLOURS_HPP
#define TOOL_SUPPORT_CHAIN_COLOURS_HPP

#include <map>
#include <string>
#include <vector>

#include "sim/model.hpp"
#include "varo/model/robot.hpp"

namespace Tool {

/// A colour for each chain, as Graphviz writes colours, and for the links that its joints move. A link whose joint is
/// in no chain has the colour of the link before it.
class ChainColours {
public:
    ChainColours(Varo::Model::Robot const& robot, Sim::Model const& model);

    std::vector<std::string> const& chains() const { return _chains; }
    std::string fillOf(std::size_t chain) const;
    std::string fillOf(Sim::Link const& link) const;
    std::string strokeOf(Sim::Link const& link) const;

private:
    std::string hueOf(std::size_t chain) const;

    std::vector<std::string> _chains;
    std::map<Sim::Link const*, std::size_t> _chainOf;  // links before the first chain are not in it
};

}  // namespace Tool

#endif
