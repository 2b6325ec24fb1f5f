#include "hosts/viewer/table/cell_text.h"

namespace viewer {

QString cellText(const ShownRow& row, RowColumn column)
{
    switch (column) {
    case RowColumn::time:
        return {};
    case RowColumn::process:
        return row.belongs ? QString() : row.process;
    case RowColumn::source:
        return row.source;
    case RowColumn::component:
        return row.component;
    case RowColumn::level:
        return row.hasForm ? QString::number(row.level) : QString();
    case RowColumn::thread:
        return row.thread;
    case RowColumn::port:
        return row.port;
    case RowColumn::callId:
        return row.callId;
    case RowColumn::number:
        return row.hasForm ? QString::number(row.traceNumber) : QString();
    case RowColumn::trace:
        return row.trace;
    case RowColumn::file:
        return row.file;
    case RowColumn::line:
        return QString::number(row.index.line);
    }
    return {};
}

} // namespace viewer
