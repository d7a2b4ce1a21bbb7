#ifndef VARO_MODEL_RECORDS_HPP
#define VARO_MODEL_RECORDS_HPP

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "varo/export.hpp"
#include "varo/model/configs.hpp"
#include "varo/model/table.hpp"

namespace Varo::Model {

class Robot;

/// All that a description says, record by record. Plain data: reading from several threads is safe.
struct Records {
    std::string dialect;  ///< "native" or "urdf"
    bool statesActuators = true;  ///< whether the dialect has coupled actuators, or they are made of its mimics
    bool statesPostures = true;  ///< whether the dialect has postures
    bool statesMirrors = true;  ///< whether the dialect has mirrors, or they are inferred
    std::string name;  ///< of the robot
    std::string version;  ///< the description's own; may be empty
    std::map<int, std::string> prettyNames;  ///< by index
    JointConfig root;  ///< the body that the tree of joints begins with
    Table<JointConfig> joints;  ///< with the bodies that they move
    std::vector<std::string> reflectionForced;  ///< names of joints
    Table<ChainConfig> chains;  ///< serial chains of joints
    std::vector<std::uint32_t> chainOrder;  ///< indices of the chains as listed; only foreign robots repeat one
    Table<ActuatorConfig> actuators;  ///< coupled ones
    Table<SubActuatorConfig> subActuators;  ///< sub-joints, and how joints follow an actuator
    Table<SensorConfig> sensors;  ///< and lights
    Table<WheelConfig> wheels;  ///< driven ones
    std::vector<PostureConfig> postures;  ///< in the order of the description
    std::vector<TransmissionConfig> transmissions;  ///< in the order of the description
    std::vector<ExtensionConfig> extensions;  ///< those of one place in the order of the description
};

/// The records of a robot: its own when it holds them, otherwise copies of what it lists. The robot must outlive them.
/// Never null.
VAROROBOTMODEL_API std::shared_ptr<Records const> recordsOf(Robot const& robot);

}  // namespace Varo::Model

#endif
