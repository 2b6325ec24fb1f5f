#pragma once

#include "hosts/common/gather/gather_report.h"
#include "hosts/common/tool_log_guard.h"
#include "hosts/common/watched_files.h"
#include "hosts/common/watched_trace_databases.h"
#include "platform/platform.h"

/// The services of a tool whose host wants to know what the tool goes on after without a word: logs
/// that it can't see, rows that it can't store, a log of its own that it can't write.
class WatchedServices {
public:
    /// `services` and what they refer to outlive this.
    explicit WatchedServices(const Platform& services);

    WatchedServices(const WatchedServices&) = delete;
    WatchedServices& operator=(const WatchedServices&) = delete;

    Platform& platform() { return platform_; }
    GatherReport& report() { return report_; }
    ToolLogGuard& toolLog() { return toolLog_; }

private:
    GatherReport report_;
    ToolLogGuard toolLog_;
    WatchedFiles files_;
    WatchedTraceDatabases traceDatabases_;
    Platform platform_;
};
