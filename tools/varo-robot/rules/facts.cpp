#include "rules/facts.hpp"

#include <utility>

#include "support/numbers.hpp"

namespace Tool::Rules {

Facts::Facts(std::string const& text, Varo::Model::Robot const& robot, Tolerances const& allowed)
    : tolerances(allowed), isNative(robot.dialect() == "native"), postures(robot.postures()), findings(text)
{
    std::string robotName;
    std::vector<std::string> reflectionForced;
    Varo::Model::SubActuatorTable subActuators;
    robot.listJoints(robotName, root, joints, jointNames, reflectionForced);
    robot.listActuators(actuatorNames, actuators, subActuators);
    robot.listWheels(wheelNames, wheels);
    robot.listChains(chainNames, chains);
}

void Facts::warn(Subject const& subject, char const* code, std::string message, std::string hint)
{
    findings.add(subject, Varo::Model::Severity::warning, code, std::move(message), std::move(hint));
}

std::string quoted(std::string const& name)
{
    return Varo::Model::PlacedFindings::quoted(name);
}

std::string rangeText(float min, float max)
{
    return shortest(min) + " to " + shortest(max);
}

}  // namespace Tool::Rules
