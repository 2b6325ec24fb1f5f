#include "gather/row_dates.h"

#include "core/utility.h"
#include "runtime/text.h"

#include <cmath>

namespace {

constexpr std::size_t timeStampWidth = 12;

/// Whether a moment is a whole day whose text is a date alone, behind which a time can stand.
bool isPlainDay(Date day)
{
    return day.days > 0 && day.days == std::trunc(day.days);
}

bool isTimeOfDay(Date time)
{
    return time.days >= 0 && time.days < 1;
}

} // namespace

void RowDates::startDay(Date created)
{
    currentDate(parseDate(shortDate(created)));
}

void RowDates::startTime(Date created)
{
    lastTime_ = parseDate(shortTime(created));
}

void RowDates::readTime(std::string_view timeStamp)
{
    time_ = parseTimeText(timeStamp);
}

void RowDates::nextDay()
{
    currentDate(addDays(currentDate_, 1));
}

void RowDates::currentDate(Date day)
{
    currentDate_ = day;
    currentDateText_ = dateText(day);
}

void RowDates::formMoment()
{
    // The sum is what the texts of the two give, bit by bit, and costs no text on each line.
    if (isPlainDay(currentDate_) && isTimeOfDay(time_))
        moment_ = Date{currentDate_.days + time_.days};
    else
        moment_ = parseDate(currentDateText_ + " " + dateText(time_));
}

void RowDates::rowDate(std::string_view timeStamp, std::string& text) const
{
    text.assign(currentDateText_);
    const std::size_t blank = positionOf(timeStamp, " ", 2);
    if (blank > 0)
        text.append(timeStamp.substr(blank - 1)).append(":000");
    else
        text.append(" ").append(timeStamp.substr(0, timeStampWidth));
}
