#ifndef VARO_MODEL_ROBOT_HPP
#define VARO_MODEL_ROBOT_HPP

#include <map>
#include <string>
#include <vector>

#include "varo/export.hpp"
#include "varo/model/configs.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/finding.hpp"
#include "varo/model/place.hpp"
#include "varo/model/records.hpp"
#include "varo/model/source_text.hpp"

namespace Varo::Model {

/// One robot description in memory, whatever the dialect it was written in.
///
/// Immutable: all operations may run in several threads at once. The listings fill their out-arguments, replacing what
/// they held; name sequences keep the description's order. References stay valid as long as the robot.
class VAROROBOTMODEL_API Robot {
public:
    Robot() = default;
    Robot(Robot const&) = delete;
    Robot& operator=(Robot const&) = delete;

    /// The robot's name.
    virtual std::string const& name() const = 0;
    /// A name for people, by index; the robot's name when the description gives none for that index.
    virtual std::string prettyName(int index) const = 0;
    /// The description's own version; empty when it states none.
    virtual std::string const& version() const = 0;
    /// The coupled actuators, and the sub-joints that they move.
    virtual void listActuators(std::vector<std::string>& names, ActuatorTable& actuators,
                               SubActuatorTable& subActuators) const = 0;
    /// The kinematic chains.
    virtual void listChains(std::vector<std::string>& names, ChainTable& chains) const = 0;
    /// The robot's name, its root body and its joints; `reflectionForced` receives the names of the joints whose
    /// reflection is forced.
    virtual void listJoints(std::string& robotName, JointConfig& root, JointTable& joints,
                            std::vector<std::string>& names, std::vector<std::string>& reflectionForced) const = 0;
    /// The sensors and lights.
    virtual void listSensors(std::vector<std::string>& names, SensorTable& sensors) const = 0;
    /// The wheels.
    virtual void listWheels(std::vector<std::string>& names, WheelTable& wheels) const = 0;
    virtual ~Robot() = default;

    /// The postures that the description carries, in its order.
    virtual std::vector<PostureConfig> const& postures() const = 0;
    /// Every pretty name by its index.
    virtual std::map<int, std::string> const& prettyNames() const = 0;
    /// The dialect of the text: "native" or "urdf".
    virtual std::string const& dialect() const = 0;

    /// @name What a robot that was read from a text knows beside its records
    /// A robot of another make need not know any of it.
    /// @{

    /// The records as the robot holds them; null when it only lists them.
    virtual Records const* records() const { return nullptr; }
    /// The text that it was read from; null without one.
    virtual SourceText const* source() const { return nullptr; }
    /// The warnings and notes of the text; null without one.
    virtual Diagnostics const* diagnostics() const { return nullptr; }
    /// Where the text states the part of the record whose element stands at `record` (see JointConfig::textOffset).
    virtual Statement locate(TextOffset record, Part part) const;
    /// @}

    /// Line, column and path of an offset in the text; line 0 without a text.
    Place place(TextOffset offset) const;
    /// The same of a part of a record, or of the nearest element around it that the text has.
    template <class Config>
    Place place(Config const& record, Part part = Part::whole) const
    {
        return place(locate(offsetOf(record, part), part).offset);
    }
    /// Where the text states the part of a record.
    template <class Config>
    Statement statement(Config const& record, Part part) const
    {
        return locate(offsetOf(record, part), part);
    }
};

/// The first actuator that is attached, by way of other actuators or at once, to itself; null when there is none, as in
/// all that readers accept.
VAROROBOTMODEL_API ActuatorConfig const* findActuatorCycle(Records const& records);

/// The names that have a joint value, in the order in which postures lay them out: chain by chain, each joint that has
/// a motor, and behind each joint the actuators that are attached to it in ascending order of their names. A name
/// stands as often as chains list it. Refers into the records.
VAROROBOTMODEL_API std::vector<std::string const*> angleNames(Records const& records);

}  // namespace Varo::Model

#endif
