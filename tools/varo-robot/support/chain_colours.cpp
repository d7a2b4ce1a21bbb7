#include "support/chain_colours.hpp"

#include <cmath>

#include "support/numbers.hpp"

namespace Tool {

namespace {

std::string hueOf(std::size_t chain)
{
    return fixedPoint(hueOfChain(chain), 3);
}

}  // namespace

double hueOfChain(std::size_t chain)
{
    // Steps of the golden section keep the hues of however many chains apart.
    double const golden = 0.6180339887498949;
    return std::fmod(0.58 + static_cast<double>(chain) * golden, 1.0);
}

std::string ChainColours::fillOf(std::size_t chain) const
{
    return hueOf(chain) + " 0.220 0.980";
}

std::string ChainColours::fillOf(Sim::Link const& link) const
{
    auto const chain = _chains.chainOf(link);
    return chain ? fillOf(*chain) : "0.000 0.000 0.900";
}

std::string ChainColours::strokeOf(Sim::Link const& link) const
{
    auto const chain = _chains.chainOf(link);
    return chain ? hueOf(*chain) + " 0.800 0.650" : "0.000 0.000 0.300";
}

}  // namespace Tool
