#ifndef TOOL_SUPPORT_TABLE_HPP
#define TOOL_SUPPORT_TABLE_HPP

#include <string>
#include <vector>

namespace Tool {

using Row = std::vector<std::string>;

/// Prints rows of any text under each other on standard output, all columns but the last padded to one width. The first
/// row holds the titles. Where a terminal is narrower, the widest columns give way, unless the table is to be `wide`.
void printTable(std::vector<Row> rows, bool wide);

}  // namespace Tool

#endif
