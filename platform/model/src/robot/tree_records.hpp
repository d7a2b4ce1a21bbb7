#ifndef VARO_MODEL_ROBOT_TREE_RECORDS_HPP
#define VARO_MODEL_ROBOT_TREE_RECORDS_HPP

#include "robot/link_tree.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model {

/// Adds the records of the root, the joints, the chains and the couplings: of a connected tree that gave no errors, its
/// bodies read.
void addRecords(LinkTree&& tree, Records& robot, Diagnostics& diagnostics);

}  // namespace Varo::Model

#endif
