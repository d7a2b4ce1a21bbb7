#ifndef TOOL_SUPPORT_MOVED_ROBOT_HPP
#define TOOL_SUPPORT_MOVED_ROBOT_HPP

#include <string>
#include <utility>
#include <vector>

#include "sim/kinematics.hpp"
#include "support/json.hpp"
#include "varo/math/transform.hpp"

namespace CLI {
class App;
}

namespace Tool {

/// Where the joints are to stand, as all commands that move the robot take it.
struct MotionOptions {
    std::vector<std::pair<std::string, double>> joints;  ///< names and values, the latter as they were written
    std::string posture;  ///< empty for none
    bool degrees = false;  ///< whether angles are in degrees, those of `joints` and those that are printed
    std::string relativeTo;  ///< the name of the frame that poses are to be in; empty for that of the root

    /// Whether anything is asked for but the robot as the model has it.
    bool isGiven() const { return !joints.empty() || !posture.empty() || !relativeTo.empty(); }
};

void declareMotion(CLI::App& app, MotionOptions& options);
/// Declares --relative-to, for commands that print poses.
void declareReference(CLI::App& app, MotionOptions& options);

/// A robot that stands as the options say. What it does not have or cannot do, it throws as Refused, in the name of the
/// file.
class MovedRobot {
public:
    MovedRobot(Sim::Model const& model, MotionOptions const& options, std::string file);

    Sim::Kinematics const& kinematics() const { return _kinematics; }
    Sim::Configuration const& configuration() const { return _configuration; }
    /// Of a link, joint, sensor or actuator, in the frame of reference.
    Varo::Math::Transform poseOf(std::string const& name) const;
    /// Of all links, in the frame of reference and in the order of the model.
    std::vector<Varo::Math::Transform> linkPoses() const;
    /// The values (rad, m) by the names of their variables.
    Json configurationJson() const;

private:
    Sim::Frame const& frameNamed(std::string const& name) const;

    std::string _file;
    Sim::Kinematics _kinematics;
    Sim::Configuration _configuration;
    Sim::Pose _rootInReference;
};

}  // namespace Tool

#endif
