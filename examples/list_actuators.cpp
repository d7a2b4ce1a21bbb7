// Lists the angle actuators of a robot: between which angles (rad; m for a sliding joint) each moves its joint, how
// fast, and the device keys under which it is commanded.
#include <iostream>

#include "failure.hpp"
#include "sim/angle_actuator.hpp"
#include "sim/model.hpp"

int main(int count, char** arguments)
try {
    if (count != 2) {
        std::cerr << "Usage: list_actuators FILE\n";
        return 2;
    }
    Sim::Model const model(arguments[1]);
    for (Sim::AngleActuator const* const actuator : model.angleActuators()) {
        std::cout << actuator->name() << ": " << actuator->minValue() << " to " << actuator->maxValue() << ", at most "
                  << actuator->maxSpeed() << " a second, keys";
        for (std::string const& key : actuator->dcmKeys()) {
            std::cout << ' ' << key;
        }
        std::cout << '\n';
    }
} catch (...) {
    return reportFailure(arguments[1]);
}
