#pragma once

#include "platform/time_zone.h"

#include <functional>
#include <windows.h>

/// Fills a time zone record and gives what is in force, as the system's own call does.
using ZoneReading = std::function<DWORD(TIME_ZONE_INFORMATION&)>;

/// The time zone of the machine itself, by the system's own rules.
class WindowsTimeZone final : public TimeZoneService {
public:
    /// The zone that the machine is set to.
    WindowsTimeZone();

    /// One that is read otherwise.
    explicit WindowsTimeZone(ZoneReading read);

    /// Leaves an empty record where the system gives none.
    TimeZoneState read(TimeZoneInformation& zone) const override;
    SystemTime toLocal(const TimeZoneInformation& zone, const SystemTime& universal) const override;

private:
    ZoneReading read_;
};
