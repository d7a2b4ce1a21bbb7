#ifndef TOOL_SUPPORT_ELEMENT_JSON_HPP
#define TOOL_SUPPORT_ELEMENT_JSON_HPP

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

/// The elements of a model as data: what `dump` prints of each, and `list` and `show` too. Poses are the 16 numbers of
/// the homogeneous matrix, row by row; other elements are referred to by name, null where there is none.
namespace Tool {

Json toJson(Sim::Link const& link);
Json toJson(Sim::Joint const& joint);
Json toJson(Sim::JointSymmetry const& symmetry);
Json toJson(Sim::JointGroup const& group);
Json toJson(Sim::Actuator const& actuator);
Json toJson(Sim::ActuatorGroup const& group);
Json toJson(Sim::Sensor const& sensor);

}  // namespace Tool

#endif
