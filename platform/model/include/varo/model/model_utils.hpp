#ifndef VARO_MODEL_MODEL_UTILS_HPP
#define VARO_MODEL_MODEL_UTILS_HPP

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "varo/export.hpp"
#include "varo/model/finding.hpp"
#include "varo/model/robot.hpp"
#include "varo/model/text_file.hpp"

/// Reading of robot descriptions, and the names under which the device layer knows a robot's devices.
///
/// Pure functions, but for those that read a file: thread-safe, nothing is kept between calls. All of them throw
/// std::bad_alloc when there is not enough memory, and nothing else but what they say.
namespace Varo::Model::ModelUtils {

/// The longest text that is read, in bytes; longer ones are refused.
inline constexpr std::size_t maxTextSize = std::size_t{256} * 1024 * 1024;

/// What became of a text: the robot, null when a finding is an error, all findings, and the text itself.
struct Reading {
    std::unique_ptr<Robot> robot;  ///< null when the text is refused
    Findings findings;  ///< in the order of their places
    std::shared_ptr<std::string const> text;  ///< null for a reading that `read` did not make
};

/// How a text is read.
struct ReadOptions {
    /// Whether left and right are paired where the dialect has no mirrors, as URDF has none: joints that move, whose
    /// names say that they are counterparts and whose places and axes prove it. They become each other's mirrors.
    bool inferMirrors = true;
    /// Whether the findings of a text that is accepted are listed in the reading, for which their places have to be
    /// worked out. The robot has them all the same (`Robot::diagnostics`), and so has a model of it.
    bool listFindings = true;
};

/// Reads the XML text of a description of either dialect. Never throws for what the text says.
VAROROBOTMODEL_API Reading read(std::string xml, ReadOptions const& options = {});

/// Reads the file of that name, a regular one or a pipe (`readTextFile`), and then the text in it as `read` does. What
/// is in the way of the file is a finding without a place.
VAROROBOTMODEL_API Reading readFile(std::string const& path, ReadOptions const& options = {});
/// The same of a file that was read before.
VAROROBOTMODEL_API Reading read(TextFile file, ReadOptions const& options = {});

/// As `read`, for those who only want a robot: throws DescriptionError when the text is refused. Never null.
VAROROBOTMODEL_API std::unique_ptr<Robot> robotFromXml(std::string const& xml);
/// The same without a copy of the text.
VAROROBOTMODEL_API std::unique_ptr<Robot> robotFromXml(std::string&& xml);

/// True when `robotFromXml` would accept the text.
VAROROBOTMODEL_API bool checkXml(std::string const& xml);

/// All findings of the text, in one pass, in the order of their places.
VAROROBOTMODEL_API Findings diagnose(std::string const& xml);

/// The codes of all findings that there are, in either dialect, in ascending order.
VAROROBOTMODEL_API std::vector<std::string> findingCodes();

/// The robot as a text of the native dialect, whatever the dialect it was read from. Reading that text gives a robot
/// that holds the same, bit by bit, and whose text is the same.
VAROROBOTMODEL_API std::string toXml(Robot const& robot);

/// The robot as a URDF text, whatever the dialect it was read from: its links and joints with all that URDF says of
/// them, its transmissions, its sensors with their settings, and the extensions where they stood. What URDF has no
/// words for stands in one element of a namespace of our own, which other programs pass over: docs/urdf.md. Reading the
/// text gives a robot that holds the same, bit by bit, and whose text in either dialect is the same.
VAROROBOTMODEL_API std::string toUrdf(Robot const& robot);
/// The same; `findings` receives a note of each record that URDF cannot say, or not wholly, at its place in the text of
/// the robot. An error among them, which only robots with names of more than 1000 bytes or robots of another make can
/// cause, says that no reader will take the text.
VAROROBOTMODEL_API std::string toUrdf(Robot const& robot, Findings& findings);

/// The kinds of device keys: bits, to be combined at will.
enum KeyKind : int {
    angleSensor = 1,
    angularSpeedSensor = 2,
    torqueSensor = 32,
    angleActuator = 64,
    angularSpeedActuator = 128,
    torqueActuator = 256,
};

/// The device keys of joints: name by name, for each the keys of the requested kinds, lowest bit first. A bit that
/// means nothing for the device gives no key.
VAROROBOTMODEL_API std::vector<std::string> getJointDCMKeys(std::vector<std::string> const& names, int kinds);
/// As getJointDCMKeys, of wheels, which have no angle.
VAROROBOTMODEL_API std::vector<std::string> getWheelDCMKeys(std::vector<std::string> const& names, int kinds);
/// As getJointDCMKeys, of coupled actuators, which have nothing but an angle.
VAROROBOTMODEL_API std::vector<std::string> getActuatorDCMKeys(std::vector<std::string> const& names, int kinds);

}  // namespace Varo::Model::ModelUtils

#endif
