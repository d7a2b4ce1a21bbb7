#include <array>

#include "varo/model/model_utils.hpp"

namespace Varo::Model::ModelUtils {

namespace {

struct KeyPath {
    int kind;
    char const* path;  // behind the device's name: quantity, then direction
};

// Lowest bit first: the order in which the keys of one device come.
constexpr std::array<KeyPath, 6> keyPaths = {{
    {angleSensor, "/Angle/Sensor"},
    {angularSpeedSensor, "/AngularSpeed/Sensor"},
    {torqueSensor, "/Torque/Sensor"},
    {angleActuator, "/Angle/Actuator"},
    {angularSpeedActuator, "/AngularSpeed/Actuator"},
    {torqueActuator, "/Torque/Actuator"},
}};

constexpr int jointKinds =
    angleSensor | angularSpeedSensor | torqueSensor | angleActuator | angularSpeedActuator | torqueActuator;
constexpr int wheelKinds = jointKinds & ~(angleSensor | angleActuator);
constexpr int actuatorKinds = angleSensor | angleActuator;

std::vector<std::string> keysOf(std::vector<std::string> const& names, int kinds)
{
    std::vector<std::string> keys;
    for (std::string const& name : names) {
        for (KeyPath const& key : keyPaths) {
            if ((kinds & key.kind) != 0) {
                keys.push_back(name + key.path);
            }
        }
    }
    return keys;
}

}  // namespace

std::vector<std::string> getJointDCMKeys(std::vector<std::string> const& names, int kinds)
{
    return keysOf(names, kinds & jointKinds);
}

std::vector<std::string> getWheelDCMKeys(std::vector<std::string> const& names, int kinds)
{
    return keysOf(names, kinds & wheelKinds);
}

std::vector<std::string> getActuatorDCMKeys(std::vector<std::string> const& names, int kinds)
{
    return keysOf(names, kinds & actuatorKinds);
}

}  // namespace Varo::Model::ModelUtils
