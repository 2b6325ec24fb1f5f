#include "gather/importers/row_dates.h"

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

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// The seconds of "15:23:07"; -1 for a text of another form, or of a time that no day has.
int secondsOfClock(std::string_view clock)
{
    const auto number = [&](std::size_t position) {
        return isDigit(clock[position]) && isDigit(clock[position + 1])
                   ? (clock[position] - '0') * 10 + clock[position + 1] - '0'
                   : 60;
    };
    if (clock[2] != ':' || clock[5] != ':') return -1;
    const int hour = number(0);
    const int minute = number(3);
    const int second = number(6);
    return hour > 23 || minute > 59 || second > 59 ? -1 : hour * 3600 + minute * 60 + second;
}

/// The same of the two common stamps, "15:23:07:123" and "2005-10-08 15:23:07".
int secondsOfStamp(std::string_view stamp)
{
    constexpr std::size_t dateWidth = 10;
    constexpr std::size_t clockWidth = 8;
    const auto isCommon = [&] {
        return stamp[8] == ':' && isDigit(stamp[9]) && isDigit(stamp[10]) && isDigit(stamp[11]);
    };
    if (stamp.size() == timeStampWidth) return isCommon() ? secondsOfClock(stamp) : -1;
    if (stamp.size() == dateWidth + 1 + clockWidth && stamp.find(' ', 2) == dateWidth)
        return secondsOfClock(stamp.substr(dateWidth + 1));
    return -1;
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
    constexpr double secondsPerDay = 86400;
    const int seconds = secondsOfStamp(timeStamp);
    time_ = seconds < 0 ? parseTimeText(timeStamp) : Date{seconds / secondsPerDay};
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
