#include "hosts/viewer/calls/call_counting.h"
#include "hosts/viewer/calls/call_search.h"

#include "hosts/viewer/support/test_calls.h"
#include "timeline/counts/counted_logs.h"

#include <gmock/gmock.h>

#include <map>
#include <tuple>

namespace viewer {
namespace {

using std::chrono::steady_clock;

/// A log of some calls, and rows that come later.
class CallGrowth : public CountedLogs {
protected:
    CallGrowth()
    {
        addRows("KoCSMgr", 600, 10'000, 10);
        order = built(std::make_shared<RowOrder>(timeline));
    }

    /// Adds a log of so many rows, from a moment of the day on, so many milliseconds apart.
    void addRows(const std::string& process, int rows, int first, int apart)
    {
        std::string lines;
        for (int row = 0; row < rows; ++row)
            lines += callLine(first + row * apart, "c" + std::to_string(row % 7), row % 5, "row");
        add(process, lines, timeline::LineForm::extended);
        timeline::Progress progress;
        timeline.read(timeline::Filter(), progress);
    }

    std::shared_ptr<const RowOrder> built(const std::shared_ptr<RowOrder>& made) const
    {
        while (!made->build(timeline, 100)) {
        }
        return made;
    }

    std::shared_ptr<const RowOrder> grown() const
    {
        return built(std::make_shared<RowOrder>(*order, timeline));
    }

    static std::shared_ptr<View> viewOf(std::shared_ptr<const RowOrder> rows)
    {
        auto view = std::make_shared<View>();
        view->order = std::move(rows);
        return view;
    }

    /// Goes on to the end in the least steps, and tells their number.
    template <typename Job>
    std::size_t finish(Job& job) const
    {
        std::size_t steps = 1;
        while (!job.goOn(timeline, steady_clock::time_point::min())) ++steps;
        return steps;
    }

    /// What is told of each call, in whatever order the calls stand.
    static auto told(const CallList& list)
    {
        using Moments = std::pair<timeline::Moment, timeline::Moment>;
        std::map<std::string, std::tuple<Moments, std::uint64_t, std::uint64_t, std::uint64_t>> all;
        for (const timeline::Call& call : list.calls)
            all[call.id] = {{call.first, call.last}, call.rows, call.errors, call.warnings};
        return all;
    }

    auto counted(const std::shared_ptr<const View>& view) const
    {
        CallCounting counting(timeline, view);
        finish(counting);
        return told(counting.list());
    }

    std::vector<std::uint64_t> placesOf(const CallSearch& search) const
    {
        std::vector<std::uint64_t> places;
        for (const CallRow& row : search.rows().rows) places.push_back(row.index.place);
        return places;
    }

    std::shared_ptr<const RowOrder> order;
};

TEST_F(CallGrowth, RowsBehindTheOthersAreCountedAlone)
{
    CallCounting counting(timeline, viewOf(order));
    finish(counting);
    addRows("KoNotify", 20, 30'000, 10);
    const auto view = viewOf(grown());
    counting.growTo(timeline, view, view->order->growth().same);
    EXPECT_FALSE(counting.list().complete);
    EXPECT_LE(finish(counting), 2u) << "the rows of before are not looked at again";
    EXPECT_TRUE(counting.anyNew());
    EXPECT_TRUE(counting.list().complete);
    EXPECT_EQ(counted(view), told(counting.list()));
}

TEST_F(CallGrowth, RowsAmongTheOthersAreCountedToo)
{
    CallCounting counting(timeline, viewOf(order));
    finish(counting);
    addRows("KoNotify", 50, 9'000, 45);
    const auto view = viewOf(grown());
    ASSERT_EQ(0u, view->order->growth().same);
    counting.growTo(timeline, view, 0);
    finish(counting);
    EXPECT_EQ(counted(view), told(counting.list()));
    EXPECT_EQ(timeline::dayOf(2025, 2, 20) + 9'000, counting.list().calls[0].first);
}

TEST_F(CallGrowth, AGrowthWithoutRowsTellsNothingNew)
{
    CallCounting counting(timeline, viewOf(order));
    finish(counting);
    const auto view = viewOf(grown());
    counting.growTo(timeline, view, 400);
    finish(counting);
    EXPECT_FALSE(counting.anyNew());
    EXPECT_EQ(counted(view), told(counting.list()));
}

TEST_F(CallGrowth, RowsOfBeforeThatComeOnShowOrGoAreCountedRightly)
{
    const struct {
        const char* because;
        std::size_t every; ///< row on show before, and after
        std::size_t everyAfter;
    } cases[] = {
        {"more are shown", 4, 2}, {"fewer are shown", 2, 4}, {"others are shown", 2, 3},
        {"none are", 2, 100'000}, {"all are", 5, 1},
    };
    addRows("KoNotify", 20, 15'000, 10);
    const auto after = grown();
    for (const auto& each : cases) {
        SCOPED_TRACE(each.because);
        const auto before = viewOf(order);
        before->chosen.emplace();
        for (std::size_t row = 0; row < order->size(); ++row)
            before->chosen->append(row % each.every == 0);
        CallCounting counting(timeline, before);
        finish(counting);
        const auto view = viewOf(after);
        view->chosen.emplace();
        for (std::size_t row = 0; row < after->size(); ++row)
            view->chosen->append(row % each.everyAfter == 0);
        counting.growTo(timeline, view, 0);
        finish(counting);
        EXPECT_TRUE(counting.anyNew());
        EXPECT_EQ(counted(view), told(counting.list()));
    }
}

TEST_F(CallGrowth, TheRowsOfACallAreThoseOfALookAnew)
{
    const timeline::Moment day = timeline::dayOf(2025, 2, 20);
    const struct {
        const char* because;
        int first; ///< of the rows that come
        timeline::Moment around;
    } cases[] = {
        {"behind all", 40'000, day + 12'000},
        {"among the rows behind the moment", 15'000, day + 12'000},
        {"among the rows before it", 11'000, day + 15'000},
        {"before all", 1'000, day + 12'000},
    };
    int number = 0;
    for (const auto& each : cases) {
        SCOPED_TRACE(each.because);
        CallSearch search(timeline, order, "c3", each.around);
        finish(search);
        const std::size_t before = search.count();
        addRows("KoNotify" + std::to_string(++number), 14, each.first, 3);
        const auto after = grown();
        search.growTo(timeline, after, after->growth().same);
        finish(search);
        EXPECT_EQ(before + 2, search.count());
        EXPECT_TRUE(search.rows().complete);
        CallSearch anew(timeline, after, "c3", timeline::noMoment);
        finish(anew);
        EXPECT_EQ(placesOf(anew), placesOf(search));
        EXPECT_EQ(anew.rows().lanes, search.rows().lanes);
        order = after;
    }
}

TEST_F(CallGrowth, ALookThatHasNotEndedGoesOnWithRowsThatCame)
{
    const timeline::Moment day = timeline::dayOf(2025, 2, 20);
    for (const int first : {40'000, 13'050, 10'500}) {
        SCOPED_TRACE(first);
        CallSearch search(timeline, order, "c3", day + 13'000);
        ASSERT_FALSE(search.goOn(timeline, steady_clock::time_point::min()));
        addRows("KoNotify" + std::to_string(first), 14, first, 3);
        const auto after = grown();
        search.growTo(timeline, after, after->growth().same);
        finish(search);
        CallSearch anew(timeline, after, "c3", timeline::noMoment);
        finish(anew);
        EXPECT_EQ(placesOf(anew), placesOf(search));
        order = after;
    }
}

TEST_F(CallGrowth, FewRowsBehindALookAreLookedAtAlone)
{
    CallSearch search(timeline, order, "c3", timeline::noMoment);
    finish(search);
    addRows("KoNotify", 20, 30'000, 10);
    const auto after = grown();
    search.growTo(timeline, after, after->growth().same);
    EXPECT_EQ(1u, finish(search));
}

} // namespace
} // namespace viewer
