#include "hosts/viewer/table/time_text.h"

#include <QCoreApplication>

#include <string>

namespace viewer {

QString clockText(timeline::Moment moment)
{
    return QString::fromStdString(timeline::momentText(moment));
}

QString differenceText(timeline::Moment from, timeline::Moment to)
{
    if (from == timeline::noMoment || to == timeline::noMoment) return {};
    constexpr timeline::Moment second = 1000;
    constexpr timeline::Moment minute = 60 * second;
    constexpr timeline::Moment hour = 60 * minute;
    const timeline::Moment length = to < from ? from - to : to - from;
    const timeline::Moment days = length / timeline::millisecondsPerDay;
    const timeline::Moment hours = length % timeline::millisecondsPerDay / hour;
    const timeline::Moment minutes = length % hour / minute;
    const auto two = [](timeline::Moment number) {
        return QString::number(number).rightJustified(2, QLatin1Char('0'));
    };
    QString text = to < from ? QStringLiteral("-") : QStringLiteral("+");
    if (days > 0) text += QCoreApplication::translate("TimeText", "%1 d ").arg(days);
    const bool asked = days > 0 || hours > 0;
    if (asked) text += QString::number(hours) + QLatin1Char(':');
    if (asked || minutes > 0)
        text += (asked ? two(minutes) : QString::number(minutes)) + QLatin1Char(':');
    const timeline::Moment seconds = length % minute / second;
    text += asked || minutes > 0 ? two(seconds) : QString::number(seconds);
    return text + QLatin1Char('.') +
           QString::number(length % second).rightJustified(3, QLatin1Char('0'));
}

QString timeText(const TimeTelling& telling, timeline::Moment moment,
                 std::optional<timeline::Moment> before)
{
    switch (telling.form) {
    case TimeForm::clock:
        return clockText(moment);
    case TimeForm::sinceRowBefore:
        return differenceText(before.value_or(timeline::noMoment), moment);
    case TimeForm::sinceMark:
        return differenceText(telling.mark.value_or(timeline::noMoment), moment);
    }
    return {};
}

} // namespace viewer
