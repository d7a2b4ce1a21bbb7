#ifndef SIM_JOINT_VARIABLE_HPP
#define SIM_JOINT_VARIABLE_HPP

#include <string>

namespace Sim {

/// What one value of a Configuration stands for.
///
/// Each revolute, continuous or prismatic joint that follows nothing has a variable, be it with a motor or without, and
/// so does each wheel and each coupled actuator. A joint that is coupled to others shares the variable of the actuator,
/// and one that mimics another that of its leader.
struct JointVariable {
    /// The name of the joint or wheel. That of the actuator where one moves sub-joints or joints that follow it; but
    /// when a joint among them follows with the ratio 1 and no offset, as one does that others mimic, the name of that
    /// joint.
    std::string name;
    /// The limits that the description gives the joint or actuator (rad, or m when it slides); infinite when unlimited,
    /// as wheels are, and when they are in reverse order.
    double min;
    double max;  ///< as min
    bool slides;  ///< whether the values are metres rather than radians
};

}  // namespace Sim

#endif
