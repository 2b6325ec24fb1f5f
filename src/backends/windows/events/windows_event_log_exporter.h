#pragma once

#include "backends/common/event_csv.h"
#include "backends/windows/events/event_log_records.h"
#include "platform/event_log_exporter.h"

/// Writes the event logs of the machine itself as comma-separated text.
class WindowsEventLogExporter final : public EventLogExporter {
public:
    explicit WindowsEventLogExporter(EventLogOpener open = openEventLog);

    /// Who reads what is exported from now on; anybody unless it is said.
    void writeFor(CsvReader reader) { reader_ = reader; }

    /// The target appears when it is whole. `flags` mean nothing here.
    void exportEventLog(const std::string& logName, const std::string& target, int flags) override;

private:
    EventLogOpener open_;
    CsvReader reader_ = CsvReader::any;
};
