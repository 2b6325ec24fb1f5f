#pragma once

#include "backends/site/events/event_log_csv.h"
#include "platform/event_log_exporter.h"

#include <string>

class SitePaths;

/// Writes the event logs of a site as comma-separated text.
class SiteEventLogExporter final : public EventLogExporter {
public:
    /// `paths` maps targets, has the site's folder with the event logs in it, and outlives this.
    explicit SiteEventLogExporter(const SitePaths& paths);

    /// Who reads what is exported from now on; anybody unless it is said.
    void writeFor(CsvReader reader) { reader_ = reader; }

    /// The target appears when it is whole. `flags` mean nothing here.
    void exportEventLog(const std::string& logName, const std::string& target, int flags) override;

private:
    const SitePaths& paths_;
    CsvReader reader_ = CsvReader::any;
};
