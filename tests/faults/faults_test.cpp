#include "faults/trial.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <random>
#include <set>

namespace {

/// How many calls of each kind and change are tried: one, or as many as are asked for.
std::size_t wantedCalls()
{
    const char* const wanted = std::getenv("ORVAN_FAULTS");
    return wanted ? static_cast<std::size_t>(std::atoi(wanted)) : 1;
}

std::mt19937& chance()
{
    static std::mt19937 numbers([] {
        const char* const seed = std::getenv("ORVAN_FAULT_SEED");
        return seed ? static_cast<unsigned>(std::atoi(seed)) : 1U;
    }());
    return numbers;
}

/// Errors that a kind of call gives on machines that are full, worn or shut.
const std::vector<int>& errorsOf(CallKind kind)
{
    static const std::map<CallKind, std::vector<int>> errors = {
        {CallKind::open, {EACCES, EMFILE, EIO, ENOSPC}},
        {CallKind::read, {EIO}},
        {CallKind::write, {ENOSPC, EIO, EDQUOT}},
        {CallKind::sync, {EIO, ENOSPC}},
        {CallKind::rename, {EACCES, EIO, ENOSPC}},
        {CallKind::folder, {ENOSPC, EACCES}},
        {CallKind::remove, {EACCES, EIO}},
        {CallKind::resize, {EIO, ENOSPC}},
        {CallKind::map, {ENOMEM}},
        {CallKind::close, {EIO, ENOSPC}},
        {CallKind::ask, {EACCES, EIO}},
        {CallKind::list, {EIO}},
        {CallKind::lock, {ENOLCK, EIO}},
        {CallKind::copy, {EIO, ENOSPC}},
        {CallKind::start, {EAGAIN, ENOMEM}},
        {CallKind::memory, {ENOMEM}},
    };
    return errors.at(kind);
}

/// Numbers of calls out of `count`, in order: `times` as many as are asked for, or all.
std::vector<std::uint64_t> numbersOf(std::uint64_t count, std::size_t times = 1)
{
    const std::size_t wanted = times * wantedCalls();
    std::set<std::uint64_t> numbers;
    if (count <= wanted)
        for (std::uint64_t number = 1; number <= count; ++number) numbers.insert(number);
    while (numbers.size() < std::min<std::uint64_t>(count, wanted))
        numbers.insert(chance()() % count + 1);
    return {numbers.begin(), numbers.end()};
}

std::string planText(int kind, std::uint64_t first, bool forEver, const std::string& action,
                     int number)
{
    return std::string(callKindNames[kind]) + " " + std::to_string(first) + " " +
           std::to_string(forEver ? 999'999'999 : first) + " " + action + " " +
           std::to_string(number);
}

/// The changes with what they come to, found once.
const std::vector<std::pair<const Change*, Outcome>>& outcomes()
{
    static const auto found = [] {
        const Box box;
        std::vector<std::pair<const Change*, Outcome>> list;
        for (const auto& change : everyChange()) list.emplace_back(&change, outcomeOf(change, box));
        return list;
    }();
    return found;
}

/// Whether a kind of call is tried: all are where none is asked for.
bool isWanted(int kind)
{
    const char* const wanted = std::getenv("ORVAN_FAULT_KIND");
    return wanted == nullptr || std::string(wanted) == callKindNames[kind];
}

/// Whether a change is tried: all are where none is asked for.
bool isWanted(const Change& change)
{
    const char* const wanted = std::getenv("ORVAN_FAULT_CHANGE");
    return wanted == nullptr || change.name == wanted;
}

std::vector<Trial> failingCalls(bool forEver)
{
    // A library asks for memory before the program itself begins.
    constexpr std::uint64_t requestsBeforeTheBeginning = 1000;
    std::vector<Trial> trials;
    for (const auto& [change, outcome] : outcomes()) {
        if (!isWanted(*change)) continue;
        for (int kind = 1; kind < callKinds; ++kind) {
            if (!isWanted(kind)) continue;
            const auto& errors = errorsOf(static_cast<CallKind>(kind));
            const bool memory = kind == static_cast<int>(CallKind::memory);
            for (auto at : numbersOf(outcome.calls[kind])) {
                if (memory) at = std::max(at, requestsBeforeTheBeginning);
                trials.push_back({change, &outcome,
                                  planText(kind, at, forEver, "fail", errors[at % errors.size()])});
            }
        }
    }
    return trials;
}

TEST(Faults, ACallThatFailsOnceIsAnAnswerOrMakesNoDifference)
{
    runTrials(failingCalls(false));
}

TEST(Faults, CallsThatFailFromThenOnAreAnAnswer)
{
    runTrials(failingCalls(true));
}

/// Calls of a kind that a change makes, failing once with one error each: all, or `times` as many
/// as are asked for.
std::vector<Trial> eachFailing(const std::string& name, CallKind kind, std::size_t times)
{
    const auto number = static_cast<int>(kind);
    const auto& errors = errorsOf(kind);
    std::vector<Trial> trials;
    for (const auto& [change, outcome] : outcomes())
        if (change->name == name)
            for (const auto at : numbersOf(outcome.calls[number], times))
                trials.push_back({change, &outcome,
                                  planText(number, at, false, "fail", errors[at % errors.size()])});
    return trials;
}

TEST(Faults, EveryWriteOfTheEventLogsLanguageThatFailsIsTold)
{
    const auto trials = eachFailing("event-language", CallKind::rename, 1000);
    ASSERT_FALSE(trials.empty());
    runTrials(trials);
}

TEST(Faults, LevelsThatCanNotBeReadAreNotTurnedOff)
{
    const auto trials = eachFailing("micro set", CallKind::ask, 60);
    ASSERT_FALSE(trials.empty());
    runTrials(trials);
}

TEST(Faults, AListingOrOpeningOfAGatherThatFailsLeavesOutNothingWithoutAWord)
{
    for (const CallKind kind : {CallKind::list, CallKind::open}) {
        const auto trials = eachFailing("gather frame", kind, 40);
        ASSERT_FALSE(trials.empty());
        runTrials(trials);
    }
}

TEST(Faults, ACabinetMakerThatCanLookAtNothingGivesUp)
{
    constexpr auto ask = static_cast<int>(CallKind::ask);
    std::vector<Trial> trials;
    for (const auto& [change, outcome] : outcomes())
        if (change->name == "gather frame")
            for (std::uint64_t last = 100; last > 0; last -= 5)
                trials.push_back({change, &outcome,
                                  planText(ask, outcome.calls[ask] - last, true, "fail", EACCES)});
    runTrials(trials);
}

TEST(Faults, HalfOfWhatIsReadOrWrittenIsGoneOnWith)
{
    std::vector<Trial> trials;
    for (const auto& [change, outcome] : outcomes())
        for (const CallKind kind : {CallKind::read, CallKind::write})
            for (const bool forEver : {false, true})
                for (const auto at : numbersOf(outcome.calls[static_cast<int>(kind)]))
                    trials.push_back({change, &outcome,
                                      planText(static_cast<int>(kind), at, forEver, "halve", 0)});
    runTrials(trials);
}

/// Signals before a call, and in the middle of one that writes.
std::vector<Trial> signals(std::size_t times, const std::string& action, int number)
{
    std::vector<Trial> trials;
    const auto kind = static_cast<int>(action == "tear" ? CallKind::write : CallKind::any);
    for (const auto& [change, outcome] : outcomes())
        for (const auto at : numbersOf(outcome.calls[kind], times))
            trials.push_back({change, &outcome, planText(kind, at, false, action, number)});
    return trials;
}

TEST(Kills, AProgramThatIsKilledLeavesOldOrNew)
{
    runTrials(signals(4, "signal", SIGKILL));
}

TEST(Kills, AProgramThatIsKilledWithinAWriteLeavesOldOrNew)
{
    runTrials(signals(3, "tear", SIGKILL));
}

/// The folder that both gather into is the same.
TEST(Kills, AGatherThatIsKilledWhilePackingDoesNotStopTheNextOne)
{
    constexpr auto any = static_cast<int>(CallKind::any);
    constexpr std::uint64_t callsOfPacking = 120;
    std::vector<Trial> trials;
    for (const auto& [change, outcome] : outcomes())
        if (change->name == "gather frame")
            for (const auto before : numbersOf(callsOfPacking, 20))
                trials.push_back(
                    {change, &outcome,
                     planText(any, outcome.calls[any] - before, false, "signal", SIGKILL)});
    runTrials(trials);
}

TEST(Kills, AProgramThatIsAskedToEndLeavesOldOrNew)
{
    runTrials(signals(2, "signal", SIGTERM));
    runTrials(signals(1, "signal", SIGHUP));
}

} // namespace
