#ifndef VARO_MODEL_ROBOT_COUPLINGS_HPP
#define VARO_MODEL_ROBOT_COUPLINGS_HPP

#include <cstddef>
#include <vector>

#include "robot/link_tree.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model {

/// Finds the leader of each mimic once joints are known by their names, multiplying mimics of mimics through. Reports
/// those without a leader or without a meaning.
void followMimics(LinkTree& tree, Diagnostics& diagnostics);

/// One actuator per leader, which moves it and its followers together.
///
/// A model would attach the members to the joint that the actuator is attached to, unless they have been built by then:
/// every member is a group of its own, and the actuator is attached to the member that is built last.
void addCouplings(LinkTree& tree, std::vector<std::size_t> const& buildingOrder, Records& robot,
                  Diagnostics& diagnostics);

}  // namespace Varo::Model

#endif
