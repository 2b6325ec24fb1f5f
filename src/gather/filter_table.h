#pragma once

class TraceRecordset;
struct ToolContext;

namespace mdlLogs {

/// Adds a row to "tblUniqueFilters" for each entry of `g_dictUniqueFilters`, which stays as it is.
/// A comma in a value shifts the columns behind it. The eleventh error ends the writing. Raises
/// nothing.
void saveUniqueFilters(ToolContext& tool, TraceRecordset& recordset);

} // namespace mdlLogs
