#include "hosts/viewer/calls/call_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <numeric>
#include <random>

namespace viewer {
namespace {

using timeline::Call;
using Less = std::function<bool(const Call&, const Call&)>;

/// Calls of as many processes; some ids begin alike, some calls have no moment.
std::vector<Call> someCalls(std::size_t calls, std::size_t processes)
{
    std::mt19937 random(5);
    std::vector<Call> made(calls);
    for (Call& call : made) {
        call.id = (random() % 2 == 0 ? "a long beginning " : "") + std::to_string(random() % 900);
        if (random() % 20 != 0) {
            call.first = timeline::Moment{1} - static_cast<timeline::Moment>(random() % 5);
            call.last = call.first + static_cast<timeline::Moment>(random() % 50);
        }
        call.rows = 1 + random() % 100;
        call.errors = random() % 3;
        call.warnings = random() % 3;
        for (unsigned count = random() % 12; count > 0; --count)
            call.processes.push_back("process " + std::to_string(random() % processes));
    }
    return made;
}

TEST(CallOrder, IsThatOfAPlainStableSort)
{
    struct Case {
        const char* because;
        CallColumn column;
        Less isLess;
    };
    const auto length = [](const Call& call) { return lengthOf(call); };
    const Case cases[] = {
        {"ids by their bytes", CallColumn::id,
         [](const Call& one, const Call& other) { return one.id < other.id; }},
        {"starts", CallColumn::start,
         [](const Call& one, const Call& other) { return one.first < other.first; }},
        {"lengths", CallColumn::length,
         [&](const Call& one, const Call& other) { return length(one) < length(other); }},
        {"lines", CallColumn::lines,
         [](const Call& one, const Call& other) { return one.rows < other.rows; }},
        {"errors", CallColumn::errors,
         [](const Call& one, const Call& other) { return one.errors < other.errors; }},
        {"warnings", CallColumn::warnings,
         [](const Call& one, const Call& other) { return one.warnings < other.warnings; }},
        {"processes one by one", CallColumn::processes,
         [](const Call& one, const Call& other) { return one.processes < other.processes; }},
    };
    for (const std::size_t processes : {3, 255, 400})
        for (const Case& each : cases)
            for (const bool descending : {false, true}) {
                SCOPED_TRACE(std::string(each.because) + ", " + std::to_string(processes));
                const auto calls = someCalls(2000, processes);
                std::vector<std::uint32_t> expected(calls.size());
                std::iota(expected.begin(), expected.end(), 0);
                std::stable_sort(expected.begin(), expected.end(),
                                 [&](std::uint32_t one, std::uint32_t other) {
                                     return descending ? each.isLess(calls[other], calls[one])
                                                       : each.isLess(calls[one], calls[other]);
                                 });
                EXPECT_EQ(expected, orderOf(calls, each.column, descending));
            }
}

TEST(CallOrder, OfNoCallsIsEmpty)
{
    EXPECT_TRUE(orderOf({}, CallColumn::processes, false).empty());
}

TEST(CallOrder, ACallWithoutAMomentIsShorterThanAnyOther)
{
    Call call;
    EXPECT_EQ(-1, lengthOf(call));
    call.first = call.last = 5;
    EXPECT_EQ(0, lengthOf(call));
}

} // namespace
} // namespace viewer
