#pragma once

#include "hosts/viewer/table/row_column.h"
#include "timeline/moment.h"

#include <QString>

#include <optional>

namespace viewer {

/// "2025-02-20 15:23:07.123"; the empty text for `noMoment`.
QString clockText(timeline::Moment moment);

/// A time from one moment to another, such as "+0.120", "-1:02.000", "+3:00:00.000" or
/// "+2 d 3:00:00.000", hours and minutes where there are any; the empty text where one of them is
/// `noMoment`.
QString differenceText(timeline::Moment from, timeline::Moment to);

/// How the column of times tells them.
struct TimeTelling {
    TimeForm form = TimeForm::clock;
    std::optional<timeline::Moment> mark; ///< that `TimeForm::sinceMark` tells from
};

/// The time of a row, with the moment of the row above where the form asks for it. The empty text
/// where there is nothing that it could be told from.
QString timeText(const TimeTelling& telling, timeline::Moment moment,
                 std::optional<timeline::Moment> before);

} // namespace viewer
