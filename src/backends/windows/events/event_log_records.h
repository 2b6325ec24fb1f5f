#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

/// An event log that is read from its oldest record on.
class EventLogRecords {
public:
    virtual ~EventLogRecords() = default;

    /// How many records it has now. Raises 70, 57.
    virtual std::uint32_t count() const = 0;

    /// The next records, one behind the other as `parseEventRecord` takes them; none at the end.
    /// They hold until the next call. Raises 70, 57.
    virtual std::string_view next() = 0;
};

/// Opens an event log by name, without regard to case.
using EventLogOpener = std::function<std::unique_ptr<EventLogRecords>(const std::string&)>;

/// One of the machine itself. Raises 53 for a name that the machine knows no event log by, 70, 57.
std::unique_ptr<EventLogRecords> openEventLog(const std::string& name);
