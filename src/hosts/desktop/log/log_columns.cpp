#include "hosts/desktop/log/log_columns.h"

#include "console/list_view.h"

namespace desktop {

LogColumns LogColumns::of(const ListView& list)
{
    constexpr int extendedCount = 10;
    LogColumns columns;
    if (list.columnCount() < extendedCount) return columns;
    columns.thread = 7;
    columns.port = 8;
    columns.callId = 9;
    columns.trace = 10;
    return columns;
}

} // namespace desktop
