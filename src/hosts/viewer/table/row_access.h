#pragma once

namespace viewer {

class RowTable;

/// Lets screen readers have the rows of a table, and the current one as its value: the texts of the
/// columns on show, from the left. Of a view that is none of Qt's own they would have nothing.
void makeRowsSpeak(RowTable& table);

/// Tells them that the current row is another one, or says something else; does nothing where it
/// is as it was.
void tellCurrentRow(RowTable& table);

} // namespace viewer
