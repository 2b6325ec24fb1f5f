#pragma once

#include "timeline/moment.h"

#include <QString>

namespace viewer {

/// "2025-02-20 15:23:07.123"; the empty text for `noMoment`.
QString clockText(timeline::Moment moment);

/// A time from one moment to another, such as "+0.120", "-1:02.000", "+3:00:00.000" or
/// "+2 d 3:00:00.000", hours and minutes where there are any; the empty text where one of them is
/// `noMoment`.
QString differenceText(timeline::Moment from, timeline::Moment to);

} // namespace viewer
