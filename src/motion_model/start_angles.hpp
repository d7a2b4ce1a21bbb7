#ifndef SIM_MOTION_MODEL_START_ANGLES_HPP
#define SIM_MOTION_MODEL_START_ANGLES_HPP

#include <string>
#include <utility>
#include <vector>

#include "varo/model/records.hpp"
#include "varo/model/robot.hpp"

namespace Sim {

/// Names of joints and actuators with their angles; the first one of a name counts. Refers into the records.
using StartAngles = std::vector<std::pair<std::string const*, float>>;

/// The robot's posture "StandInit", laid out as its angle names are; zeros when the robot has no postures. Throws
/// StartAngleError when the posture gives an angle to another name.
StartAngles readStartAngles(Varo::Model::Robot const& robot, Varo::Model::Records const& records);

}  // namespace Sim

#endif
