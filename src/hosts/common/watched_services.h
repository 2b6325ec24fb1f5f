#pragma once

#include "hosts/common/gather/gather_report.h"
#include "hosts/common/tool_log_guard.h"
#include "hosts/common/watched_files.h"
#include "hosts/common/watched_registry.h"
#include "hosts/common/watched_trace_databases.h"
#include "platform/platform.h"

/// The services of a tool whose host wants to know what the tool goes on after without a word: logs
/// that it can't see, rows that it can't store, a log of its own that it can't write, values that
/// the registry does not take.
class WatchedServices {
public:
    /// What `services` refers to outlives this.
    explicit WatchedServices(const Platform& services);

    WatchedServices(const WatchedServices&) = delete;
    WatchedServices& operator=(const WatchedServices&) = delete;

    Platform& platform() { return platform_; }
    GatherReport& report() { return report_; }
    WatchedRegistry& registry() { return registry_; }
    ToolLogGuard& toolLog() { return toolLog_; }

private:
    GatherReport report_;
    ToolLogGuard toolLog_;
    WatchedFiles files_;
    WatchedRegistry registry_;
    WatchedTraceDatabases traceDatabases_;
    Platform platform_;
};
