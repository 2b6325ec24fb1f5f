#include "timeline/sources/trace_database_source.h"

#include "backends/jet/jet_engine.h"
#include "backends/jet/jet_trace_reader.h"
#include "support/places.h"
#include "support/temporary_folder.h"
#include "system/root_folder.h"
#include "timeline/sources/kept_bytes.h"
#include "timeline/sources/source_reading.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

namespace timeline {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// A row as a gather stores it, with the columns that are given.
using Row = std::vector<std::pair<const char*, std::string>>;

/// A database of a test's own, of the tool's blank one.
class Database {
public:
    explicit Database(const std::vector<Row>& rows)
    {
        const std::string blank = std::string(built::data) + "/blankWPNDB.mdb";
        path_ = folder_ / "gather.mdb";
        std::filesystem::copy_file(blank, path_);
        jet::JetEngine engine([](const std::string& path) { return path; });
        const auto database = engine.openDatabase(path_);
        const auto traces = database->openRecordset("tblTraces");
        for (const Row& row : rows) {
            traces->addNew();
            for (const auto& [column, text] : row) traces->field(column).setUtf8(text);
            traces->update();
        }
    }

    const std::string& path() const { return path_; }
    std::string bytes() const { return folder_.read("gather.mdb"); }
    void replace(const std::string& bytes) const { folder_.write("gather.mdb", bytes); }

    std::unique_ptr<TraceDatabaseSource> source() const
    {
        const auto file = std::make_shared<KeptFile>(openMachineFile(path_, forReading, 53));
        SourceFacts facts;
        facts.kind = SourceKind::traceDatabase;
        facts.name = "gather.mdb";
        return std::make_unique<TraceDatabaseSource>(
            facts, jet::JetTraceReader().open(std::make_shared<KeptBytes>(file)));
    }

private:
    TemporaryFolder folder_;
    std::string path_;
};

Row traceRow(const std::string& date, const std::string& process, const std::string& component,
             const std::string& trace)
{
    return {{"Date", date},        {"Process", process},     {"Source", "Store"},
            {"TraceNumber", "17"}, {"Component", component}, {"TraceLevel", "3"},
            {"Trace", trace}};
}

Moment momentAt(int hour, int minute, int second, int millisecond)
{
    return dayOf(2005, 10, 8) + ((hour * 60 + minute) * 60 + second) * Moment{1000} + millisecond;
}

TEST(MomentOfRowDate, TakesWhatAGatherStores)
{
    EXPECT_EQ(momentAt(15, 23, 7, 120), momentOfRowDate("10/8/2005 15:23:07:120"));
    EXPECT_EQ(momentAt(0, 0, 0, 0), momentOfRowDate("10/8/2005 00:00:00:000"));
    EXPECT_EQ(momentAt(15, 23, 7, 0), momentOfRowDate("10/8/2005 3:23:07 PM:000"));
    EXPECT_EQ(momentAt(15, 23, 7, 0), momentOfRowDate("10/8/2005 3:23:07 PM"));
    for (const char* none :
         {"", "x", "10/8/2005 ", "10/8/2005", "13/8/2005 15:23:07:120", "2/30/2005 15:23:07:120",
          "10/8/2005 24:00:00:000", "10/8/2005 15:23:07:1234"})
        EXPECT_EQ(std::nullopt, momentOfRowDate(none)) << none;
}

TEST(TraceDatabaseSource, HasTheColumnsOfItsTable)
{
    const Database database({});
    const auto source = database.source();
    EXPECT_TRUE(source->has(Column::component));
    EXPECT_TRUE(source->has(Column::port));
    EXPECT_TRUE(source->has(Column::callId));
    EXPECT_FALSE(source->has(Column::thread));
}

TEST(TraceDatabaseSource, GivesTheRowsOfEveryProcess)
{
    const Database database(
        {traceRow("10/8/2005 15:23:07:120", "RoCsMgr", "CallFlow", "first"),
         traceRow("10/8/2005 15:23:06:000", "Notify", "Z\xC3\xA4hler", "one,\ntwo")});
    EXPECT_THAT(textsOf(*database.source()),
                ElementsAre("2005-10-08 15:23:07.120 RoCsMgr,Store,17,CallFlow,3,first",
                            "2005-10-08 15:23:06.000 Notify,Store,17,Z\xC3\xA4hler,3,one,\ntwo"));
    const auto source = database.source();
    const SourceRows rows = rowsOf(*source);
    EXPECT_EQ(2u, rows[1].line);
    EXPECT_EQ("Z\xC3\xA4hler", source->components().text(rows[1].component));
    EXPECT_EQ(3, rows[1].level);
    EXPECT_THAT(source->troubles(), IsEmpty());
}

TEST(TraceDatabaseSource, GivesARowWithoutAMomentThatOfTheRowBefore)
{
    const Database database({traceRow("10/8/2005 15:23:07:120", "A", "C", "first"),
                             traceRow("never", "A", "C", "second"),
                             {{"Trace", "third"}}});
    EXPECT_THAT(textsOf(*database.source()),
                ElementsAre("2005-10-08 15:23:07.120 A,Store,17,C,3,first",
                            "2005-10-08 15:23:07.120 A,Store,17,C,3,second",
                            "2005-10-08 15:23:07.120 ,,0,,0,third"));
}

TEST(TraceDatabaseSource, GivesTheRowsThatAFilterTakes)
{
    const Database database(
        {traceRow("10/8/2005 15:23:07:120", "A", "C", "first"),
         traceRow("10/8/2005 15:23:08:000", "B", "C", "one\ntwo"),
         traceRow("10/8/2005 15:23:09:000", "A", "D", std::string(5000, 'x') + "end")});
    EXPECT_THAT(rowsOf(*database.source(), withValue(Column::process, "a")), SizeIs(2));
    EXPECT_THAT(rowsOf(*database.source(), withValue(Column::component, "D")), SizeIs(1));
    EXPECT_THAT(rowsOf(*database.source(), withText("two")), SizeIs(1));
    EXPECT_THAT(rowsOf(*database.source(), withText("xend")), SizeIs(1));
    EXPECT_THAT(rowsOf(*database.source(), withText("Store,17,C,3,first")), SizeIs(1));
    Choice choice;
    choice.since = momentAt(15, 23, 8, 0);
    EXPECT_THAT(rowsOf(*database.source(), Filter(choice)), SizeIs(2));
}

TEST(TraceDatabaseSource, GoesOnBehindACancelledReading)
{
    const Database database({traceRow("10/8/2005 15:23:07:120", "A", "C", "first"),
                             traceRow("10/8/2005 15:23:08:000", "B", "C", "second")});
    const auto source = database.source();
    SourceRows rows;
    Progress progress;
    progress.cancelled = true;
    source->read(Filter(), rows, progress);
    EXPECT_THAT(rows, IsEmpty());
    progress.cancelled = false;
    source->read(Filter(), rows, progress);
    source->read(Filter(), rows, progress);
    EXPECT_THAT(rows, SizeIs(2));
    EXPECT_EQ(progress.total.load(), progress.done.load());
}

TEST(TraceDatabaseSource, EndsWhereItHasRowsEnoughAndGoesOn)
{
    const Database database({traceRow("10/8/2005 15:23:07:120", "A", "C", "first"),
                             traceRow("10/8/2005 15:23:08:000", "B", "C", "second"),
                             traceRow("10/8/2005 15:23:09:000", "B", "C", "third")});
    const auto source = database.source();
    SourceRows rows;
    Progress progress;
    progress.enough = 2;
    source->read(Filter(), rows, progress);
    EXPECT_THAT(rows, SizeIs(2));
    progress.enough = 4;
    source->read(Filter(), rows, progress);
    EXPECT_THAT(rows, SizeIs(3));
    EXPECT_EQ(progress.total.load(), progress.done.load());
}

TEST(TraceDatabaseSource, ReadsWhatIsLeftOfADatabaseThatWasCutAndSaysSo)
{
    std::vector<Row> many(3000, traceRow("10/8/2005 15:23:07:120", "A", "C", "some text"));
    const Database database(many);
    database.replace(database.bytes().substr(0, database.bytes().size() / 2));
    const auto source = database.source();
    const SourceRows rows = rowsOf(*source);
    EXPECT_GT(rows.size(), 1000u);
    EXPECT_LT(rows.size(), 2000u);
    ASSERT_THAT(source->troubles(), SizeIs(1));
    EXPECT_EQ("gather.mdb tells of 3000 rows, of which " + std::to_string(rows.size()) +
                  " are there",
              source->troubles()[0]);
}

TEST(TraceDatabaseSource, SaysWhichPartsAreDamagedAndReadsOn)
{
    std::vector<Row> many(3000, traceRow("10/8/2005 15:23:07:120", "A", "C", "some text"));
    const Database database(many);
    std::string bytes = database.bytes();
    constexpr std::size_t pageSize = 4096;
    for (std::size_t page = 60; page < 80; ++page) bytes[page * pageSize] = 9;
    database.replace(bytes);
    const auto source = database.source();
    EXPECT_GT(rowsOf(*source).size(), 1500u);
    ASSERT_THAT(source->troubles(), SizeIs(7));
    EXPECT_THAT(source->troubles()[0], HasSubstr("gather.mdb can't be read: "));
    EXPECT_EQ("15 more parts of gather.mdb can't be read", source->troubles()[5]);
}

TEST(TraceDatabaseSource, TellsOfADamageOnce)
{
    const std::vector<Row> many(3000, traceRow("10/8/2005 15:23:07:120", "A", "C", "some text"));
    const Database database(many);
    const std::string whole = database.bytes();
    constexpr std::size_t pageSize = 4096;
    for (std::size_t pages = 2; pages < 80; ++pages) {
        database.replace(whole.substr(0, pages * pageSize));
        try {
            const auto source = database.source();
            rowsOf(*source);
            std::vector<std::string> told = source->troubles();
            std::sort(told.begin(), told.end());
            EXPECT_EQ(told.end(), std::adjacent_find(told.begin(), told.end())) << pages;
        } catch (const RunTimeError&) { // too little is left to find the table
        }
    }
}

TEST(TraceDatabaseSource, NamesTheRowThatCanNotBeRead)
{
    const std::vector<Row> rows(40, traceRow("10/8/2005 15:23:07:120", "A", "C", "some text"));
    const Database database(rows);
    const std::string whole = database.bytes();
    std::size_t unread = 0;
    const auto recordAll = [&] {
        const auto source = database.source();
        Record record;
        for (const IndexRow& row : rowsOf(*source)) try {
                source->record(row, record);
            } catch (const RunTimeError& error) {
                ++unread;
                EXPECT_THAT(error.description(), HasSubstr(" of gather.mdb can't be read: "));
                EXPECT_THAT(error.description(), testing::StartsWith("row "));
            }
    };
    const std::size_t text = whole.rfind(std::string("s\0o\0m\0e", 7));
    const std::size_t compressed = whole.rfind("some text");
    const std::size_t last = compressed == std::string::npos ? text : compressed;
    ASSERT_NE(std::string::npos, last);
    const std::size_t end = std::min(last + 40, whole.size());
    for (std::size_t at = last; at < end; ++at) {
        std::string bytes = whole;
        bytes[at] = '\xFF';
        database.replace(bytes);
        recordAll();
    }
    EXPECT_LT(0u, unread);
}

TEST(TraceDatabaseSource, RefusesADatabaseWithoutItsTable)
{
    const Database database({});
    std::string bytes = database.bytes();
    const std::string name = std::string("t\0b\0l\0T\0r\0a\0c\0e\0s\0", 18);
    for (std::size_t at = bytes.find(name); at != std::string::npos; at = bytes.find(name, at))
        bytes[at] = 'X';
    database.replace(bytes);
    EXPECT_EQ("gather.mdb has no table of traces that can be read",
              errorTextOf([&] { database.source(); }));
}

} // namespace
} // namespace timeline
