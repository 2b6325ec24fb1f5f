#include "hosts/viewer/table/row_column.h"

namespace viewer {

const std::array<RowColumnInfo, rowColumns>& RowColumns::all()
{
    using C = RowColumn;
    static const std::array<RowColumnInfo, rowColumns> infos = {{
        {C::time, "time", QT_TR_NOOP("Time"), 23, true, false},
        {C::process, "process", QT_TR_NOOP("Process"), 12, true, false},
        {C::source, "source", QT_TR_NOOP("Source"), 12, true, false},
        {C::component, "component", QT_TR_NOOP("Component"), 16, true, false},
        {C::level, "level", QT_TR_NOOP("Level"), 7, true, false},
        {C::thread, "thread", QT_TR_NOOP("Thread"), 8, false, false},
        {C::port, "port", QT_TR_NOOP("Port"), 7, true, false},
        {C::callId, "callId", QT_TR_NOOP("Call"), 16, true, false},
        {C::number, "traceNumber", QT_TR_NOOP("Number"), 8, false, true},
        {C::trace, "trace", QT_TR_NOOP("Trace"), 80, true, false},
        {C::file, "file", QT_TR_NOOP("File"), 30, false, false},
        {C::line, "line", QT_TR_NOOP("Line"), 9, false, true},
    }};
    return infos;
}

const RowColumnInfo& RowColumns::info(RowColumn column)
{
    return all()[static_cast<std::size_t>(column)];
}

QString RowColumns::title(RowColumn column)
{
    return tr(info(column).title);
}

} // namespace viewer
