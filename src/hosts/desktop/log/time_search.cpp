#include "hosts/desktop/log/time_search.h"

#include "console/list_view.h"
#include "hosts/desktop/log/list_model.h"
#include "runtime/dates.h"
#include "runtime/run_time_error.h"

namespace desktop {

namespace {

constexpr std::size_t clockLength = 8; ///< "HH:MM:SS"

/// The time of day of a time stamp, with or without a date before it.
std::string_view timeOfDay(std::string_view stamp)
{
    const auto blank = stamp.rfind(' ');
    if (blank != std::string_view::npos) stamp.remove_prefix(blank + 1);
    const bool clock = stamp.size() >= clockLength && stamp[2] == ':' && stamp[5] == ':';
    return clock ? stamp : std::string_view();
}

int secondsOf(std::string_view clock)
{
    const auto number = [&](std::size_t at) {
        return (clock[at] - '0') * 10 + (clock[at + 1] - '0');
    };
    return (number(0) * 60 + number(3)) * 60 + number(6);
}

/// Whether a line is of a later day than the one before it: its clock fell, and by more than lines
/// of several threads are out of turn, or the clock of a server is set back.
bool isOfLaterDay(std::string_view now, std::string_view before)
{
    constexpr int settingBack = 2 * 60 * 60;
    return !before.empty() && secondsOf(before) - secondsOf(now) > settingBack;
}

/// Time stamps have a colon before their milliseconds; a person may type a point.
std::string withColon(std::string_view fraction)
{
    std::string text(fraction);
    if (!text.empty()) text[0] = ':';
    return text;
}

} // namespace

std::optional<std::string> typedTime(std::string_view text)
{
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    if (text.find(':') == std::string_view::npos && text.find_first_of("mM") == text.npos)
        return std::nullopt;

    std::string_view clock = text;
    std::string_view fraction;
    auto point = text.find('.');
    const auto firstColon = text.find(':');
    const auto secondColon = text.find(':', firstColon + 1);
    if (point == text.npos && firstColon != text.npos && secondColon != text.npos)
        point = text.find(':', secondColon + 1);
    if (point != text.npos) {
        clock = text.substr(0, point);
        fraction = text.substr(point);
        if (fraction.find_first_not_of("0123456789", 1) != fraction.npos) return std::nullopt;
    }
    try {
        return clockTime(timeOf(parseDate(clock))) + withColon(fraction);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

int rowAtTime(const ListModel& rows, int timeColumn, std::string_view time, int from)
{
    if (!rows.list()) return -1;
    const auto current = rows.positionOfRow(from);
    std::uint32_t firstMatch = 0;
    std::string_view before;
    for (const auto position : rows.positionsInOrder()) {
        const ListItem line = rows.list()->shown(static_cast<int>(position));
        const auto now = timeOfDay(line.subItem(timeColumn));
        if (now.empty()) continue;
        const bool passed = isOfLaterDay(now, before) && before < time;
        const bool reached =
            passed || (now >= time && (before.empty() || before < time || before > now));
        before = now;
        if (!reached) continue;
        if (position > current) return rows.rowOfPosition(position);
        if (firstMatch == 0) firstMatch = position;
    }
    return firstMatch == 0 ? -1 : rows.rowOfPosition(firstMatch);
}

} // namespace desktop
