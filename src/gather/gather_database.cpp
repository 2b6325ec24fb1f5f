#include "gather/gather_database.h"

#include "core/error_trap.h"
#include "gather/filter_table.h"
#include "gather/packaging.h"
#include "runtime/required_object.h"
#include "traces/macro_trace_catalogue.h"

namespace {

/// A table that could not be opened.
class MissingRecordset final : public TraceRecordset {
public:
    std::string utf8Of(std::string_view) const override { raise(); }
    TraceField& field(std::string_view) override { raise(); }
    void addNew() override { raise(); }
    void update() override { raise(); }
    void close() override { raise(); }

private:
    [[noreturn]] static void raise() { throw RunTimeError(runTimeErrors::objectVariableNotSet); }
};

} // namespace

GatherDatabase::GatherDatabase(ToolContext& tool, ErrorTrap& step)
    : tool_(tool), step_(step), traces_(std::make_unique<MissingRecordset>()),
      macroTraces_(std::make_unique<MissingRecordset>()),
      uniqueFilters_(std::make_unique<MissingRecordset>())
{}

GatherDatabase::~GatherDatabase() = default;

void GatherDatabase::open(const std::string& destination)
{
    step_([&] { tool_.g_strTraceDatabase = mdlLogs::createNewDB(tool_, destination); });
    step_(
        [&] { database_ = tool_.platform.traceDatabases.openDatabase(tool_.g_strTraceDatabase); });
    openTable(traces_, "tblTraces");
    openTable(macroTraces_, "tblMacroTraces");
    openTable(uniqueFilters_, "tblUniqueFilters");
    step_([&] { mdlTraces::storeMacroTraceFiles(tool_, *macroTraces_); });
}

void GatherDatabase::openTable(std::unique_ptr<TraceRecordset>& table, std::string_view name)
{
    step_([&] { table = required(database_).openRecordset(name); });
}

void GatherDatabase::finish()
{
    mdlLogs::saveUniqueFilters(tool_, *uniqueFilters_);
    step_([&] { uniqueFilters_->close(); });
    step_([&] { macroTraces_->close(); });
    step_([&] { traces_->close(); });
    step_([&] { required(database_).close(); });
}
