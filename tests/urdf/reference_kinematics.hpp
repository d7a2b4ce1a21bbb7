#ifndef TESTS_URDF_REFERENCE_KINEMATICS_HPP
#define TESTS_URDF_REFERENCE_KINEMATICS_HPP

#include <array>
#include <map>
#include <string>

/// What a URDF text says of its links, computed straight from the XML in double precision and sharing nothing with the
/// library.
namespace UrdfTest {

struct ReferenceLink {
    std::array<double, 16> pose = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};  ///< in the root frame, by rows
    std::string parentJoint;  ///< empty for the root
    double mass = 0.0;
    std::array<double, 3> centerOfMass = {};
    std::array<double, 9> inertia = {};  ///< about the centre of mass, in the axes of the link
};

struct ReferenceRobot {
    std::map<std::string, ReferenceLink> links;  ///< by their names in the text
    double size = 0.0;  ///< m, the largest distance of a link from the root
};

ReferenceRobot computeReference(std::string const& file);

}  // namespace UrdfTest

#endif
