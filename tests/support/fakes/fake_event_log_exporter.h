#pragma once

#include "platform/event_log_exporter.h"

#include <map>
#include <string>
#include <vector>

class FileSystem;

/// Writes the event logs that a test describes. Application, Security and System are there from
/// the start, with no records.
class FakeEventLogExporter final : public EventLogExporter {
public:
    struct Export {
        std::string logName;
        std::string target;
        int flags = 0;

        friend bool operator==(const Export&, const Export&) = default;
    };

    explicit FakeEventLogExporter(FileSystem& files);

    /// An event log whose records are the comma-separated lines `records`.
    FakeEventLogExporter& with(const std::string& logName, const std::string& records);

    /// From now on every export raises `number`; 0 ends that.
    FakeEventLogExporter& failing(int number);

    const std::vector<Export>& exports() const { return exports_; }

    void exportEventLog(const std::string& logName, const std::string& target, int flags) override;

private:
    FileSystem& files_;
    std::map<std::string, std::string> logs_;
    int fault_ = 0;
    std::vector<Export> exports_;
};
