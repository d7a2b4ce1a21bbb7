#ifndef VARO_MODEL_LINT_HPP
#define VARO_MODEL_LINT_HPP

#include <string>
#include <string_view>
#include <vector>

#include "varo/export.hpp"
#include "varo/model/finding.hpp"
#include "varo/model/robot.hpp"

/// What a description says that reads well and cannot be true, or is hardly meant: bodies that no matter gives, limits
/// that a start value breaks, sides that do not mirror. Pure functions: thread-safe, nothing is kept between calls.
namespace Varo::Model {

/// How far values may miss what they should be.
struct LintTolerances {
    double mass = 1e-3;  ///< part of the greater mass
    double centerOfMass = 1e-4;  ///< m
    double inertia = 1e-3;  ///< part of the greatest entry of the matrix
    double limit = 1e-4;  ///< rad (m for prismatic joints)
};

/// A rule, for who lists or explains them.
struct LintRule {
    FindingCode code;  ///< of all its findings
    std::string_view subject;  ///< what it looks at: "joints", say
    std::string_view tolerance;  ///< what it goes by, as the documentation calls it; empty for none
};

/// Which rules look at a robot, and how strictly.
struct LintOptions {
    LintTolerances tolerances;  ///< within which two sides are alike
    std::vector<std::string> only;  ///< codes of the rules to apply; all when empty
    std::vector<std::string> without;  ///< codes of rules to leave out, from those or from all
};

/// All rules, in the order of the documentation.
VAROROBOTMODEL_API std::vector<LintRule> lintRules();

/// What the rules find in a robot, which is what its reader has not told already; in the order of the places in its
/// text. Takes time that grows linearly with the robot. Throws std::invalid_argument for a code that no rule has, and
/// nothing else but std::bad_alloc.
VAROROBOTMODEL_API Findings lint(Robot const& robot, LintOptions const& options = {});

}  // namespace Varo::Model

#endif
