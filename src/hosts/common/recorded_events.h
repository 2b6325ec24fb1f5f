#pragma once

#include "hosts/common/server_access.h"
#include "platform/event_reporter.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// An event reporter in front of another one, which notes the events that were taken: not every
/// server's event log can be read by who may write to it.
class RecordedEvents final : public EventReporter {
public:
    /// `reporter` outlives it.
    explicit RecordedEvents(EventReporter& reporter) : reporter_(reporter) {}

    /// Those reported so far, in their order.
    const std::vector<ReportedEvent>& events() const { return events_; }

    void startUp() override { reporter_.startUp(); }
    void completeStartUp() override { reporter_.completeStartUp(); }
    std::int32_t registerTool(const std::string& moduleName) override;
    void report(const std::string& source, std::int32_t handle, int type, std::int32_t id,
                const std::vector<std::string>& inserts) override;
    void formatTraceLine(std::string_view rawLine, std::string& formatted) override;
    std::string_view timeOfSoundLine(std::string_view rawLine) const override;

private:
    EventReporter& reporter_;
    std::vector<ReportedEvent> events_;
};
