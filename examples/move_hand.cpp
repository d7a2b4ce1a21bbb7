// Moves a robot: says where a link, joint, sensor or actuator is in a posture, where the robot's centre of mass is
// then, and how both move when one joint after the other does.
#include <iomanip>
#include <iostream>

#include "failure.hpp"
#include "sim/kinematics.hpp"
#include "sim/model.hpp"

namespace {

void print(char const* what, double const* vector, char const* unit)
{
    std::cout << what << vector[0] << ' ' << vector[1] << ' ' << vector[2] << unit;
}

}  // namespace

int main(int count, char** arguments)
try {
    if (count != 4) {
        std::cerr << "Usage: move_hand FILE POSTURE NAME\n";
        return 2;
    }
    Sim::Model const model(arguments[1]);
    Sim::Kinematics const kinematics(model);
    Sim::Configuration const configuration(kinematics, arguments[2]);
    Sim::Frame const& hand = kinematics.frame(arguments[3]);

    Sim::Vector3 const place = kinematics.pose(configuration, hand).position();
    Sim::Vector3 const centerOfMass = kinematics.massProperties(configuration).centerOfMass;
    std::cout << std::fixed << std::setprecision(3) << arguments[3];
    print(" at ", place.data(), " m");
    print(", centre of mass at ", centerOfMass.data(), " m\n");

    // A column of six for each variable: velocity, then angular velocity. And columns of three for the centre of mass.
    std::vector<double> const ofHand = kinematics.jacobian(configuration, hand);
    std::vector<double> const ofMass = kinematics.centerOfMassJacobian(configuration);
    for (std::size_t i = 0; i < configuration.size(); ++i) {
        std::cout << kinematics.variables()[i].name;
        print(": ", &ofHand[6 * i], " and ");
        print("", &ofMass[3 * i], " m/s per rad/s\n");
    }
} catch (...) {
    return reportFailure(arguments[1]);
}
