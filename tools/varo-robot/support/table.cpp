#include "support/table.hpp"

#include <algorithm>
#include <iostream>

#include <unistd.h>

#include "support/terminal.hpp"
#include "support/visible_text.hpp"

namespace Tool {

namespace {

using Widths = std::vector<std::size_t>;

constexpr std::size_t gap = 2;
constexpr std::size_t leastWidth = 4;

Widths widthsOf(std::vector<Row> const& rows)
{
    Widths widths(rows.front().size());
    for (Row const& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], columnsOf(row[i]));
        }
    }
    return widths;
}

/// Takes from the widest column until all fit.
Widths fitted(Widths widths, std::size_t total)
{
    std::size_t sum = gap * (widths.size() - 1);
    for (std::size_t const width : widths) {
        sum += width;
    }
    for (auto widest = widths.begin(); sum > total; --sum) {
        widest = std::max_element(widths.begin(), widths.end());
        if (*widest <= leastWidth) {
            break;
        }
        --*widest;
    }
    return widths;
}

}  // namespace

void printTable(std::vector<Row> rows, bool wide)
{
    for (Row& row : rows) {
        for (std::string& cell : row) {
            cell = visible(cell);
        }
    }
    Widths const widths = fitted(widthsOf(rows), wide ? unboundedWidth : outputWidth());
    Palette const palette(STDOUT_FILENO);
    for (Row const& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            bool const isLast = i + 1 == row.size();
            std::string const cell = shortened(row[i], widths[i]);
            line += cell + std::string(isLast ? 0 : widths[i] - columnsOf(cell) + gap, ' ');
        }
        std::cout << palette.paint(&row == &rows.front() ? Ink::heading : Ink::plain, line) << '\n';
    }
}

}  // namespace Tool
