#ifndef VARO_TESTS_EXAMPLE_ROBOTS_HPP
#define VARO_TESTS_EXAMPLE_ROBOTS_HPP

#include <filesystem>
#include <string>

#include "sim/frame.hpp"
#include "sim/model.hpp"

// The descriptions in robots/, by file name.
namespace Tests {

inline constexpr char const* exampleRobots[] = {"minimal", "rover", "humanoid", "helvo_arm", "quadruped", "mobile_arm"};

inline std::string examplePath(std::string const& robot)
{
    std::string const path = std::string(VARO_SOURCE_DIR) + "/robots/" + robot;
    return path + (std::filesystem::exists(path + ".xml") ? ".xml" : ".urdf");
}

/// The pose in the root's frame of a frame, or of anything that has one.
inline Varo::Math::Transform poseOf(Sim::Frame const* frame)
{
    return Sim::Frame::globalPosition(frame);
}

template <class Element>
Varo::Math::Transform poseOf(Element const* element)
{
    return poseOf(element->frame());
}

}  // namespace Tests

#endif
