#pragma once

#include "runtime/dates.h"

#include <string>
#include <string_view>

/// The date that is carried along while a log is read: its lines have a time of day alone.
///
/// It starts at the day on which the file was made, and moves on by a day when the time of day goes
/// back. The routines are the statements of an importer's line loop, in their order.
class RowDates {
public:
    /// The file's creation date gives the current date, and its time without the seconds the time
    /// of the line before the first.
    void startDay(Date created);
    void startTime(Date created);

    /// The time of day of the line being read; kept from the line before when there is none.
    /// Raises 13 for a stamp that names no time, 5 for one without a blank and a colon.
    void readTime(std::string_view timeStamp);

    bool timeWentBack() const { return time_ < lastTime_; }

    /// Raises 5 at the end of the calendar.
    void nextDay();

    void rememberTime() { lastTime_ = time_; }

    /// Forms the line's moment; kept from the line before when there is none. Raises 13 when date
    /// and time are no moment together.
    void formMoment();

    Date moment() const { return moment_; }

    /// The text of "Date" into a text whose room is used again: the current date, and of the stamp
    /// what stands behind its date with ":000", or its first 12 characters.
    void rowDate(std::string_view timeStamp, std::string& text) const;

private:
    void currentDate(Date day);

    Date currentDate_;
    std::string currentDateText_ = dateText(Date{});
    Date time_;
    Date lastTime_;
    Date moment_;
};
