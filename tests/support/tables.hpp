#ifndef VARO_TESTS_TABLES_HPP
#define VARO_TESTS_TABLES_HPP

#include <string>
#include <vector>

#include "varo/model/robot.hpp"

namespace Tests {

/// All tables of a robot.
struct Tables {
    explicit Tables(Varo::Model::Robot const& robot) : postures(robot.postures())
    {
        std::vector<std::string> unused;
        robot.listJoints(name, root, joints, jointNames, reflectionForced);
        robot.listChains(chainNames, chains);
        robot.listActuators(unused, actuators, subActuators);
        robot.listSensors(unused, sensors);
        robot.listWheels(unused, wheels);
    }

    std::string name;
    Varo::Model::JointConfig root;
    Varo::Model::JointTable joints;
    std::vector<std::string> jointNames;
    std::vector<std::string> reflectionForced;
    std::vector<std::string> chainNames;
    Varo::Model::ChainTable chains;
    Varo::Model::ActuatorTable actuators;
    Varo::Model::SubActuatorTable subActuators;
    Varo::Model::SensorTable sensors;
    Varo::Model::WheelTable wheels;
    std::vector<Varo::Model::PostureConfig> postures;
};

}  // namespace Tests

#endif
