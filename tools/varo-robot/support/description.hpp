#ifndef TOOL_SUPPORT_DESCRIPTION_HPP
#define TOOL_SUPPORT_DESCRIPTION_HPP

#include <exception>
#include <string>

#include "sim/model.hpp"
#include "varo/model/finding.hpp"
#include "varo/model/model_utils.hpp"

namespace Tool {

/// The codes of what the tool itself has to say of a file.
namespace codes {
inline constexpr char emptyFile[] = "empty-file";
// What building a model adds to the findings of the reader.
inline constexpr char modelNotBuilt[] = "model-not-built";
inline constexpr char modelIncomplete[] = "model-incomplete";
inline constexpr char sensorWithoutClass[] = "sensor-without-class";
inline constexpr char unwritableFile[] = "unwritable-file";
inline constexpr char nameNotFound[] = "name-not-found";
inline constexpr char cannotBePosed[] = "cannot-be-posed";
}  // namespace codes

/// A description as it was read.
struct Description {
    std::string file;  ///< as messages name it
    Varo::Model::ModelUtils::Reading reading;
};

/// Reads the file, or standard input when it is "-". Never throws for what is in the way: that becomes a finding.
Description readDescription(std::string const& file, Varo::Model::ModelUtils::ReadOptions const& options = {});

/// Thrown when a command cannot do its work: the findings say why.
class Refused : public std::exception {
public:
    Refused(std::string file, Varo::Model::Findings findings) : _file(std::move(file)), _findings(std::move(findings))
    {}

    char const* what() const noexcept override { return "The description was refused."; }
    std::string const& file() const { return _file; }
    Varo::Model::Findings const& findings() const { return _findings; }

private:
    std::string _file;
    Varo::Model::Findings _findings;
};

/// A finding about a whole file, or about what was asked of it.
Varo::Model::Finding fileFinding(Varo::Model::Severity severity, std::string code, std::string message,
                                 std::string hint = {});

/// As readDescription, for commands that need a description without errors. Throws Refused.
Description readAccepted(std::string const& file, Varo::Model::ModelUtils::ReadOptions const& options = {});

/// A robot and the file that it is from, as messages name that.
struct Robot {
    std::string file;
    Sim::Model model;

    Varo::Model::Robot const& records() const { return model.robot(); }
};

/// What most commands start from: says on standard error what the model leaves out. Throws Refused.
Robot loadRobot(std::string const& file, Varo::Model::ModelUtils::ReadOptions const& options = {});

}  // namespace Tool

#endif
