#include "platform/trace_rows.h"

#include "runtime/text.h"

#include <algorithm>

std::size_t TraceTable::find(std::string_view column) const
{
    const auto found = std::find_if(columns.begin(), columns.end(), [&](const auto& candidate) {
        return equalIgnoringCase(candidate, column);
    });
    return found == columns.end() ? noColumn : static_cast<std::size_t>(found - columns.begin());
}

const TraceTable* TraceTables::find(std::string_view table) const
{
    const auto found = std::find_if(tables().begin(), tables().end(), [&](const auto& candidate) {
        return equalIgnoringCase(candidate.name, table);
    });
    return found == tables().end() ? nullptr : &*found;
}
