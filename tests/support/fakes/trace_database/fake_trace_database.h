#pragma once

#include "platform/trace_database.h"
#include "support/fakes/trace_database/fake_trace_tables.h"

#include <memory>
#include <string>
#include <vector>

/// A trace database in memory with the three tables of a gather.
class FakeTraceDatabaseEngine final : public TraceDatabaseEngine {
public:
    FakeTraceDatabaseEngine();

    /// A path that can be opened. Without any, every path can.
    FakeTraceDatabaseEngine& with(const std::string& path);

    /// A path whose file is no database.
    FakeTraceDatabaseEngine& damaged(const std::string& path);

    /// The `nth` call from now on whose name is `call` raises `number`. Calls are "openDatabase",
    /// "openRecordset tblTraces", "addNew tblTraces", "set tblTraces.Source", "update tblTraces",
    /// "close tblTraces" and "close".
    FakeTraceDatabaseEngine& failing(const std::string& call, int nth, int number);

    /// Rows of a table, oldest first. They stay when the database is closed.
    const std::vector<FakeTraceRow>& rows(const std::string& table) const;

    const std::vector<std::string>& calls() const { return state_->calls; }

    /// Paths that were opened, oldest first.
    const std::vector<std::string>& opened() const { return opened_; }

    std::unique_ptr<TraceDatabase> openDatabase(const std::string& path) override;

private:
    std::shared_ptr<FakeTraceState> state_;
    std::vector<std::string> paths_;
    std::vector<std::string> damaged_;
    std::vector<std::string> opened_;
};
