#ifndef TOOL_SUPPORT_LINK_CHAINS_HPP
#define TOOL_SUPPORT_LINK_CHAINS_HPP

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "sim/model.hpp"

namespace Tool {

/// Which chain each link belongs to: the first one that lists the joint before it or, when none does, that of the link
/// before it.
class LinkChains {
public:
    explicit LinkChains(Sim::Model const& model);

    /// In the order of the description.
    std::vector<std::string> const& names() const { return _names; }
    /// The chain's place among the names; none for the links before the first chain.
    std::optional<std::size_t> chainOf(Sim::Link const& link) const;

private:
    std::vector<std::string> _names;
    std::map<Sim::Link const*, std::size_t> _chains;
};

}  // namespace Tool

#endif
