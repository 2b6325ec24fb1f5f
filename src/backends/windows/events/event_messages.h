#pragma once

#include "backends/windows/events/event_record.h"

#include <map>
#include <string>
#include <vector>
#include <windows.h>

/// The sentences of an event log's sources, out of the message files that they have registered.
class EventMessages {
public:
    /// `logName` is that of the log.
    explicit EventMessages(std::string logName);
    ~EventMessages();
    EventMessages(const EventMessages&) = delete;
    EventMessages& operator=(const EventMessages&) = delete;

    /// What an event says, with its texts in their places; the texts alone, joined by ", ", where
    /// its source has no sentence for it.
    std::string messageOf(const EventRecord& event);

private:
    const std::vector<HMODULE>& filesOf(const std::string& source);

    std::string logName_;
    std::map<std::string, std::vector<HMODULE>> files_; ///< by source
};
