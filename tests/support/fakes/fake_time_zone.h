#pragma once

#include "platform/time_zone.h"

/// A time zone that a test sets; conversions follow its record's rules.
class FakeTimeZone final : public TimeZoneService {
public:
    /// Pacific time with its daylight rule, daylight time in force: seven hours to universal time.
    FakeTimeZone();

    /// A zone with a daylight rule of its own, in which `state` is in force.
    FakeTimeZone& with(const TimeZoneInformation& zone, TimeZoneState state);

    /// A zone of a fixed distance with no daylight time ever.
    FakeTimeZone& fixed(int biasMinutes);

    /// A zone with the daylight rule there is, standard time in force.
    FakeTimeZone& inStandardTime(int biasMinutes);

    TimeZoneState read(TimeZoneInformation& zone) const override;
    SystemTime toLocal(const TimeZoneInformation& zone, const SystemTime& universal) const override;

private:
    TimeZoneInformation zone_;
    TimeZoneState state_ = TimeZoneState::daylightTime;
};
