#pragma once

#include "hosts/cli/reading/row_cells.h"

#include <cstdint>

namespace cli {

enum class Severity { none, error, warning };

/// What the level of a trace tells.
inline Severity severityOfLevel(std::int16_t level)
{
    if (level == 0) return Severity::error;
    return level == 1 ? Severity::warning : Severity::none;
}

/// The same of a row; the level of a line that could not be read means nothing.
inline Severity severityOf(const RowCells& row)
{
    return row.component.empty() ? Severity::none : severityOfLevel(row.level);
}

} // namespace cli
