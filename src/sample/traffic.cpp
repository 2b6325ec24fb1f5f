#include "sample/traffic.h"

#include "sample/day_profile.h"

#include <algorithm>

namespace sample {

namespace {

/// The last port is kept free for notifications.
constexpr int callPorts = portCount - 1;

/// The number of a statement in the server's source: always the same for the same text.
int traceNumberOf(const Step& step)
{
    unsigned hash = 2166136261U;
    for (const char character : step.text)
        hash = (hash ^ static_cast<unsigned char>(character)) * 16777619U;
    return 1000 + 100 * static_cast<int>(step.component) + static_cast<int>(hash % 97U);
}

int threadOf(const Step& step, const Occurrence& occurrence)
{
    const int process = static_cast<int>(factsOf(step.component).process);
    return occurrence.port != 0 ? 1600 + 400 * process + 4 * occurrence.port
                                : 820 + 4 * static_cast<int>(step.component);
}

} // namespace

Traffic::Traffic(Random& random, const std::vector<LogPeriod>& plan, std::size_t lines, Sink sink)
    : random_(random), lines_(lines), sink_(std::move(sink))
{
    for (const auto& scenarios : {callScenarios(), serviceScenarios()})
        scenarios_.insert(scenarios_.end(), scenarios.begin(), scenarios.end());
    openLogs(plan);
    for (const auto& period : plan) damage(period);
}

void Traffic::run()
{
    DayProfile profile;
    const std::size_t before = added_;
    Moment latest = coverageStart;
    while (added_ < lines_) {
        const Moment due = profile.momentAt(static_cast<std::int64_t>(added_ - before),
                                            static_cast<std::int64_t>(lines_ - before));
        // What is released is written: nothing may happen before it any more.
        const Moment moment =
            std::max(latest, std::max(due, coverageStart + minute) + random_.between(0, 999));
        latest = moment;
        if (moment > coverageEnd - minute) {
            fillUp(moment);
            break;
        }
        release(moment);
        happen(moment);
    }
    release(coverageEnd + 1);
}

void Traffic::add(LogLine line)
{
    if (line.moment > coverageEnd) return; // the server was still at it when it was copied
    if (!writesRecords(line.component)) {
        if (added_ == lines_) return;
        ++added_;
    }
    const Moment moment = line.moment;
    pending_.push({moment, ordered_++, std::move(line)});
}

void Traffic::release(Moment before)
{
    while (!pending_.empty() && pending_.top().moment < before) {
        sink_(pending_.top().line);
        pending_.pop();
    }
}

void Traffic::openLogs(const std::vector<LogPeriod>& plan)
{
    for (const auto& period : plan) {
        LogLine line;
        line.moment = period.opened + random_.between(4, 90);
        line.process = period.process;
        line.level = 2;
        line.traceNumber = 2402;
        line.thread = 812;
        line.trace = "Log of " + std::string(nameOf(period.process)) + " opened, computer VOICE01";
        add(std::move(line));
    }
}

void Traffic::damage(const LogPeriod& period)
{
    const std::int64_t count = random_.between(1, 4);
    for (std::int64_t index = 0; index < count; ++index) {
        LogLine line;
        line.moment =
            random_.between(period.opened / second + 60, period.closed / second - 1) * second;
        line.process = period.process;
        line.malformed = true;
        switch (random_.below(4)) {
        case 0: // the process was ended while it wrote
            appendClock(line.trace, line.moment);
            line.trace += ",Mwi,29";
            break;
        case 1: // the second line of a trace that held a line end
            line.trace = "    at KoRuntime!ReportFailure+0x1C4";
            break;
        case 2: // a block that reached the disk too late
            line.trace.assign(48, '\xFF');
            break;
        default:
            line.trace = "*** lines lost";
            break;
        }
        add(std::move(line));
    }
}

void Traffic::happen(Moment moment)
{
    const Scenario& scenario = drawScenario(moment);
    const int port = scenario.onPort ? drawPort(moment) : 0;
    const Moment end = play(scenario, drawOccurrence(random_, port, history_), moment);
    if (port != 0) portFreeAt_[static_cast<std::size_t>(port)] = end;
}

Moment Traffic::play(const Scenario& scenario, Occurrence occurrence, Moment moment)
{
    const Moment start = moment;
    for (const Step& step : scenario.steps) {
        const Moment pause = random_.between(step.earliest, step.latest);
        moment += pause;
        if (pause >= second) occurrence.waited = static_cast<int>(pause / second);
        occurrence.seconds = static_cast<int>((moment - start) / second);
        add(lineOf(step, occurrence, moment));
    }
    return moment;
}

LogLine Traffic::lineOf(const Step& step, const Occurrence& occurrence, Moment moment)
{
    LogLine line;
    line.moment = moment;
    line.process = factsOf(step.component).process;
    line.component = step.component;
    line.level = step.level;
    line.traceNumber = traceNumberOf(step);
    line.thread = threadOf(step, occurrence);
    line.port = occurrence.port;
    line.callId = occurrence.callId;
    appendText(line.trace, step.text, occurrence, random_);
    return line;
}

const Scenario& Traffic::drawScenario(Moment moment)
{
    const Moment time = moment % day;
    const bool working = time >= 7 * hour && time < 18 * hour;
    const auto weightOf = [working](const Scenario& scenario) {
        return working ? scenario.dayWeight : scenario.nightWeight;
    };
    int total = 0;
    for (const auto& scenario : scenarios_) total += weightOf(scenario);
    auto drawn = static_cast<int>(random_.below(static_cast<std::uint32_t>(total)));
    const auto chosen =
        std::find_if(scenarios_.begin(), scenarios_.end(), [&](const auto& scenario) {
            drawn -= weightOf(scenario);
            return drawn < 0;
        });
    return *chosen;
}

int Traffic::drawPort(Moment moment)
{
    const auto first = static_cast<int>(random_.below(callPorts));
    int soonest = 1 + first;
    for (int offset = 0; offset < callPorts; ++offset) {
        const int port = 1 + (first + offset) % callPorts;
        const Moment freeAt = portFreeAt_[static_cast<std::size_t>(port)];
        if (freeAt < moment) return port;
        if (freeAt < portFreeAt_[static_cast<std::size_t>(soonest)]) soonest = port;
    }
    return soonest;
}

void Traffic::fillUp(Moment from)
{
    const auto services = serviceScenarios();
    const auto missing = static_cast<Moment>(lines_ - added_);
    for (Moment index = 1; index <= missing; ++index) {
        const Step& step = random_.of(services).steps.front();
        add(lineOf(step, drawOccurrence(random_, 0, history_),
                   std::min(from, coverageEnd) +
                       (coverageEnd - std::min(from, coverageEnd)) * index / missing));
    }
}

} // namespace sample
