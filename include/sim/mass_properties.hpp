#ifndef SIM_MASS_PROPERTIES_HPP
#define SIM_MASS_PROPERTIES_HPP

#include <array>

#include "sim/pose.hpp"

namespace Sim {

/// Mass, centre of mass and inertia of several links in one configuration, as if they were one rigid body.
struct MassProperties {
    double mass = 0.0;  ///< kg
    Vector3 centerOfMass = {};  ///< m, in the root's frame; zeros when the mass is zero
    std::array<double, 9> inertia = {};  ///< kg*m^2, 3x3 row by row, about the centre of mass, in the root's axes
};

}  // namespace Sim

#endif
