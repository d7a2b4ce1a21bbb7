#ifndef SIM_LOAD_ERROR_HPP
#define SIM_LOAD_ERROR_HPP

#include <stdexcept>
#include <string>
#include <utility>

#include "varo/export.hpp"
#include "varo/model/finding.hpp"

namespace Sim {

/// Thrown when a description that reads well lacks what the elements of a model need. Its findings say what is at
/// fault, and where in the text that stands.
class VAROROBOTMODEL_API BuildError : public std::runtime_error, public Varo::Model::WithFindings {
public:
    /// `findings` should hold an error.
    BuildError(std::string const& what, Varo::Model::Findings findings)
        : std::runtime_error(what), WithFindings(std::move(findings))
    {}
    /// Shares the findings.
    BuildError(BuildError const&) = default;
    /// Takes over the findings.
    BuildError(BuildError&&) = default;
    /// Shares the findings.
    BuildError& operator=(BuildError const&) = default;
    /// Takes over the findings.
    BuildError& operator=(BuildError&&) = default;
    ~BuildError() override;
};

/// Thrown when the posture "StandInit" gives an angle to a name that no chain leads to, or to a
/// joint without a motor. Its findings say which.
class VAROROBOTMODEL_API StartAngleError : public std::out_of_range, public Varo::Model::WithFindings {
public:
    /// `findings` should hold an error.
    StartAngleError(std::string const& what, Varo::Model::Findings findings)
        : std::out_of_range(what), WithFindings(std::move(findings))
    {}
    /// Shares the findings.
    StartAngleError(StartAngleError const&) = default;
    /// Takes over the findings.
    StartAngleError(StartAngleError&&) = default;
    /// Shares the findings.
    StartAngleError& operator=(StartAngleError const&) = default;
    /// Takes over the findings.
    StartAngleError& operator=(StartAngleError&&) = default;
    ~StartAngleError() override;
};

}  // namespace Sim

#endif
