#ifndef VARO_TESTS_KINEMATICS_CONFIGURATIONS_HPP
#define VARO_TESTS_KINEMATICS_CONFIGURATIONS_HPP

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "files.hpp"
#include "sim/actuator.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/kinematics.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"
#include "sim/sensor.hpp"

// Robots, and joint values that come as they may.
namespace KinematicsTest {

inline std::vector<std::string> ownRobots()
{
    std::vector<std::string> files = Tests::exampleFiles();
    for (std::string const& file : Tests::filesIn(VARO_SOURCE_DIR "/tests/urdf/data", ".urdf")) {
        files.push_back(file);
    }
    return files;
}

/// Within limits where there are some, and anywhere else otherwise.
inline Sim::Configuration randomConfiguration(Sim::Kinematics const& kinematics, std::mt19937& generator)
{
    Sim::Configuration configuration(kinematics);
    for (std::size_t i = 0; i < configuration.size(); ++i) {
        Sim::JointVariable const& variable = kinematics.variables()[i];
        bool const hasRange = std::isfinite(variable.max - variable.min) && variable.min < variable.max;
        double const reach = variable.slides ? 0.2 : 3.0;
        std::uniform_real_distribution<double> values(hasRange ? variable.min : -reach,
                                                      hasRange ? variable.max : reach);
        configuration.set(i, values(generator));
    }
    return configuration;
}

/// Calls `visit` with the frame of each link, joint, sensor and actuator.
template <class Visit>
void forEachFrame(Sim::Model const& model, Visit const& visit)
{
    auto const visitAll = [&](auto const& elements) {
        for (auto const* const element : elements) {
            SCOPED_TRACE(element->name());
            visit(*element->frame());
        }
    };
    visitAll(model.links());
    visitAll(model.joints());
    visitAll(model.sensors());
    visitAll(model.actuators());
}

/// What tolerances are meant per: the greatest distance of a link from the root (m).
inline double sizeOf(std::vector<Sim::Pose> const& linkPoses)
{
    double size = 0.0;
    for (Sim::Pose const& pose : linkPoses) {
        size = std::max(size, std::hypot(pose(0, 3), pose(1, 3), pose(2, 3)));
    }
    return size;
}

}  // namespace KinematicsTest

#endif
