#ifndef VARO_MODEL_URDF_CHAINS_HPP
#define VARO_MODEL_URDF_CHAINS_HPP

#include <cstddef>
#include <string>
#include <vector>

#include "urdf/description.hpp"
#include "urdf/tree.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model::Urdf {

/// The children of every link, the one on which the path runs on before its siblings: that with the most joints below
/// it, the first in the file among equals. The joints of the root are no such path's continuation and keep the order
/// of the file.
using Offspring = std::vector<std::vector<std::size_t>>;
Offspring sortOffspring(Description const& description);

/// The tree of joints as serial chains, each after the one that it hangs on.
Table<ChainConfig> makeChains(Description const& description, Offspring const& offspring, std::string const& rootName);

/// All joints in the order in which a model builds them from those chains: depth first.
std::vector<std::size_t> buildingOrder(Description const& description, Offspring const& offspring);

}  // namespace Varo::Model::Urdf

#endif
