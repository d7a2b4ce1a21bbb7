#ifndef TOOL_RULES_RULES_HPP
#define TOOL_RULES_RULES_HPP

#include <string>
#include <vector>

#include "sim/model.hpp"
#include "varo/model/finding.hpp"
#include "varo/model/robot.hpp"

/// What `check` looks for beyond the reader's own findings: data that reads well and cannot be true.
namespace Tool::Rules {

/// How far values may miss what they should be.
struct Tolerances {
    double mass = 1e-3;  ///< part of the greater mass
    double centerOfMass = 1e-4;  ///< m
    double inertia = 1e-3;  ///< part of the greatest entry of the matrix
    double limit = 1e-4;  ///< rad (m for prismatic joints)
};

/// The findings of the rules that look at records alone, about an accepted description. All are warnings.
Varo::Model::Findings apply(Varo::Model::Robot const& robot, Tolerances const& tolerances);

/// Those of the rules that compare poses.
Varo::Model::Findings applyToPoses(Sim::Model const& model, Tolerances const& tolerances);

/// All that is to say of a model: the findings of reading and building it, and those of all rules, by their places.
Varo::Model::Findings findingsOf(Sim::Model const& model, Tolerances const& tolerances);

/// By their places in the text.
void sort(Varo::Model::Findings& findings);

/// The codes that these findings have.
std::vector<std::string> codes();

}  // namespace Tool::Rules

#endif
