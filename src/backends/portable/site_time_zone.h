#pragma once

#include "backends/portable/posix_time_zone.h"
#include "platform/time_zone.h"

#include <cstdint>
#include <functional>

/// Seconds since 1970, universal time; a test gives its own.
using MomentSource = std::function<std::int64_t()>;

/// The machine's own clock.
MomentSource machineMoments();

/// The record of a zone, its biases in minutes. A rule for a numbered day, which the record has no
/// form for, stands as the day of `year`; a time of day outside its day moves to the day beside it.
TimeZoneInformation timeZoneRecord(const PosixTimeZone& zone, int year);

/// The zone of a site.
class SiteTimeZone final : public TimeZoneService {
public:
    explicit SiteTimeZone(PosixTimeZone zone, MomentSource moments = machineMoments());

    TimeZoneState read(TimeZoneInformation& zone) const override;

    /// A rule with a year of its own holds for its month and day in every year; a rule that is no
    /// date counts as none.
    SystemTime toLocal(const TimeZoneInformation& zone, const SystemTime& universal) const override;

private:
    PosixTimeZone zone_;
    MomentSource moments_;
};
