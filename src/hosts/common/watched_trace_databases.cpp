#include "hosts/common/watched_trace_databases.h"

#include "hosts/common/gather/gather_report.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <utility>

namespace {

constexpr std::string_view tableOfRows = "tblTraces";

class WatchedRecordset final : public TraceRecordset {
public:
    WatchedRecordset(std::unique_ptr<TraceRecordset> rows, GatherReport& report)
        : rows_(std::move(rows)), report_(report)
    {}

    std::string utf8Of(std::string_view text) const override { return rows_->utf8Of(text); }

    TraceField& field(std::string_view name) override { return rows_->field(name); }

    void addNew() override
    {
        report_.rowBegun();
        noting([&] { rows_->addNew(); });
    }

    void update() override
    {
        const std::string process = processOfRow();
        noting([&] { rows_->update(); });
        report_.rowStored(process);
    }

    void close() override { rows_->close(); }

private:
    template <typename Statement>
    void noting(Statement&& statement)
    {
        try {
            statement();
        } catch (const RunTimeError& error) {
            report_.rowLost(error.description());
            throw;
        }
    }

    /// As it was set; the empty text where no row is at hand.
    std::string processOfRow()
    try {
        if (process_ == nullptr) process_ = &rows_->field("Process");
        return std::string(process_->text());
    } catch (const RunTimeError&) {
        return {};
    }

    std::unique_ptr<TraceRecordset> rows_;
    GatherReport& report_;
    TraceField* process_ = nullptr;
};

class WatchedDatabase final : public TraceDatabase {
public:
    WatchedDatabase(std::unique_ptr<TraceDatabase> database, GatherReport& report)
        : database_(std::move(database)), report_(report)
    {}

    std::unique_ptr<TraceRecordset> openRecordset(std::string_view table) override
    {
        auto rows = database_->openRecordset(table);
        if (!equalIgnoringCase(table, tableOfRows)) return rows;
        return std::make_unique<WatchedRecordset>(std::move(rows), report_);
    }

    void close() override { database_->close(); }

private:
    std::unique_ptr<TraceDatabase> database_;
    GatherReport& report_;
};

} // namespace

std::unique_ptr<TraceDatabase> WatchedTraceDatabases::openDatabase(const std::string& path)
{
    return std::make_unique<WatchedDatabase>(engine_.openDatabase(path), report_);
}
