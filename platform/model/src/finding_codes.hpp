#ifndef VARO_MODEL_FINDING_CODES_HPP
#define VARO_MODEL_FINDING_CODES_HPP

#include <string_view>

#include "varo/model/finding.hpp"

/// Every kind of finding: its stable code, how grave it is, and what it means. The table in the documentation is made
/// of these lines.
namespace Varo::Model {

struct FindingCode {
    std::string_view name;  ///< lower-case words joined by hyphens
    Severity severity;
    std::string_view meaning;  ///< one sentence for the documentation
};

namespace codes {

inline constexpr FindingCode tooManyFindings{
    "too-many-findings", Severity::error,
    "There are more findings than are listed; it is as grave as the gravest of those left out."};

}  // namespace codes

}  // namespace Varo::Model

#endif
