#pragma once

#include "platform/event_reporter.h"
#include "system/root_folder.h"
#include "tracelines/trace_line_format.h"

#include <string>
#include <string_view>
#include <vector>

class Clock;

/// The event reporter of a site: appends events to the event log `Application`, and formats raw
/// lines of the form that the site's server writes.
class SiteEventReporter final : public EventReporter {
public:
    /// The folder of event logs is in the site's, and made when it is missing; the events come from
    /// `computer`. `clock` outlives this.
    SiteEventReporter(RootFolder site, std::string computer, LogFields fields, const Clock& clock);

    void startUp() override {}
    void completeStartUp() override {}
    std::int32_t registerTool(const std::string& moduleName) override;

    /// One object in one write, so that no two programs' events mix; never through a link to
    /// another file. Raises 70, 61, 57.
    void report(const std::string& source, std::int32_t handle, int type, std::int32_t id,
                const std::vector<std::string>& inserts) override;

    void formatTraceLine(std::string_view rawLine, std::string& formatted) override;
    std::string_view timeOfSoundLine(std::string_view rawLine) const override;

private:
    RootFolder site_;
    std::string computer_;
    LogFields fields_;
    const Clock& clock_;
    std::int32_t lastHandle_ = 0;
};
