#ifndef VARO_MODEL_ROBOT_TREE_RECORDS_HPP
#define VARO_MODEL_ROBOT_TREE_RECORDS_HPP

#include "robot/link_tree.hpp"
#include "robot/unique_names.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model {

/// Names the root of a tree that has one, after its link unless a joint has that name: in the records a link is called
/// after the joint that moves it. From then on `names` has the names of the joints and the root.
void nameRoot(LinkTree& tree, UniqueNames& names, Diagnostics& diagnostics);

/// Makes the records of the root, the joints, the chains and the couplings: of a tree that gave no errors, its root
/// named, its mimics followed and its bodies read.
void addRecords(LinkTree&& tree, UniqueNames& names, Records& robot, Diagnostics& diagnostics);

}  // namespace Varo::Model

#endif
