#include "hosts/cli/gather/frame_arguments.h"

#include "hosts/cli/command.h"
#include "hosts/cli/site_times.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <string_view>

namespace cli {

namespace {

using timeline::FrameEnd;
using timeline::Moment;
using timeline::TimeText;

constexpr Moment aMinute = 60'000;
constexpr Moment anHour = 60 * aMinute;
constexpr Moment mostHours = 999;

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

TimeText timeOf(const std::string& option, const std::string& typed)
{
    try {
        return TimeText(typed);
    } catch (const RunTimeError& error) {
        throw UsageError(option + ": " + error.description());
    }
}

/// The beginning of the span that ends now.
TimeText beginningOf(const std::string& span)
{
    try {
        timeline::readSpan(span); // refuses what is no span
    } catch (const RunTimeError& error) {
        throw UsageError("--last: " + error.description());
    }
    return TimeText("-" + span);
}

/// A text of 1 to 999 whole hours. Raises UsageError for any other.
const std::string& wholeHours(const std::string& typed)
{
    constexpr std::size_t longest = 3;
    const bool digits = std::all_of(typed.begin(), typed.end(), isDigit);
    const bool zero = typed.find_first_not_of('0') == std::string::npos;
    if (!digits || zero || typed.size() > longest)
        throw UsageError("--hours takes a whole number from 1 to 999, not \"" + typed + "\"");
    return typed;
}

/// Raises UsageError for options that are no frame together.
void requireOneFrame(const FrameWords& words)
{
    if (words.last && (words.from || words.to || words.hours))
        throw UsageError("--last is a frame by itself; leave out --from, --to-time and --hours");
    if (words.to && words.hours)
        throw UsageError("--to-time and --hours both say where the frame ends; leave one out");
    if (words.from && !words.to && !words.hours)
        throw UsageError("--from needs an end: add --to-time, such as --to-time now, or --hours");
    if (!words.from && words.to)
        throw UsageError("--to-time needs a --from; for a span until now there is --last 2h");
    if (!words.from && words.hours)
        throw UsageError("--hours needs a --from; for the hours until now there is --last " +
                         (words.hours->empty() ? "2" : *words.hours) + "h");
}

Moment wholeMinute(Moment moment)
{
    const Moment into = moment % aMinute;
    return moment - (into < 0 ? into + aMinute : into);
}

/// The date of a moment. Raises UsageError for one that the tool's calendar does not hold.
Date startOf(Moment moment)
{
    try {
        return dateOf(moment);
    } catch (const RunTimeError&) {
        throw UsageError("a time frame starts in a year from 100 to 9999");
    }
}

void addClause(std::string& clauses, const std::string& clause)
{
    if (clause.empty()) return;
    clauses += (clauses.empty() ? "" : "; ") + clause;
}

} // namespace

FrameRequest::FrameRequest(const FrameWords& words)
{
    requireOneFrame(words);
    if (words.from) from_ = timeOf("--from", *words.from);
    if (words.to) to_ = timeOf("--to-time", *words.to);
    if (words.hours) hours_ = wholeHours(*words.hours);
    if (words.last) last_ = beginningOf(*words.last);
}

FrameEntry FrameRequest::entry(SiteTimes& times) const
{
    if (last_) return entryBetween(times, *last_, TimeText("now"));
    if (to_) return entryBetween(times, *from_, *to_);
    return entryOfHours(times);
}

FrameEntry FrameRequest::entryOfHours(SiteTimes& times) const
{
    const Moment asked = from_->moment(FrameEnd::since, times.now(), times.clock());
    const Moment start = wholeMinute(asked);
    FrameEntry entry{startOf(start), hours_, from_->needsReference() || from_->isInstant(), {}};
    if (start != asked) addClause(entry.difference, "a frame starts at a whole minute");
    if (!from_->isInstant()) addClause(entry.difference, times.oddity(start));
    return entry;
}

FrameEntry FrameRequest::entryBetween(SiteTimes& times, const TimeText& from,
                                      const TimeText& to) const
{
    const Moment first = from.universal(FrameEnd::since, times.now(), times.clock());
    const Moment last = to.universal(FrameEnd::until, times.now(), times.clock());
    // Between two moments the clock may have shown earlier and later times than at them.
    const Moment begin = from.isInstant()
                             ? times.clock().earliestShown(first, last)
                             : from.moment(FrameEnd::since, times.now(), times.clock());
    const Moment end = to.isInstant() ? times.clock().latestShown(first, last)
                                      : to.moment(FrameEnd::until, times.now(), times.clock());
    if (last <= first || end <= begin)
        throw UsageError("the time frame ends no later than it starts: " + times.text(begin, end));
    const Moment start = wholeMinute(begin);
    const Moment hours = (end - start + anHour - 1) / anHour;
    if (hours > mostHours)
        throw UsageError("a time frame has 999 hours at most, and " + times.text(begin, end) +
                         " has " + std::to_string(hours));
    FrameEntry entry{startOf(start), std::to_string(hours), true, {}};
    // The last millisecond of a day is as good as the day's end.
    if (start != begin || start + hours * anHour - end > 1)
        addClause(entry.difference,
                  "wider than asked for, as a frame has whole hours from a whole minute on");
    if (!from.isInstant()) addClause(entry.difference, times.oddity(begin));
    if (!to.isInstant()) addClause(entry.difference, times.oddity(end));
    return entry;
}

} // namespace cli
