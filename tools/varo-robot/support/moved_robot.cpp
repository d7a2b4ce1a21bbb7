#include "support/moved_robot.hpp"

#include <charconv>
#include <stdexcept>

#include <CLI/CLI.hpp>

#include "support/description.hpp"

namespace Tool {

namespace {

constexpr double radiansPerDegree = 0.017453292519943295;

/// "HeadYaw=0.5"; names may hold the sign as well.
std::pair<std::string, double> readValue(std::string const& text)
{
    std::size_t const sign = text.rfind('=');
    double value = 0.0;
    if (sign != std::string::npos && sign > 0) {
        char const* const begin = text.data() + sign + 1;
        char const* const end = text.data() + text.size();
        auto const [stop, error] = std::from_chars(begin + (begin != end && *begin == '+' ? 1 : 0), end, value);
        if (error == std::errc() && stop == end) {
            return {text.substr(0, sign), value};
        }
    }
    throw CLI::ValidationError("--joint takes a name and a number, such as HeadYaw=0.5, not " + text);
}

/// Turns what the library refuses into a finding about the file.
template <class Action>
auto refusing(std::string const& file, Action const& action) -> decltype(action())
{
    try {
        return action();
    } catch (std::invalid_argument const& error) {
        throw Refused(file, {fileFinding(Varo::Model::Severity::error, codes::cannotBePosed, error.what())});
    }
}

Sim::Configuration configurationOf(MotionOptions const& options, Sim::Kinematics const& kinematics)
{
    Sim::Configuration configuration(kinematics);
    if (!options.posture.empty()) {
        configuration.setPosture(options.posture);
    }
    auto values = options.joints;
    for (auto& [name, value] : values) {
        bool const slides = kinematics.variables()[kinematics.variableOf(name)].slides;
        value *= options.degrees && !slides ? radiansPerDegree : 1.0;
    }
    configuration.set(values);
    return configuration;
}

}  // namespace

void declareMotion(CLI::App& app, MotionOptions& options)
{
    auto const read = [&options](std::vector<std::string> const& texts) {
        for (std::string const& text : texts) {
            options.joints.push_back(readValue(text));
        }
    };
    app.add_option_function<std::vector<std::string>>(
           "--joint", read, "Set a joint, a wheel or an actuator (rad, m when it slides); may be repeated")
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false);  // what follows is the file
    app.add_option("--posture", options.posture, "Start from a posture of the description; otherwise from zero")
        ->type_name("POSTURE");
    app.add_flag("--degrees", options.degrees, "Take and print angles in degrees");
}

void declareReference(CLI::App& app, MotionOptions& options)
{
    app.add_option("--relative-to", options.relativeTo,
                   "Print poses in the frame of this link, joint or device; otherwise of the root")
        ->type_name("FRAME");
}

MovedRobot::MovedRobot(Sim::Model const& model, MotionOptions const& options, std::string file)
    : _file(std::move(file)),
      _kinematics(model),
      _configuration(refusing(_file, [&] { return configurationOf(options, _kinematics); }))
{
    if (!options.relativeTo.empty()) {
        _rootInReference = _kinematics.pose(_configuration, frameNamed(options.relativeTo)).inverse();
    }
}

Varo::Math::Transform MovedRobot::poseOf(std::string const& name) const
{
    return (_rootInReference * _kinematics.pose(_configuration, frameNamed(name))).toTransform();
}

std::vector<Varo::Math::Transform> MovedRobot::linkPoses() const
{
    std::vector<Varo::Math::Transform> poses;
    poses.reserve(_kinematics.linkCount());
    for (Sim::Pose const& inRoot : _kinematics.linkPoses(_configuration)) {
        poses.push_back((_rootInReference * inRoot).toTransform());
    }
    return poses;
}

Json MovedRobot::configurationJson() const
{
    Members values;
    for (std::size_t i = 0; i < _configuration.size(); ++i) {
        values.set(_kinematics.variables()[i].name, static_cast<float>(_configuration[i]));
    }
    return values.take();
}

Sim::Frame const& MovedRobot::frameNamed(std::string const& name) const
{
    return refusing(_file, [&]() -> Sim::Frame const& { return _kinematics.frame(name); });
}

}  // namespace Tool
