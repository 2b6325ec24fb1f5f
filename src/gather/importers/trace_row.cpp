#include "gather/importers/trace_row.h"

#include "core/error_trap.h"
#include "logreader/diagnostic_line.h"
#include "runtime/numbers.h"

TraceRow::TraceRow(ToolContext& tool, ErrorTrap& step, TraceRecordset& recordset)
    : tool_(tool), step_(step), recordset_(recordset)
{}

void TraceRow::addDiagnostic(const std::string& date, const std::string& process,
                             const DiagnosticLine& record)
{
    begin(date, process, record);
    step_([&] { port_->setText(record.port); });
    step_([&] { trace_->setText(record.trace); });
    step_([&] { callId_->setText(record.callId); });
    step_([&] { highlight_->setNumber(0); });
    setIndex(process, record);
    registerFilter();
    step_([&] { recordset_.update(); });
}

void TraceRow::addData(const std::string& date, const std::string& process,
                       const DiagnosticLine& record)
{
    begin(date, process, record);
    step_([&] { trace_->setText(record.trace); });
    setIndex(process, record);
    registerFilter();
    step_([&] { recordset_.update(); });
}

void TraceRow::begin(const std::string& date, const std::string& process,
                     const DiagnosticLine& record)
{
    step_([&] { recordset_.addNew(); });
    step_([&] { date_->setText(date); });
    step_([&] { process_->setUtf8(process); });
    step_([&] { source_->setText(record.source); });
    step_([&] { traceNumber_->setNumber(record.traceNumber); });
    step_([&] { component_->setText(record.component); });
    step_([&] { traceLevel_->setNumber(record.traceLevel); });
}

void TraceRow::setIndex(const std::string& process, const DiagnosticLine& record)
{
    const std::string level = numberText(std::int64_t{record.traceLevel});
    step_([&] {
        index_ = recordset_.utf8Of(record.component);
        index_.append("_").append(process).append("_").append(level).append("_");
        index_.append(recordset_.utf8Of(record.source));
        qrvIndex_->setUtf8(index_);
    });
}

/// The first row with a key decides the value. A row whose key can't be read back counts to the
/// row before it.
void TraceRow::registerFilter()
{
    step_([&] { filterKey_.assign(qrvIndex_->text()); });
    if (tool_.g_dictUniqueFilters.exists(filterKey_)) return;
    step_([&] { tool_.g_dictUniqueFilters.add(filterKey_, filterValue()); });
}

std::string TraceRow::filterValue()
{
    std::string value;
    for (RowField* field : {&process_, &source_, &component_, &traceLevel_}) {
        if (field != &process_) value.append(",");
        value.append((*field)->text());
    }
    return value;
}
