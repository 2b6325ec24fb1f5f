#include "hosts/desktop/log/overview_strip.h"

#include "hosts/common/look/theme.h"
#include "hosts/desktop/log/filter_bar.h"
#include "hosts/desktop/log/find_bar.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/support/test_window.h"

#include <QLineEdit>
#include <QScrollArea>
#include <QTest>

#include <gmock/gmock.h>

#include <numeric>

namespace desktop {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A strip beside an area without frame, so that places count from the top.
struct Strip {
    explicit Strip(int rows)
    {
        area.setFrameShape(QFrame::NoFrame);
        area.resize(200, 402);
        area.show();
        strip.resize(strip.sizeHint().width(), 402);
        strip.show();
        settle();
        strip.setRowCount(rows);
        QObject::connect(&strip, &OverviewStrip::rowAsked, [this](int row) { asked = row; });
    }

    void click(int y)
    {
        asked = -1;
        QTest::mouseClick(&strip, Qt::LeftButton, {}, QPoint(4, y));
    }

    QApplication& application = testApplication();
    QScrollArea area;
    OverviewStrip strip{area};
    int asked = -1;
};

TEST(OverviewStrip, AMarkIsAtItsRowsShareOfTheHeight)
{
    Strip shown(1001);
    EXPECT_EQ(1, shown.strip.yOfRow(0));
    EXPECT_EQ(201, shown.strip.yOfRow(500));
    EXPECT_EQ(401, shown.strip.yOfRow(1000));
}

TEST(OverviewStrip, OneRowAndNoRowHaveAPlaceToo)
{
    Strip shown(1);
    EXPECT_EQ(1, shown.strip.yOfRow(0));
    shown.strip.setRowCount(0);
    EXPECT_EQ(0, shown.strip.yOfRow(0));
    shown.click(10);
    EXPECT_EQ(-1, shown.asked);
}

TEST(OverviewStrip, AClickGoesToTheMarkItAimsAtAndElseToItsShareOfTheRows)
{
    Strip shown(1001);
    shown.strip.setRows(OverviewMark::error, {500});
    shown.click(203);
    EXPECT_EQ(500, shown.asked) << "two pixels beside the mark";
    shown.click(301);
    EXPECT_NEAR(750, shown.asked, 3);
    shown.click(401);
    EXPECT_NEAR(1000, shown.asked, 3);
}

TEST(OverviewStrip, WhatThePersonMarkedComesBeforeWhatTheLogHolds)
{
    Strip shown(100'000);
    shown.strip.setRows(OverviewMark::warning, {50'000});
    shown.strip.setRows(OverviewMark::error, {50'001});
    shown.strip.setRows(OverviewMark::bookmark, {50'002});
    EXPECT_EQ(50'002, shown.strip.markedRowAt(shown.strip.yOfRow(50'000)));
    EXPECT_EQ(std::nullopt, shown.strip.markedRowAt(20));
}

TEST(OverviewStrip, EachKindIsDrawnInALaneOfItsOwn)
{
    Strip shown(401);
    shown.strip.setRows(OverviewMark::error, {100});
    shown.strip.setRows(OverviewMark::hit, {100});
    shown.strip.setRows(OverviewMark::bookmark, {100});
    const QImage image = shown.strip.grab().toImage();
    const QPalette palette = shown.strip.palette();
    const int y = shown.strip.yOfRow(100);
    EXPECT_EQ(theme::errorMark(palette).rgb(), image.pixel(3, y));
    EXPECT_EQ(theme::hitMark(palette).rgb(), image.pixel(9, y));
    EXPECT_EQ(palette.color(QPalette::Highlight).rgb(), image.pixel(15, y));
    for (const int lane : {3, 9, 15})
        EXPECT_EQ(palette.color(QPalette::Base).rgb(), image.pixel(lane, y + 10)) << lane;
}

TEST(OverviewStrip, AnErrorIsNotHiddenByTheWarningsAroundIt)
{
    Strip shown(100'000);
    std::vector<int> warnings(100'000);
    std::iota(warnings.begin(), warnings.end(), 0);
    shown.strip.setRows(OverviewMark::warning, warnings);
    shown.strip.setRows(OverviewMark::error, {50'000});
    const QImage image = shown.strip.grab().toImage();
    EXPECT_EQ(theme::errorMark(shown.strip.palette()).rgb(),
              image.pixel(3, shown.strip.yOfRow(50'000)));
}

TEST(Overview, ShowsTheErrorsAndWarningsOfTheRowsOnShow)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    ListModel& model = shown.log().model();
    std::vector<int> errors;
    std::vector<int> warnings;
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.bytes(row, 5).empty()) continue;
        if (model.text(row, 6) == QLatin1String("0")) errors.push_back(row);
        if (model.text(row, 6) == QLatin1String("1")) warnings.push_back(row);
    }
    ASSERT_FALSE(errors.empty() && warnings.empty());
    EXPECT_EQ(errors, shown.log().overview().rows(OverviewMark::error));
    EXPECT_EQ(warnings, shown.log().overview().rows(OverviewMark::warning));
}

TEST(Overview, FollowsTheSearchAndLosesItsHitsWithTheBar)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    OverviewStrip& overview = shown.log().overview();
    shown.window->action(Command::find).trigger();
    for (auto* edit : shown.log().findBar().findChildren<QLineEdit*>())
        if (edit->hasFocus()) QTest::keyClicks(edit, "port");
    const auto hits = overview.rows(OverviewMark::hit);
    ASSERT_FALSE(hits.empty());
    for (const int row : hits)
        EXPECT_TRUE(shown.log().model().rowText(row).contains("port", Qt::CaseInsensitive)) << row;
    shown.log().closeBars();
    EXPECT_THAT(overview.rows(OverviewMark::hit), IsEmpty());
}

TEST(Overview, FollowsBookmarksAlsoUnderAFilter)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    LogView& log = shown.log();
    log.table().goTo(7);
    log.toggleBookmark();
    EXPECT_THAT(log.overview().rows(OverviewMark::bookmark), ElementsAre(7));
    EXPECT_TRUE(log.overview().describe(7).contains("Marked line 8"))
        << log.overview().describe(7).toStdString();

    const std::string component(log.model().bytes(7, 5));
    log.filterBar().tick(5, component, false);
    ASSERT_LT(log.model().rowCount(), 1000);
    int row = 0;
    while (row < log.model().rowCount() && log.model().text(row, 1).toInt() != 8) ++row;
    ASSERT_LT(row, log.model().rowCount());
    EXPECT_THAT(log.overview().rows(OverviewMark::bookmark), ElementsAre(row));
    log.clearBookmarks();
    EXPECT_THAT(log.overview().rows(OverviewMark::bookmark), IsEmpty());
}

TEST(Overview, AClickOnItsLastMarkGoesThere)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    LogView& log = shown.log();
    log.table().goTo(log.model().rowCount() - 1);
    log.toggleBookmark();
    log.table().goTo(0);
    settle();
    OverviewStrip& overview = log.overview();
    QTest::mouseClick(&overview, Qt::LeftButton, {},
                      QPoint(4, overview.yOfRow(log.model().rowCount() - 1)));
    EXPECT_EQ(log.model().rowCount() - 1, log.table().currentIndex().row());
}

} // namespace

} // namespace desktop
