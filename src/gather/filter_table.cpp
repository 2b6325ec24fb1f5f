#include "gather/filter_table.h"

#include "core/error_trap.h"
#include "platform/trace_database.h"
#include "runtime/text.h"

namespace {

/// A piece of a filter's value, counted from 0. Raises 9 when the value has fewer.
const std::string& piece(const std::vector<std::string>& pieces, std::size_t index)
{
    if (index >= pieces.size()) throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    return pieces[index];
}

} // namespace

void mdlLogs::saveUniqueFilters(ToolContext& tool, TraceRecordset& recordset)
{
    ErrorTrap step{tool, "mdlLogs", "saveUniqueFilters", countedTrap};
    std::vector<std::string> pieces;

    step.body([&] {
        step.enterProc();
        for (const std::string& key : tool.g_dictUniqueFilters.keys()) {
            step([&] { pieces = split(tool.g_dictUniqueFilters.item(key), ','); });
            step([&] { recordset.addNew(); });
            step([&] { recordset.field("qrvIndex").setUtf8(key); });
            step([&] { recordset.field("Process").setUtf8(piece(pieces, 0)); });
            step([&] { recordset.field("Source").setText(piece(pieces, 1)); });
            step([&] { recordset.field("Component").setText(piece(pieces, 2)); });
            step([&] { recordset.field("TraceLevel").setText(piece(pieces, 3)); });
            step([&] { recordset.update(); });
        }
        step.exitProc();
    });
}
