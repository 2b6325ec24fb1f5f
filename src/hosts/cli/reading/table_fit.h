#pragma once

#include "hosts/cli/reading/row_cells.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace cli {

/// What is known of a table's column before its rows are shown.
struct KnownColumn {
    RowColumn column;
    std::string header;    ///< in UTF-8
    std::size_t width = 0; ///< of its widest cell or more, as a terminal shows it
    /// What all rows have here, which may be the empty text; unset where they differ, and where
    /// some are not known yet.
    std::optional<std::string> inAllRows;
};

/// A table that leaves its traces room.
struct FittedTable {
    struct Column {
        RowColumn column;
        std::string header; ///< no wider than the column
        std::size_t width;
        bool cut = false; ///< whether longer cells are cut to it
    };
    std::vector<Column> columns;
    bool daysApart = false; ///< whether a day stands on a line of its own, and not in each moment
    std::vector<std::string> notes; ///< lines that say what all rows have and what was left out
};

/// Makes room for traces in a terminal of so many columns. What tells least goes first, and no more
/// than is needed: empty columns, long headers of numbers, the day of each moment, what is
/// the same in all rows, threads, trace numbers and sources, the ends of long cells, and at last
/// ports and call ids. A table without traces stays as it is.
FittedTable fitTable(std::vector<KnownColumn> columns, std::size_t width);

/// What stands between two columns of a table.
inline constexpr std::size_t gapOfColumns = 2;

/// The beginning of a text of UTF-8 without control characters that so many columns of a terminal
/// show.
std::size_t bytesInWidth(std::string_view text, std::size_t width);

} // namespace cli
