#include "hosts/common/watched_services.h"

#include "core/class_log.h"
#include "core/error_trap.h"
#include "support/test_tool.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;

/// A tool's services under watch, with one log on the server.
struct WatchedServicesTest : testing::Test {
    TestTool tool;
    WatchedServices watched{tool.platform};
    const std::string path = "C:\\Logs\\diag_A_1.txt";
    GatherReport& report = watched.report();

    WatchedServicesTest() { tool.files.with(path, "one\r\ntwo\r\nthree"); }

    FileSystem& files() { return watched.platform().files; }

    /// Reads to the end or to the first failure, with `meanwhile` behind the first line.
    template <typename Meanwhile>
    LogSight readWith(Meanwhile&& meanwhile)
    {
        auto reader = files().openForReading(path);
        try {
            for (int line = 0; !reader->atEnd(); ++line) {
                reader->readLine();
                if (line == 0) meanwhile();
            }
        } catch (const RunTimeError&) {
            // The report has it.
        }
        reader.reset();
        return report.reading(path) ? *report.reading(path) : LogSight{};
    }
};

TEST_F(WatchedServicesTest, TellsHowFarALogWasRead)
{
    const LogSight sight = readWith([] {});
    EXPECT_EQ(3, sight.lines);
    EXPECT_TRUE(sight.readToEnd);
    EXPECT_FALSE(sight.cut);
    EXPECT_FALSE(sight.vanished);
    EXPECT_EQ("", sight.unread);
}

TEST_F(WatchedServicesTest, TellsWhereAReadingBrokeOff)
{
    tool.files.failingAfterLines(path, 2, runTimeErrors::deviceIo);
    const LogSight sight = readWith([] {});
    EXPECT_EQ(2, sight.lines);
    EXPECT_FALSE(sight.readToEnd);
    EXPECT_EQ("Device I/O error", sight.unread);
}

TEST_F(WatchedServicesTest, TellsThatALogWasCutOrTakenAwayWhileItWasRead)
{
    EXPECT_TRUE(readWith([&] { tool.files.with(path, "one"); }).cut);
    EXPECT_TRUE(readWith([&] { tool.files.deleteFile(path); }).vanished);
}

TEST_F(WatchedServicesTest, ALogThatGrowsWhileItIsReadIsWhole)
{
    const LogSight sight = readWith([&] { tool.files.with(path, "one\r\ntwo\r\nthree\r\nfour"); });
    EXPECT_FALSE(sight.cut);
    EXPECT_FALSE(sight.vanished);
}

TEST_F(WatchedServicesTest, ALogThatEndsBeforeItsSizeWasCut)
{
    tool.files.withSize(path, 100);
    EXPECT_TRUE(readWith([] {}).cut);
}

TEST_F(WatchedServicesTest, TellsWhatCouldNotBeListedOrLookedAt)
{
    const std::string pattern = "C:\\Logs\\diag_*.txt";
    files().matching(pattern);
    tool.files.failing(path, runTimeErrors::deviceIo);
    EXPECT_NE(0, errorOf([&] { files().file(path); }));
    EXPECT_THAT(report.unseenLogs("C:\\Logs"),
                ElementsAre(Pair("diag_A_1.txt", "Device I/O error")));
    EXPECT_THAT(report.unseenLogs("C:\\Log"), IsEmpty());
    tool.files.mended(path);
    files().file(path);
    EXPECT_THAT(report.unseenLogs("C:\\Logs"), IsEmpty());

    tool.files.failingAll(runTimeErrors::permissionDenied);
    EXPECT_NE(0, errorOf([&] { files().matching(pattern); }));
    EXPECT_EQ("Permission denied", report.listingFailure("C:\\Logs"));
    EXPECT_FALSE(report.listingFailure("C:\\"));
    tool.files.failingAll(0);
    files().matching(pattern);
    EXPECT_FALSE(report.listingFailure("C:\\Logs"));
}

TEST_F(WatchedServicesTest, CountsTheRowsThatWereBegunAndNotStored)
{
    const auto database = watched.platform().traceDatabases.openDatabase("C:\\a.mdb");
    const auto rows = database->openRecordset("TBLtraces");
    const auto filters = database->openRecordset("tblUniqueFilters");
    const LogSight sight = readWith([&] {
        rows->addNew();
        rows->field("Process").setText("A");
        rows->update();
        rows->addNew();
        tool.traceDatabases.failing("update tblTraces", 1, traceDatabaseErrors::rowTooLarge);
        EXPECT_EQ(traceDatabaseErrors::rowTooLarge, errorOf([&] { rows->update(); }));
        filters->addNew();
    });
    EXPECT_EQ(1, sight.rowsLost);
    EXPECT_NE("", sight.rowsLostBecause);
    EXPECT_THAT(report.storedRows(), ElementsAre(Pair("A", 1)));
    report.forgetReadings();
    EXPECT_THAT(report.storedRows(), IsEmpty());
}

/// The tool's own log behind the watch.
struct WatchedToolLogTest : WatchedServicesTest {
    classLog log{watched.platform()};
    std::vector<std::string> failures;

    WatchedToolLogTest()
    {
        watched.toolLog().onFailure([this](const std::string& why) { failures.push_back(why); });
    }

    std::string text() const { return tool.files.content(log.strLogFile()); }

    static int count(const std::string& text, const std::string& part)
    {
        int found = 0;
        for (auto at = text.find(part); at != text.npos; at = text.find(part, at + 1)) ++found;
        return found;
    }
};

TEST_F(WatchedToolLogTest, AFullDiskCostsOneLineOfTheLogAndTheirNumberAtItsEnd)
{
    const std::string full = errorText(RunTimeError(runTimeErrors::diskFull));
    for (int line = 0; line < 1000; ++line) {
        log.log(full, logLevel::error, "[mdlLogs]processOrvanLogFile");
        log.log("between", logLevel::info, "[a]b");
    }
    EXPECT_EQ(1, count(text(), full));
    EXPECT_EQ(1000, count(text(), "between"));
    const std::string file = log.strLogFile();
    log.closeLog();
    EXPECT_THAT(tool.files.content(file), HasSubstr("Came 999 times more: "));
}

TEST_F(WatchedToolLogTest, OtherErrorsAreWrittenEachTime)
{
    const std::string error = errorText(RunTimeError(runTimeErrors::typeMismatch));
    for (int line = 0; line < 11; ++line) log.log(error, logLevel::error, "[a]b");
    EXPECT_EQ(11, count(text(), error));
}

TEST_F(WatchedToolLogTest, TheLogHasABoundAndTellsOfIt)
{
    const std::string megabyte(1'000'000, 'x');
    for (int line = 0; line < 60; ++line) log.log(megabyte, logLevel::info, "[a]b");
    EXPECT_GT(text().size(), 49'000'000U);
    EXPECT_LT(text().size(), 50'000'200U);
    EXPECT_THAT(text(), EndsWith("The log has reached its bound of 50 MB. Nothing more is written "
                                 "to it.\r\n"));
}

TEST_F(WatchedToolLogTest, ALogThatCanNotBeWrittenIsToldOnce)
{
    log.log("a", logLevel::info, "[a]b");
    EXPECT_THAT(failures, IsEmpty());
    tool.files.roomFor(0);
    for (int line = 0; line < 3; ++line) log.log("b", logLevel::info, "[a]b");
    EXPECT_THAT(failures, ElementsAre("Disk full"));
}

TEST_F(WatchedToolLogTest, AFileOfAnotherNameHasNoBound)
{
    EXPECT_FALSE(watched.toolLog().guards("C:\\OrvanDiagnostics\\LOGSTER\\a.LOG"));
    EXPECT_TRUE(watched.toolLog().guards("c:\\orvandiagnostics\\logs\\a.LOG"));
}

} // namespace
