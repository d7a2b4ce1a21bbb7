#ifndef VARO_MODEL_GENERATE_FINDING_CELLS_HPP
#define VARO_MODEL_GENERATE_FINDING_CELLS_HPP

#include <string>

#include "varo/model/finding.hpp"

namespace Varo::Model {

/// The cells of a row that say what kind of finding it is: code, severity and meaning.
inline std::string cellsOf(FindingCode const& finding)
{
    constexpr std::string_view severities[] = {"note", "warning", "error"};
    return "| `" + std::string(finding.name) + "` | " + std::string(severities[static_cast<int>(finding.severity)]) +
           " | " + std::string(finding.meaning) + " |";
}

}  // namespace Varo::Model

#endif
