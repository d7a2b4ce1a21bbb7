#ifndef VARO_BENCH_FLAT_ROBOT_HPP
#define VARO_BENCH_FLAT_ROBOT_HPP

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The least that a model of a URDF text takes: its links and joints in flat arrays, in the order from the root
/// outward, to be found by name. Written for speed alone, nothing is checked but what would make it fail: it says how
/// far a real model is from what could be.
namespace Bench {

using Numbers3 = std::array<double, 3>;

struct FlatFrame {
    Numbers3 position = {};
    std::array<Numbers3, 3> rotation = {};
};

struct FlatLink {
    std::string name;
    double mass = 0.0;
    Numbers3 centerOfMass = {};
    std::array<double, 6> inertia = {};
    FlatFrame visual;
    std::string mesh;
    Numbers3 size = {};
    int parentJoint = -1;
};

struct FlatJoint {
    std::string name;
    FlatFrame origin;
    Numbers3 axis = {};
    std::array<double, 4> limits = {};  ///< lower, upper, effort, velocity
    int parent = -1;
    int child = -1;
};

struct FlatRobot {
    std::vector<FlatLink> links;
    std::vector<FlatJoint> joints;
    std::vector<int> outward;  ///< joints, none before the one that it is attached to
    std::unordered_map<std::string_view, int> linkByName;
    std::unordered_map<std::string_view, int> jointByName;
};

/// Empty for a text that it cannot make a tree of.
std::optional<FlatRobot> readFlat(std::string const& urdf);

}  // namespace Bench

#endif
