#include "hosts/viewer/files/row_reading.h"

#include "hosts/viewer/support/test_logs.h"
#include "support/windows/test_application.h"

#include <gmock/gmock.h>

#include <chrono>
#include <filesystem>

namespace viewer {
namespace {

using Clock = std::chrono::steady_clock;

class RowReadingTest : public testing::Test {
protected:
    RowReadingTest() { testApplication(); }

    void open(const QStringList& paths)
    {
        document.open(paths);
        ASSERT_TRUE(waitForRows(document));
    }

    RowsToWrite rows(RowForm form, std::vector<PlaceRange> places)
    {
        return {document.sharedView(),
                std::move(places),
                form,
                {RowColumn::component, RowColumn::trace},
                {}};
    }

    QString text(RowsToWrite wanted)
    {
        RowReading reading(std::move(wanted));
        document.timeline().work([&](const timeline::Timeline& all) {
            EXPECT_TRUE(reading.goOn(all, Clock::time_point::max()));
        });
        return reading.text();
    }

    TestLogs logs;
    Document document;
};

TEST_F(RowReadingTest, WritesRowsAsTheyAreShownAsLinesAndForASpreadsheet)
{
    open({logs.write("KoCSMgr", rawLine(1000, "A", 3, "=1+2, \"x\"") + "  more\r\n")});
    EXPECT_EQ("A\t=1+2, \"x\"\n\t  more\n", text(rows(RowForm::shown, {{0, 2}})));
    EXPECT_EQ("00:00:01:000,Conv,12,A,3,=1+2, \"x\"\n  more\n", text(rows(RowForm::raw, {{0, 2}})));
    EXPECT_EQ("Component,Trace\nA,\"'=1+2, \"\"x\"\"\"\n", text(rows(RowForm::csv, {{0, 1}})));
}

TEST_F(RowReadingTest, WritesLongTextsAsLongAsTheyAre)
{
    const std::string longText(500'000, 'x');
    open({logs.write("KoCSMgr", rawLine(1000, "A", 3, longText))});
    const QString trace = QString::fromStdString(longText);
    EXPECT_EQ("A\t" + trace + "\n", text(rows(RowForm::shown, {{0, 1}})));
    EXPECT_EQ("00:00:01:000,Conv,12,A,3," + trace + "\n", text(rows(RowForm::raw, {{0, 1}})));
}

TEST_F(RowReadingTest, WritesALineOfAnyFormAsItStandsInItsFile)
{
    open({logs.writeEvents()});
    EXPECT_EQ("2025-02-20 15:23:07,Error,Disk,7,SERVER,it failed\n",
              text(rows(RowForm::raw, {{0, 1}})));
}

TEST_F(RowReadingTest, SaysInTheRowWhyItCanNotBeRead)
{
    const QString log = logs.writeRows("KoCSMgr", 5000, 0, 10);
    open({log});
    std::filesystem::resize_file(log.toStdString(), 0);
    for (const RowForm form : {RowForm::raw, RowForm::shown}) {
        const QString written = text(rows(form, {{2000, 2001}}));
        EXPECT_TRUE(written.contains("has line 2001 no more")) << written.toStdString();
        EXPECT_EQ(1, written.count('\n'));
    }
}

TEST_F(RowReadingTest, TakesTheRowsOfAllRanges)
{
    open({logs.writeRows("KoCSMgr", 2000, 0, 10)});
    RowsToWrite some = rows(RowForm::shown, {{2, 4}, {7, 7}, {1500, 1501}});
    EXPECT_EQ(3u, some.count());
    EXPECT_EQ("CallFlow\trow 2\nCallFlow\trow 3\nCallFlow\trow 1500\n", text(std::move(some)));
    EXPECT_EQ("", text(rows(RowForm::shown, {})));
    EXPECT_EQ("Component,Trace\n", text(rows(RowForm::csv, {})));
}

TEST_F(RowReadingTest, TellsTimesAsTheTableDoes)
{
    open({logs.write("KoCSMgr", rawLine(1000, "A", 3, "one") + rawLine(1250, "A", 3, "two") +
                                    rawLine(1300, "A", 3, "three") + "  of it\r\n" +
                                    rawLine(62'250, "A", 3, "four"))});
    RowsToWrite times{document.sharedView(),
                      {{0, 2}, {3, 5}},
                      RowForm::shown,
                      {RowColumn::time},
                      TimeTelling{TimeForm::sinceRowBefore, std::nullopt}};
    EXPECT_EQ("\n+0.250\n\n+1:00.950\n", text(times)) << "the row above, written or not";
    times.times = {TimeForm::sinceMark, document.row(1).index.moment};
    times.places = {{0, 1}};
    EXPECT_EQ("-0.250\n", text(times));
    times.times = {};
    EXPECT_EQ("2025-02-20 00:00:01.000\n", text(times));
}

TEST_F(RowReadingTest, GoesOnWhereItStopped)
{
    open({logs.writeRows("KoCSMgr", 50, 0, 10)});
    RowReading reading(rows(RowForm::csv, {{0, 50}}));
    QString pieces;
    std::size_t steps = 0;
    for (bool all = false; !all; ++steps) {
        document.timeline().work([&](const timeline::Timeline& rows) {
            all = reading.goOn(rows, Clock::time_point::min());
        });
        EXPECT_EQ(steps + 1, reading.rowsRead());
        pieces += reading.text();
    }
    EXPECT_EQ(50u, steps);
    EXPECT_EQ(text(rows(RowForm::csv, {{0, 50}})), pieces);
}

} // namespace
} // namespace viewer
