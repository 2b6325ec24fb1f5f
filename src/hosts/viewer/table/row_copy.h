#pragma once

#include "hosts/viewer/table/row_model.h"

#include <QString>

#include <cstddef>
#include <vector>

namespace viewer {

/// How rows are written for other programs.
enum class CopyForm {
    shown, ///< a line each, cells parted by tabs
    csv,   ///< with the headers before them; no cell is a formula to a spreadsheet
    raw,   ///< the lines as they stand in their files; as shown where there are none
};

/// The most rows that go to the clipboard.
inline constexpr std::size_t mostCopied = 100'000;

/// The row at a place as one line: its cells parted by tabs, or as CSV.
QString rowLine(const RowModel& rows, std::size_t place, const std::vector<RowColumn>& columns,
                bool csv);

/// The rows at places, in the columns that are given.
QString copiedRows(const RowModel& rows, const std::vector<std::size_t>& places,
                   const std::vector<RowColumn>& columns, CopyForm form);

} // namespace viewer
