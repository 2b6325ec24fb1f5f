#pragma once

#include "hosts/viewer/document/shown_row.h"
#include "hosts/viewer/table/row_column.h"

namespace viewer {

/// The text of a row in a column, but for its time, which is told in several forms; the empty text
/// for that, and where there is none.
QString cellText(const ShownRow& row, RowColumn column);

} // namespace viewer
