#pragma once

#include "platform/event_reporter.h"
#include "tracelines/trace_line_format.h"

/// Reports events to the application log of the machine itself, and formats the known forms of raw
/// lines.
class WindowsEventReporter final : public EventReporter {
public:
    /// `fields` is the form of the lines that the server writes.
    explicit WindowsEventReporter(LogFields fields) : fields_(fields) {}

    void startUp() override {}
    void completeStartUp() override {}
    std::int32_t registerTool(const std::string& moduleName) override;

    /// A change of traces, whose type the system has no number for, is reported as information.
    void report(const std::string& source, std::int32_t handle, int type, std::int32_t id,
                const std::vector<std::string>& inserts) override;

    void formatTraceLine(std::string_view rawLine, std::string& formatted) override;
    std::string_view timeOfSoundLine(std::string_view rawLine) const override;

private:
    LogFields fields_;
    std::int32_t lastHandle_ = 0;
};
