#ifndef TOOL_SUPPORT_CHAIN_COLOURS_HPP
#define TOOL_SUPPORT_CHAIN_COLOURS_HPP

#include <string>
#include <vector>

#include "support/link_chains.hpp"

namespace Tool {

/// The hue of a chain, 0 to 1.
double hueOfChain(std::size_t chain);

/// A colour for each chain, as Graphviz writes colours, and for the links that belong to it.
class ChainColours {
public:
    explicit ChainColours(Sim::Model const& model) : _chains(model) {}

    std::vector<std::string> const& chains() const { return _chains.names(); }
    std::string fillOf(std::size_t chain) const;
    std::string fillOf(Sim::Link const& link) const;
    std::string strokeOf(Sim::Link const& link) const;

private:
    LinkChains _chains;
};

}  // namespace Tool

#endif
