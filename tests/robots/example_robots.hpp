#ifndef VARO_TESTS_EXAMPLE_ROBOTS_HPP
#define VARO_TESTS_EXAMPLE_ROBOTS_HPP

#include <string>

#include "sim/frame.hpp"
#include "sim/model.hpp"

// The descriptions in robots/, by file name.
namespace Tests {

inline constexpr char const* exampleRobots[] = {"minimal", "rover", "humanoid", "helvo_arm"};

inline std::string examplePath(std::string const& robot)
{
    return std::string(VARO_SOURCE_DIR) + "/robots/" + robot + ".xml";
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
