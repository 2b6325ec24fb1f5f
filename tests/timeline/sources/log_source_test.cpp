#include "timeline/sources/log_source.h"

#include "support/error_of.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <utility>

namespace timeline {
namespace {

constexpr Moment oneHour = 3'600'000;
const Moment logDay = dayOf(2025, 2, 20);

class LogSourceTest : public testing::Test {
protected:
    LogSource& open(const std::string& bytes, LineForm form = LineForm::basic,
                    std::function<Moment(Moment)> localTime = {})
    {
        const std::string path = folder.write("diag_KoCSMgr.txt", bytes);
        LogFacts facts;
        facts.source.name = "diag_KoCSMgr.txt";
        facts.source.process = "KoCSMgr";
        facts.source.form = form;
        facts.opened = logDay;
        facts.localTime = std::move(localTime);
        source = std::make_unique<LogSource>(
            facts, std::make_shared<KeptFile>(std::make_shared<OpenFiles>(4), path));
        return *source;
    }

    void append(const std::string& bytes)
    {
        std::ofstream(folder / "diag_KoCSMgr.txt", std::ios::app | std::ios::binary) << bytes;
    }

    /// Reads on; the traces of all rows, "+" before those that belong to the row before.
    std::vector<std::string> read(const Filter& filter = Filter())
    {
        source->read(filter, rows, progress);
        std::vector<std::string> traces;
        Record record;
        for (const IndexRow& row : rows) {
            source->record(row, record);
            traces.push_back((row.belongsToRowBefore() ? "+" : "") + std::string(record.trace));
        }
        return traces;
    }

    static Filter having(const std::string& text)
    {
        Choice choice;
        choice.patterns.push_back(std::make_shared<TextPattern>(TextPattern::Kind::text, text));
        return Filter(choice);
    }

    TemporaryFolder folder;
    std::unique_ptr<LogSource> source;
    SourceRows rows;
    Progress progress;
};

using Traces = std::vector<std::string>;

TEST_F(LogSourceTest, HasARowForEachLineThatIsNotEmpty)
{
    open("15:00:00:000,Conv,12,CallFlow,7,one\r\n\r\n15:00:01:500,Log,13,Rule,200,two\n");
    EXPECT_EQ((Traces{"one", "two"}), read());
    EXPECT_EQ(logDay + 15 * oneHour, rows[0].moment);
    EXPECT_EQ(1u, rows[0].line);
    EXPECT_EQ(7, rows[0].level);
    EXPECT_EQ("CallFlow", source->components().text(rows[0].component));
    EXPECT_EQ(logDay + 15 * oneHour + 1500, rows[1].moment);
    EXPECT_EQ(3u, rows[1].line) << "empty lines count";
    EXPECT_EQ(IndexRow::otherLevel, rows[1].level);
    Record record;
    source->record(rows[1], record);
    EXPECT_TRUE(record.hasForm);
    EXPECT_EQ("KoCSMgr", record.process);
    EXPECT_EQ("diag_KoCSMgr.txt", record.file);
    EXPECT_EQ("15:00:01:500", record.timeStamp);
    EXPECT_EQ(200, record.level);
    EXPECT_EQ(13, record.traceNumber);
    EXPECT_EQ("15:00:01:500,Log,13,Rule,200,two", record.whole);
}

TEST_F(LogSourceTest, KeepsLinesWithoutAFormBehindTheirRow)
{
    open("a heading of the log\n15:00:00:000,Conv,12,CallFlow,7,one\nmore of one\n");
    EXPECT_EQ((Traces{"+a heading of the log", "one", "+more of one"}), read());
    EXPECT_EQ(noMoment, rows[0].moment);
    EXPECT_EQ(rows[1].moment, rows[2].moment);
    Record record;
    source->record(rows[2], record);
    EXPECT_FALSE(record.hasForm);
    EXPECT_EQ("", record.component);
}

TEST_F(LogSourceTest, LetsARowThroughWithItsLines)
{
    const std::string log = "a heading\n15:00:00:000,Conv,12,CallFlow,7,one\nmore\n"
                            "15:00:00:001,Conv,12,Rule,7,two\nand more\n";
    Choice choice;
    choice.columns.push_back({Column::component, {"Rule"}, false});
    open(log);
    EXPECT_EQ((Traces{"two", "+and more"}), read(Filter(choice)));
    rows.clear();
    open(log);
    EXPECT_EQ((Traces{"one", "+more"}), read(having("ne")));
    rows.clear();
    open(log);
    EXPECT_EQ((Traces{"one", "+more", "two", "+and more"}), read(having("more")))
        << "by a line of the row, too";
    rows.clear();
    open(log);
    EXPECT_EQ((Traces{"+a heading"}), read(having("heading")));
}

TEST_F(LogSourceTest, ChoosesByMoments)
{
    Choice choice;
    choice.since = logDay + 16 * oneHour;
    open("15:00:00:000,Conv,12,CallFlow,7,one\nmore\n16:00:00:000,Conv,12,Rule,7,two\n");
    EXPECT_EQ((Traces{"two"}), read(Filter(choice)));
}

TEST_F(LogSourceTest, KeepsTheMomentBeforeForATimeThatIsNone)
{
    open("15:00:00:000,Conv,12,CallFlow,7,one\n25:00:00:000,Conv,12,CallFlow,7,two\n");
    EXPECT_EQ((Traces{"one", "two"}), read());
    EXPECT_EQ(rows[0].moment, rows[1].moment);
}

TEST_F(LogSourceTest, GoesOnWhereTheReadingEnded)
{
    open("23:00:00:000,Conv,12,CallFlow,7,one\n");
    EXPECT_EQ((Traces{"one"}), read());
    EXPECT_EQ((Traces{"one"}), read()) << "nothing is read twice";
    append("more\n01:00:00:000,Conv,12,CallFlow,7,two\n");
    EXPECT_EQ((Traces{"one", "+more", "two"}), read());
    EXPECT_EQ(logDay + millisecondsPerDay + oneHour, rows[2].moment) << "the day is carried along";
    EXPECT_EQ(3u, rows[2].line);
}

TEST_F(LogSourceTest, WaitsForTheEndOfALineIfItIsTold)
{
    open("15:00:00:000,Conv,12,CallFlow,7,one\n15:00:00:001,Conv,12,Call").waitForLineEnds(true);
    EXPECT_EQ((Traces{"one"}), read());
    append("Flow,7,two\n");
    EXPECT_EQ((Traces{"one", "two"}), read());
    EXPECT_EQ(2u, rows[1].line);
}

TEST_F(LogSourceTest, TakesALastLineWithoutAnEndOtherwise)
{
    open("15:00:00:000,Conv,12,CallFlow,7,one\n15:00:00:001,Conv,12,CallFlow,7,two");
    EXPECT_EQ((Traces{"one", "two"}), read());
}

TEST_F(LogSourceTest, BringsUniversalTimeToTheServersClock)
{
    open("2025-02-20 23:30:00,Conv,12,one\n10/8/2005 3:00:00 "
         "PM,Conv,13,two\nnonsense,Conv,14,three\n",
         LineForm::data, [](Moment moment) { return moment + oneHour; });
    EXPECT_EQ((Traces{"one", "two", "three"}), read());
    EXPECT_EQ(dayOf(2025, 2, 21) + oneHour / 2, rows[0].moment);
    EXPECT_EQ(dayOf(2005, 10, 8) + 16 * oneHour, rows[1].moment);
    EXPECT_EQ(rows[1].moment, rows[2].moment);
    EXPECT_EQ(-99, rows[0].level);
}

TEST_F(LogSourceTest, EndsWhenItIsCancelled)
{
    open("15:00:00:000,Conv,12,CallFlow,7,one\n15:00:00:001,Conv,12,CallFlow,7,two\n");
    progress.cancelled = true;
    EXPECT_EQ(Traces{}, read());
    progress.cancelled = false;
    EXPECT_EQ((Traces{"one", "two"}), read()) << "and goes on from there";
}

TEST_F(LogSourceTest, ReadsPartsOnASpareThreadAsIfTheyWereOne)
{
    std::string log = "a heading\n";
    for (int row = 0; row < 60; ++row)
        log += (row % 20 == 7 ? "\n" : "") + std::to_string(10 + row % 13) +
               ":00:00:000,Conv,12,Component" + std::to_string(row % 9) + ",7,row " +
               std::to_string(row) + (row % 3 == 0 ? "\n more of it\n" : "\n");
    const Traces whole = (open(log), read());
    const SourceRows expected = std::exchange(rows, {});
    std::vector<std::string> components;
    for (const IndexRow& row : expected)
        components.emplace_back(source->components().text(row.component));

    open(log).readInParts({64, 200});
    progress.done = 0;
    progress.spareThread = true;
    EXPECT_EQ(whole, read());
    EXPECT_EQ(log.size(), progress.done);
    ASSERT_EQ(expected.size(), rows.size());
    for (std::size_t at = 0; at < rows.size(); ++at) {
        EXPECT_EQ(expected[at].moment, rows[at].moment) << at;
        EXPECT_EQ(expected[at].line, rows[at].line) << at;
        EXPECT_EQ(components[at], source->components().text(rows[at].component)) << at;
    }
}

TEST_F(LogSourceTest, GoesOnBehindAPartWithTheLinesOfItsLastRow)
{
    std::string log;
    for (int row = 0; row < 20; ++row) log += "15:00:00:000,Conv,12,CallFlow,7,row\n";
    for (const std::string last : {"Rule", "CallFlow"}) {
        Choice choice;
        choice.columns.push_back({Column::component, {"Rule"}, false});
        open(log + "15:00:01:000,Conv,12," + last + ",7,last\n").readInParts({64, 1000});
        progress.spareThread = true;
        rows.clear();
        read(Filter(choice));
        append(" more of it\n");
        EXPECT_EQ(last == "Rule" ? (Traces{"last", "+ more of it"}) : Traces{},
                  read(Filter(choice)));
    }
}

TEST_F(LogSourceTest, SaysWhichLineOfAPartIsTooLong)
{
    std::string log;
    for (int row = 0; row < 20; ++row) log += "15:00:00:000,Conv,12,CallFlow,7,row\n";
    open(log + log + std::string(LineReader::longestLine + 1, 'x') + "\n")
        .readInParts({64, log.size() + 40});
    progress.spareThread = true;
    read();
    ASSERT_EQ(1u, source->troubles().size());
    EXPECT_EQ(0u, source->troubles()[0].find("line 41 of ")) << source->troubles()[0];
}

TEST_F(LogSourceTest, CountsTheBytesThatItRead)
{
    const std::string log = "15:00:00:000,Conv,12,CallFlow,7,one\n";
    open(log);
    read();
    EXPECT_EQ(log.size(), progress.done);
    EXPECT_EQ(log.size(), progress.total);
    append(log);
    read();
    EXPECT_EQ(2 * log.size(), progress.done);
    EXPECT_EQ(2 * log.size(), progress.total);
}

TEST_F(LogSourceTest, SaysWhichLineIsTooLongAndHowManyMoreAre)
{
    const std::string tooLong =
        "15:00:00:000,Conv,12,CallFlow,7," + std::string(LineReader::longestLine, 'x') + "\n";
    open(tooLong);
    read();
    append("15:00:00:000,Conv,12,CallFlow,7,short\n" + tooLong + tooLong + tooLong);
    read();
    read();
    EXPECT_EQ((std::vector<std::string>{
                  "line 1 of diag_KoCSMgr.txt is too long: what stands behind its first 4 MB is "
                  "left out",
                  "line 3 and 2 more of diag_KoCSMgr.txt are too long: what stands behind their "
                  "first 4 MB is left out"}),
              source->troubles());
}

TEST_F(LogSourceTest, HasARowNoMoreWhenItsFileWasCut)
{
    open("15:00:00:000,Conv,12,CallFlow,7,one\n15:00:00:001,Conv,12,CallFlow,7,two\n");
    source->read(Filter(), rows, progress);
    std::filesystem::resize_file(folder / "diag_KoCSMgr.txt", 10);
    Record record;
    EXPECT_EQ(runTimeErrors::deviceIo, errorOf([&] { source->record(rows[1], record); }));
}

TEST_F(LogSourceTest, EndsEarlyOnceItHasEnoughRowsAndGoesOnLater)
{
    open("15:00:00:000,C,1,X,7,one\nits own\n15:00:00:001,C,1,X,7,two\n"
         "15:00:00:002,C,1,Y,7,three\n15:00:00:003,C,1,X,7,four\n");
    progress.enough = 1;
    EXPECT_EQ((Traces{"one"}), read());
    progress.enough = 3;
    EXPECT_EQ((Traces{"one", "+its own", "two"}), read());
    progress.enough = 99;
    EXPECT_EQ((Traces{"one", "+its own", "two", "three", "four"}), read());

    open("15:00:00:000,C,1,X,7,one\nits own\n15:00:00:001,C,1,X,7,two\n");
    rows.clear();
    progress.enough = 1;
    EXPECT_EQ((Traces{"one", "+its own"}), read(having("its")))
        << "all lines of a row are searched";
}

TEST_F(LogSourceTest, NumbersLinesThatAreNotEmptyWhateverIsChosen)
{
    open("\n15:00:00:000,C,1,X,7,one\r\n\r\n\nits own\n\n15:00:00:001,C,1,X,7,two\n");
    read();
    ASSERT_EQ(3u, rows.size());
    for (std::size_t at = 0; at < rows.size(); ++at) EXPECT_EQ(at + 1, source->numberOf(rows[at]));
    open("\n15:00:00:000,C,1,X,7,one\r\n\r\n\nits own\n\n15:00:00:001,C,1,X,7,two\n");
    rows.clear();
    read(having("two"));
    ASSERT_EQ(1u, rows.size());
    EXPECT_EQ(3u, source->numberOf(rows[0]));
}

} // namespace
} // namespace timeline
