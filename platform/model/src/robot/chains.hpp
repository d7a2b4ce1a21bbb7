#ifndef VARO_MODEL_ROBOT_CHAINS_HPP
#define VARO_MODEL_ROBOT_CHAINS_HPP

#include <cstddef>
#include <string>
#include <vector>

#include "robot/grouped.hpp"
#include "robot/link_tree.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model {

/// By link, the joints whose parent it is: first the one on which the path runs on, which is that with the most joints
/// below it, the first in the text among equals, then the others in the order of the text. The joints of the root
/// continue no path and keep the order of the text.
using ChildJoints = Grouped;
ChildJoints childJointsOf(LinkTree const& tree);

/// The tree of joints as serial chains, each after the one that it is attached to.
Table<ChainConfig> makeChains(LinkTree const& tree, ChildJoints const& children);

/// All joints in the order in which a model builds them from those chains: depth first.
std::vector<std::size_t> buildingOrder(LinkTree const& tree, ChildJoints const& children);

}  // namespace Varo::Model

#endif
