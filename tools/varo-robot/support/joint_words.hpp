#ifndef TOOL_SUPPORT_JOINT_WORDS_HPP
#define TOOL_SUPPORT_JOINT_WORDS_HPP

#include <set>
#include <string>

#include "sim/joint.hpp"
#include "sim/model.hpp"

namespace Tool {

/// "revolute", "fixed", ...
char const* wordOf(Sim::Joint::Type type);

/// Says in a word what moves each joint of a model.
class JointWords {
public:
    explicit JointWords(Sim::Model const& model);

    /// "actuated" for one with a motor, "coupled" for one that only an actuator of several joints moves, "mimic" for
    /// one that only follows another, "passive" for one that nothing drives, and the word of its type for one that does
    /// not move.
    std::string of(Sim::Joint const& joint) const;

private:
    std::set<Sim::Joint const*> _coupled;
};

}  // namespace Tool

#endif
