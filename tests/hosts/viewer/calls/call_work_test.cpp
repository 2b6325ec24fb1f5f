#include "hosts/viewer/calls/call_counting.h"
#include "hosts/viewer/calls/call_search.h"

#include "hosts/viewer/support/test_calls.h"
#include "timeline/counts/counted_logs.h"

#include <gmock/gmock.h>

#include <map>
#include <random>

namespace viewer {
namespace {

using std::chrono::steady_clock;

/// Logs of some processes with rows of many calls, and one without call ids.
class CallWork : public CountedLogs {
protected:
    CallWork()
    {
        std::mt19937 random(7);
        for (const char* process : {"KoTelephony", "KoCSMgr", "KoNotify"}) {
            std::string lines;
            int moment = 1000;
            for (int row = 0; row < 1500; ++row) {
                moment += static_cast<int>(random() % 50);
                const unsigned call = random() % 41;
                // Some rows are of no call, some have lines of their own.
                lines += callLine(moment, call == 0 ? "" : "c" + std::to_string(call),
                                  static_cast<int>(random() % 6), "row");
                if (random() % 9 == 0) lines += "  a further line\r\n";
            }
            add(process, lines, timeline::LineForm::extended);
        }
        add("KoPlain", "00:00:10:000,Conv,12,CallFlow,3,c7\n");
        timeline::Progress progress;
        timeline.read(timeline::Filter(), progress);
        auto made = std::make_shared<RowOrder>(timeline);
        while (!made->build(timeline, 1000)) {
        }
        order = made;
    }

    /// Rows of the whole timeline as the plain loop has them.
    template <typename Use>
    void forAll(Use use)
    {
        timeline::Record record;
        for (auto cursor = timeline.begin(); const timeline::IndexRow* row = cursor.next();) {
            timeline.record(*row, record);
            use(*row, record);
        }
    }

    CallRows searched(const std::string& id, timeline::Moment around)
    {
        CallSearch search(timeline, order, id, around);
        std::size_t steps = 0;
        // Each step does the least it can.
        while (!search.goOn(timeline, steady_clock::time_point::min())) ++steps;
        EXPECT_GT(steps, 5u);
        return search.rows();
    }

    std::shared_ptr<const RowOrder> order;
};

TEST_F(CallWork, FindsTheRowsOfACallAsAPlainLoopDoesWhereverItBegins)
{
    std::vector<std::uint64_t> expected;
    std::vector<std::string> processes;
    std::vector<std::string> lanes;
    forAll([&](const timeline::IndexRow& row, const timeline::Record& record) {
        if (row.belongsToRowBefore() || record.callId != "c7") return;
        expected.push_back(row.place);
        processes.emplace_back(record.process);
        if (std::find(lanes.begin(), lanes.end(), record.process) == lanes.end())
            lanes.emplace_back(record.process);
    });
    ASSERT_GT(expected.size(), 50u);
    const timeline::Moment day = timeline::dayOf(2025, 2, 20);
    for (const timeline::Moment around :
         {timeline::noMoment, day + 1000, day + 9'000, day + 20'000, day + 80'000'000}) {
        const CallRows found = searched("c7", around);
        EXPECT_TRUE(found.complete);
        EXPECT_FALSE(found.leftOut);
        EXPECT_EQ(1.0, found.share);
        EXPECT_EQ(lanes, found.lanes);
        ASSERT_EQ(expected.size(), found.rows.size());
        for (std::size_t row = 0; row < expected.size(); ++row) {
            EXPECT_EQ(expected[row], found.rows[row].index.place);
            EXPECT_EQ(processes[row], found.lanes[found.rows[row].lane]);
        }
    }
}

TEST_F(CallWork, HasTheRowsNearAMomentFirst)
{
    CallSearch search(timeline, order, "c7", timeline::dayOf(2025, 2, 20) + 15'000);
    EXPECT_FALSE(search.goOn(timeline, steady_clock::time_point::min()));
    const CallRows rows = search.rows();
    EXPECT_FALSE(rows.complete);
    EXPECT_LT(rows.share, 0.1);
    ASSERT_FALSE(rows.rows.empty());
    for (std::size_t row = 1; row < rows.rows.size(); ++row)
        EXPECT_LE(rows.rows[row - 1].index.moment, rows.rows[row].index.moment);
}

TEST_F(CallWork, FindsNothingOfACallThatIsNone)
{
    const CallRows rows = searched("none", timeline::noMoment);
    EXPECT_TRUE(rows.complete);
    EXPECT_TRUE(rows.rows.empty());
    EXPECT_TRUE(rows.lanes.empty());
}

TEST_F(CallWork, CountsTheCallsOfTheRowsOnShow)
{
    // Every third row is on show.
    auto view = std::make_shared<View>();
    view->order = order;
    view->chosen.emplace();
    for (std::size_t row = 0; row < order->size(); ++row) view->chosen->append(row % 3 == 0);
    std::map<std::string, std::pair<std::uint64_t, std::uint64_t>> expected; // rows and errors
    std::size_t number = 0;
    forAll([&](const timeline::IndexRow& row, const timeline::Record& record) {
        if (number++ % 3 != 0 || row.belongsToRowBefore() || record.callId.empty()) return;
        auto& [rows, errors] = expected[std::string(record.callId)];
        ++rows;
        errors += record.level == 0 ? 1 : 0;
    });
    CallCounting counting(timeline, view);
    EXPECT_FALSE(counting.goOn(timeline, steady_clock::time_point::min()));
    EXPECT_FALSE(counting.list().complete);
    EXPECT_GT(counting.list().share, 0);
    EXPECT_LT(counting.list().share, 1);
    while (!counting.goOn(timeline, steady_clock::time_point::min())) {
    }
    const CallList list = counting.list();
    EXPECT_TRUE(list.complete);
    EXPECT_FALSE(list.leftOut);
    ASSERT_EQ(40u, list.calls.size());
    for (const timeline::Call& call : list.calls) {
        EXPECT_EQ(expected[call.id].first, call.rows) << call.id;
        EXPECT_EQ(expected[call.id].second, call.errors) << call.id;
    }
}

} // namespace
} // namespace viewer
