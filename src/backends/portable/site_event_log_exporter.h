#pragma once

#include "platform/event_log_exporter.h"

#include <string>

class SitePaths;

/// Writes the event logs of a site as comma-separated text.
class SiteEventLogExporter final : public EventLogExporter {
public:
    /// `eventLogs` is the machine's path of the folder of event logs; `paths` maps targets and
    /// outlives this.
    SiteEventLogExporter(std::string eventLogs, const SitePaths& paths);

    /// The target appears when it is whole. `flags` mean nothing here.
    void exportEventLog(const std::string& logName, const std::string& target, int flags) override;

private:
    std::string eventLogs_;
    const SitePaths& paths_;
};
