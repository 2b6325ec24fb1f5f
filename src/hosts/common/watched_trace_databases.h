#pragma once

#include "platform/trace_database.h"

#include <memory>
#include <string>

class GatherReport;

/// Trace databases that tell a report which rows of "tblTraces" were begun and not stored. What
/// they do and raise is what the engine behind them does.
class WatchedTraceDatabases final : public TraceDatabaseEngine {
public:
    /// `engine` and `report` outlive it, and the databases that it opened.
    WatchedTraceDatabases(TraceDatabaseEngine& engine, GatherReport& report)
        : engine_(engine), report_(report)
    {}

    std::unique_ptr<TraceDatabase> openDatabase(const std::string& path) override;

private:
    TraceDatabaseEngine& engine_;
    GatherReport& report_;
};
