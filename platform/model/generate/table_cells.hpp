#ifndef VARO_MODEL_GENERATE_TABLE_CELLS_HPP
#define VARO_MODEL_GENERATE_TABLE_CELLS_HPP

#include <string>
#include <string_view>

#include "varo/model/finding.hpp"

namespace Varo::Model {

/// In the type of code; nothing for an empty text.
inline std::string code(std::string_view text)
{
    return text.empty() ? "" : "`" + std::string(text) + "`";
}

/// The cells of a row that say what kind of finding it is: code, severity and meaning.
inline std::string cellsOf(FindingCode const& finding)
{
    constexpr std::string_view severities[] = {"note", "warning", "error"};
    return "| " + code(finding.name) + " | " + std::string(severities[static_cast<int>(finding.severity)]) + " | " +
           std::string(finding.meaning) + " |";
}

}  // namespace Varo::Model

#endif
