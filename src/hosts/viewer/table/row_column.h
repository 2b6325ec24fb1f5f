#pragma once

#include <QCoreApplication>
#include <QString>

#include <array>

namespace viewer {

/// The columns of the table, in the order in which they stand there at first.
enum class RowColumn {
    time,
    process,
    source,
    component,
    level,
    thread,
    port,
    callId,
    number,
    trace,
    file,
    line,
};
inline constexpr int rowColumns = 12;

/// What the table and its menus need to know of a column.
struct RowColumnInfo {
    RowColumn column;
    const char* key;   ///< in settings and files
    const char* title; ///< translated where it is shown
    int characters;    ///< its first width
    bool shown;        ///< at first
    bool right;        ///< numbers stand at the right
};

class RowColumns {
    Q_DECLARE_TR_FUNCTIONS(RowColumns)

public:
    static const std::array<RowColumnInfo, rowColumns>& all();
    static const RowColumnInfo& info(RowColumn column);
    static QString title(RowColumn column);
};

/// How the column of times tells them.
enum class TimeForm {
    clock,
    sinceRowBefore, ///< the difference to the row above
    sinceMark,      ///< the difference to a row that a person marked
};

} // namespace viewer
