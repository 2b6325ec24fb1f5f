#pragma once

#include <compare>
#include <string>
#include <string_view>

/// A moment of local time: days since 30 December 1899, the time of day as the fraction.
///
/// Below zero the whole part counts back and the fraction still counts forward within its day, so
/// -1.25 is 29 December 1899, 6:00.
struct Date {
    double days = 0;

    friend auto operator<=>(const Date&, const Date&) = default;
};

/// The parts of a date in the Gregorian calendar, to the nearest second.
struct DateParts {
    int year = 1899;
    int month = 12;
    int day = 30;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int dayOfWeek = 1; ///< 1 for Sunday to 7
};

/// Raises 5 outside the years 100 to 9999, as all that takes a date does.
DateParts partsOf(Date date);

/// The date of parts within their ranges, years 100 to 9999. Raises 5 for others.
Date dateOf(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);

/// The whole day and the time of day (on the zero date) of a moment, to the nearest second.
Date dayOf(Date date);
Date timeOf(Date date);

/// A moment later, or earlier for an amount below zero, to the nearest second: so what comes of
/// whole seconds equals the date of its parts bit by bit.
Date addSeconds(Date date, double seconds);
Date addDays(Date date, double days);
Date addHours(Date date, double hours);

/// The number of whole seconds on a time line, for comparisons to the second.
long long wholeSeconds(Date date);

/// General form: "10/8/2005 3:23:07 PM"; a zero date shows the time alone, a zero time the date
/// alone; the zero moment shows "12:00:00 AM".
std::string dateText(Date date);
void appendDateText(std::string& text, Date date);

std::string shortDate(Date date);  ///< "10/8/2005"
std::string longDate(Date date);   ///< "Saturday, October 8, 2005"
std::string longTime(Date date);   ///< "3:23:07 PM"
std::string mediumTime(Date date); ///< "03:23 PM"
std::string shortTime(Date date);  ///< "15:23"

std::string clockTime(Date date);        ///< "15:23:07"
std::string fileStamp(Date date);        ///< "20051008_152307"
std::string sortableDateTime(Date date); ///< "2005-10-08 15:23:07"

/// The date that a text names, month first: every form above (but the file stamp) and
/// "2005-10-08", "2005-10-08 15:23:07", "10/8/2005 15:23", "15:23", times with one or two digits,
/// AM or PM and the names of months and days in any case, more blanks than one, and blanks at the
/// ends. A date alone has a zero time, a time alone a zero date.
/// Raises 13 for anything else.
Date parseDate(std::string_view text);
