#include "native/native_writer.hpp"

#include "native/element_writer.hpp"
#include "native/elements.hpp"

namespace Varo::Model {

namespace {

RobotData dataOf(Robot const& robot)
{
    RobotData data;
    std::string robotName;
    data.name = robot.name();
    data.version = robot.version();
    data.prettyNames = robot.prettyNames();
    robot.listJoints(robotName, data.root, data.joints.byName, data.joints.names, data.reflectionForced);
    robot.listChains(data.chains.names, data.chains.byName);
    robot.listActuators(data.actuators.names, data.actuators.byName, data.subActuators);
    robot.listWheels(data.wheels.names, data.wheels.byName);
    robot.listSensors(data.sensors.names, data.sensors.byName);
    data.postures = robot.postures();
    return data;
}

}  // namespace

std::string writeNative(Robot const& robot)
{
    RobotData const data = dataOf(robot);
    Native::ElementWriter writer(data);
    writer.write(Native::robotDescriptionElement, &data);
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + writer.text();
}

}  // namespace Varo::Model
