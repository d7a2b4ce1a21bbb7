#ifndef VARO_MODEL_ROBOT_ROBOT_RECORD_HPP
#define VARO_MODEL_ROBOT_ROBOT_RECORD_HPP

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "range.hpp"
#include "varo/model/robot.hpp"

namespace Varo::Model {

/// Where a dialect writes a part of a record: in which child of the record's element, and in which attribute of that.
struct PartPlace {
    Part part;
    std::string_view attribute;  ///< empty when the part is an element
    std::string_view child = {};  ///< a path of names, as "inertial/mass" or "box|sphere" for either; empty for the
                                  ///< record's own element
    std::string_view element = {};  ///< which kind of element the row is for; empty for any
    std::string_view childName = {};  ///< the name that the child must have, where there are many of its kind
};

/// Makes the tables ready for look-ups and listings, once all records are there.
void completeTables(Records& records);

/// The robot that readers hand out.
class RobotRecord final : public Robot {
public:
    /// `diagnostics` is the sink of the reading; `parts` says where the dialect writes what.
    RobotRecord(Records records, std::shared_ptr<SourceText const> source, Diagnostics diagnostics,
                Range<PartPlace> parts);

    std::string const& name() const override { return _records.name; }
    std::string prettyName(int index) const override;
    std::string const& version() const override { return _records.version; }
    void listActuators(std::vector<std::string>& names, ActuatorTable& actuators,
                       SubActuatorTable& subActuators) const override;
    void listChains(std::vector<std::string>& names, ChainTable& chains) const override;
    void listJoints(std::string& robotName, JointConfig& root, JointTable& joints, std::vector<std::string>& names,
                    std::vector<std::string>& reflectionForced) const override;
    void listSensors(std::vector<std::string>& names, SensorTable& sensors) const override;
    void listWheels(std::vector<std::string>& names, WheelTable& wheels) const override;
    std::vector<PostureConfig> const& postures() const override { return _records.postures; }
    std::map<int, std::string> const& prettyNames() const override { return _records.prettyNames; }
    std::string const& dialect() const override { return _records.dialect; }
    Records const* records() const override { return &_records; }
    SourceText const* source() const override { return _source.get(); }
    Diagnostics const* diagnostics() const override { return &_diagnostics; }
    Statement locate(TextOffset record, Part part) const override;

private:
    Records _records;
    std::shared_ptr<SourceText const> _source;
    Diagnostics _diagnostics;
    Range<PartPlace> _parts;
};

}  // namespace Varo::Model

#endif
