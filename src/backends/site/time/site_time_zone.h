#pragma once

#include "backends/site/time/posix_time_zone.h"
#include "platform/time_zone.h"

#include <cstdint>
#include <functional>
#include <optional>

/// Seconds since 1970, universal time; a test gives its own.
using MomentSource = std::function<std::int64_t()>;

/// The machine's own clock.
MomentSource machineMoments();

/// The record of a zone, its biases in minutes. The record has no form for a rule of a numbered day
/// or for one whose time lies outside its day: such a rule stands as the day that it comes to in
/// `year`, the first as a date, the second as the week of that day in its month.
TimeZoneInformation timeZoneRecord(const PosixTimeZone& zone, int year);

/// The zone of a site.
class SiteTimeZone final : public TimeZoneService {
public:
    explicit SiteTimeZone(PosixTimeZone zone, MomentSource moments = machineMoments());

    TimeZoneState read(TimeZoneInformation& zone) const override;

    /// The record that `read` gave last stands for the zone itself, so that it is right in every
    /// year. Of another record, a rule with a year of its own holds for its month and day in every
    /// year; a rule that is no date counts as none.
    SystemTime toLocal(const TimeZoneInformation& zone, const SystemTime& universal) const override;

private:
    PosixTimeZone zone_;
    MomentSource moments_;
    mutable std::optional<TimeZoneInformation> given_; ///< by the last `read`
};
