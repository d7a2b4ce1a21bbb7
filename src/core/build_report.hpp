#ifndef VARO_CORE_BUILD_REPORT_HPP
#define VARO_CORE_BUILD_REPORT_HPP

#include <optional>
#include <string>

#include "core/build_codes.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/records.hpp"
#include "varo/model/robot.hpp"

namespace Sim {

/// What a failing step was about.
enum class Subject { root, joint, actuator, wheel, sensor };

/// Collects what the building of a model notices, each at the record at fault.
class BuildReport {
public:
    /// `robot` and `records` must outlive the report.
    BuildReport(Varo::Model::Robot const& robot, Varo::Model::Records const& records) : _robot(robot), _records(records)
    {}

    /// Something of the description is not in the model.
    void leaveOut(Varo::Model::TextOffset offset, Varo::Model::FindingCode const& code, std::string message);

    /// Ends the load in a BuildError of that text. Its findings name the cause, which may lie with another record than
    /// the one of that name.
    [[noreturn]] void fail(Subject subject, std::string const& name, std::string const& what);

    /// Those of the reader and of the building, in the order of their places.
    Varo::Model::Findings findings() const;

private:
    Varo::Model::Diagnostics& diagnostics();
    void explain(Subject subject, std::string const& name, std::string const& what);
    void explainJoint(std::string const& name);
    void explainUnlistedJoint(Varo::Model::ChainConfig const& chain, std::string const& name);
    void explainChain(Varo::Model::ChainConfig const& chain);
    void explainSensor(Varo::Model::SensorConfig const& sensor);
    void explainWheel(Varo::Model::WheelConfig const& wheel, std::string const& what);
    void blame(Varo::Model::TextOffset offset, std::string message, std::string hint = {});

    Varo::Model::Robot const& _robot;
    Varo::Model::Records const& _records;
    std::optional<Varo::Model::Diagnostics> _diagnostics;  ///< none while there is nothing to add to the reader's
};

}  // namespace Sim

#endif
