#include "runtime/dates.h"

#include "runtime/calendar.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <array>
#include <cstddef>

namespace {

[[noreturn]] void refuse()
{
    throw RunTimeError(runTimeErrors::typeMismatch);
}

/// A number as written, with the count of its digits.
struct Digits {
    int value = 0;
    int count = 0;
};

/// What is left of a text to be read as a date.
class DateScan {
public:
    explicit DateScan(std::string_view text) : rest_(trim(text)) {}

    bool atEnd() const { return rest_.empty(); }
    char peek() const { return rest_.empty() ? '\0' : rest_.front(); }

    /// A number of `least` to `most` digits.
    int number(int least, int most)
    {
        const Digits read = digits();
        if (read.count < least || read.count > most) refuse();
        return read.value;
    }

    /// Digits as far as they go; five are more than any number of a date has.
    Digits digits()
    {
        Digits read;
        while (peek() >= '0' && peek() <= '9' && read.count < 5) {
            read.value = read.value * 10 + (peek() - '0');
            ++read.count;
            rest_.remove_prefix(1);
        }
        return read;
    }

    void need(char wanted)
    {
        if (peek() != wanted) refuse();
        rest_.remove_prefix(1);
    }

    bool take(char wanted)
    {
        if (peek() != wanted) return false;
        rest_.remove_prefix(1);
        return true;
    }

    /// Whether blanks stood here; they are passed.
    bool takeBlanks()
    {
        const std::size_t before = rest_.size();
        while (take(' ')) {
        }
        return rest_.size() != before;
    }

    /// The index, from 1, of the name that stands here among `names`; it ends where letters end.
    template <std::size_t count>
    int name(const std::array<std::string_view, count>& names)
    {
        std::size_t length = 0;
        while (length < rest_.size() && isLetter(rest_[length])) ++length;
        const std::string_view word = rest_.substr(0, length);
        for (std::size_t index = 0; index < count; ++index) {
            if (!equalIgnoringCase(word, names[index])) continue;
            rest_.remove_prefix(length);
            return static_cast<int>(index) + 1;
        }
        refuse();
    }

private:
    static bool isLetter(char character)
    {
        return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
    }

    std::string_view rest_;
};

struct CalendarDay {
    int year = 1899;
    int month = 12;
    int day = 30;
};

struct TimeOfDay {
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// The rest of a time whose hour is read.
TimeOfDay readTime(DateScan& scan, Digits hour)
{
    if (hour.count < 1 || hour.count > 2) refuse();
    TimeOfDay time;
    time.hour = hour.value;
    scan.need(':');
    time.minute = scan.number(1, 2);
    if (scan.take(':')) time.second = scan.number(1, 2);
    scan.takeBlanks();
    if (scan.atEnd()) return time;

    constexpr std::array<std::string_view, 2> halves = {"AM", "PM"};
    const bool afternoon = scan.name(halves) == 2;
    if (time.hour < 1 || time.hour > 12) refuse();
    time.hour = time.hour % 12 + (afternoon ? 12 : 0);
    return time;
}

/// "Saturday, October 8, 2005", whose day of the week is right.
CalendarDay readLongDate(DateScan& scan)
{
    CalendarDay date;
    const int dayOfWeek = scan.name(calendar::dayNames);
    scan.need(',');
    scan.takeBlanks();
    date.month = scan.name(calendar::monthNames);
    scan.takeBlanks();
    date.day = scan.number(1, 2);
    scan.need(',');
    scan.takeBlanks();
    date.year = scan.number(3, 4);
    if (partsOf(dateOf(date.year, date.month, date.day)).dayOfWeek != dayOfWeek) refuse();
    return date;
}

/// The rest of "10/8/2005", or of "2005-10-08", whose first number is read.
CalendarDay readNumericDate(DateScan& scan, Digits first)
{
    CalendarDay date;
    if (scan.take('-')) {
        if (first.count != 4) refuse();
        date.year = first.value;
        date.month = scan.number(1, 2);
        scan.need('-');
        date.day = scan.number(1, 2);
        return date;
    }
    scan.need('/');
    if (first.count < 1 || first.count > 2) refuse();
    date.month = first.value;
    date.day = scan.number(1, 2);
    scan.need('/');
    date.year = scan.number(3, 4);
    return date;
}

Date readDate(DateScan& scan)
{
    CalendarDay date;
    TimeOfDay time;
    const Digits first = scan.digits();
    if (scan.peek() == ':') {
        time = readTime(scan, first);
    } else {
        date = first.count == 0 ? readLongDate(scan) : readNumericDate(scan, first);
        if (scan.takeBlanks()) time = readTime(scan, scan.digits());
    }
    if (!scan.atEnd()) refuse();
    return dateOf(date.year, date.month, date.day, time.hour, time.minute, time.second);
}

} // namespace

Date parseDate(std::string_view text)
{
    DateScan scan(text);
    try {
        return readDate(scan);
    } catch (const RunTimeError&) {
        refuse(); // a day or time that the calendar lacks is no date either
    }
}
