#ifndef VARO_KINEMATICS_JOINT_DRIVES_HPP
#define VARO_KINEMATICS_JOINT_DRIVES_HPP

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "sim/joint_variable.hpp"
#include "varo/model/name_hash.hpp"

namespace Sim {

class Joint;
class Model;

enum class Motion : std::uint8_t { none, turns, slides };

/// What moves a joint: its value is ratio * variable + offset.
struct Drive {
    static constexpr std::uint32_t noVariable = 0xFFFFFFFF;

    Motion motion = Motion::none;
    bool follows = false;  ///< whether another joint or an actuator has the value
    std::uint32_t variable = noVariable;  ///< none for what stands still, at its offset
    double ratio = 1.0;
    double offset = 0.0;
};

/// Which variables a robot has, and how they move its joints.
class JointDrives {
public:
    explicit JointDrives(Model const& model);

    std::vector<JointVariable> const& variables() const { return _variables; }
    /// Of a joint with a child link.
    Drive const& of(Joint const& joint) const { return _byJoint.at(&joint); }
    /// Of the first joint, or else coupled actuator, of that name. Throws std::invalid_argument for an unknown name.
    Drive const& named(std::string const& name) const;
    /// The same of what has a variable. Throws std::invalid_argument for what does not move, too.
    Drive const& moving(std::string const& name) const;

private:
    class Builder;

    std::vector<JointVariable> _variables;
    std::unordered_map<Joint const*, Drive> _byJoint;
    std::unordered_map<std::string, Drive, Varo::Model::NameHash> _byName;
};

}  // namespace Sim

#endif
