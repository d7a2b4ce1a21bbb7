#ifndef TOOL_SUPPORT_ELEMENT_JSON_HPP
#define TOOL_SUPPORT_ELEMENT_JSON_HPP

#include "support/global_poses.hpp"
#include "support/json.hpp"

namespace Sim {
class Actuator;
class ActuatorGroup;
class Joint;
class JointGroup;
class JointSymmetry;
class Link;
class Sensor;
}  // namespace Sim

namespace Tool {

/// Makes data of the elements of one model: what `dump` prints of each, and `list` and `show` too. Poses are the 16
/// numbers of the homogeneous matrix, row by row; other elements are referred to by name, null where there is none.
class ElementJson {
public:
    Json of(Sim::Link const& link);
    Json of(Sim::Joint const& joint);
    Json of(Sim::JointSymmetry const& symmetry);
    Json of(Sim::JointGroup const& group);
    Json of(Sim::Actuator const& actuator);
    Json of(Sim::ActuatorGroup const& group);
    Json of(Sim::Sensor const& sensor);

private:
    template <class Device, class Kinds>
    Json deviceJson(Device const& device, Kinds const& kinds);
    Json globalPosition(Sim::Frame const* frame);

    GlobalPoses _poses;
};

}  // namespace Tool

#endif
