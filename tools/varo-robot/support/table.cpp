#include "support/table.hpp"

#include <algorithm>
#include <iostream>

#include <unistd.h>

#include "support/terminal.hpp"
#include "support/visible_text.hpp"

namespace Tool {

void printTable(std::vector<Row> rows)
{
    for (Row& row : rows) {
        for (std::string& cell : row) {
            cell = visible(cell);
        }
    }
    std::vector<std::size_t> widths(rows.front().size());
    for (Row const& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], columnsOf(row[i]));
        }
    }
    Palette const palette(STDOUT_FILENO);
    for (Row const& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            bool const isLast = i + 1 == row.size();
            line += row[i] + std::string(isLast ? 0 : widths[i] - columnsOf(row[i]) + 2, ' ');
        }
        std::cout << palette.paint(&row == &rows.front() ? Ink::heading : Ink::plain, line) << '\n';
    }
}

}  // namespace Tool
