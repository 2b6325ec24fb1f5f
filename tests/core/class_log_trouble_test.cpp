#include "core/class_log.h"

#include "platform/clock.h"
#include "support/test_tool.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

namespace {

/// A clock that runs a test's code whenever it is read.
class WatchedClock final : public Clock {
public:
    std::function<void()> onNow = [] {};

    Date now() const override
    {
        onNow();
        return FakeClock::initial;
    }
    float timer() const override { return 0; }
    void sleep(int) override {}
};

/// A log whose file can be spoiled and mended.
class ClassLogTrouble : public ::testing::Test {
protected:
    std::string path() { return log.strLogFile(); }
    std::string content() { return tool.files.content(path()); }

    int countOf(const std::string& text)
    {
        int count = 0;
        const std::string all = content();
        for (std::size_t at = 0; (at = all.find(text, at)) != std::string::npos; ++at) ++count;
        return count;
    }

    TestTool tool;
    WatchedClock clock;
    Platform platform{tool.files,         tool.registry,         clock,          tool.timeZone,
                      tool.eventReporter, tool.eventLogExporter, tool.processes, tool.workstation,
                      tool.module,        tool.languages,        tool.desktop,   tool.database,
                      tool.xml,           tool.traceDatabases};
    classLog log{platform};
};

const std::string reopenedHead = "\r\n" + std::string(120, '*') + "\r\nOrvanDiagnostics Version: ";

TEST_F(ClassLogTrouble, LosesTheLineThatCannotBeWrittenAndGoesOnWithTheNext)
{
    tool.files.failing(path(), 57);
    log.log("lost", logLevel::info, "p");
    tool.files.mended(path());
    log.log("kept", logLevel::info, "p");
    EXPECT_EQ(0, countOf("lost"));
    EXPECT_EQ(1, countOf("kept"));
    EXPECT_EQ(1, countOf("Version: ")) << "the stream was open all the time";
}

TEST_F(ClassLogTrouble, TellsOfAFailureUnderLogToFileWhereThatCanBeWritten)
{
    log.log("no such level", 4, "p");
    log.log("nor this one", -1, "p");
    EXPECT_EQ(0, countOf("level"));
    EXPECT_EQ(2, countOf("15:23:07   ERROR:(" + std::string(41, ' ') +
                         "logToFile) Err.Number = 9 Err.Description = Subscript out of range\r\n"));
}

TEST_F(ClassLogTrouble, AStreamThatHasGoneIsOpenedAnewWithABannerAndTheLineIsKept)
{
    const std::string first = path();
    tool.files.failing(first, 424);
    log.strLogFile("C:\\OrvanDiagnostics\\LOGS\\other.LOG");
    log.log("kept", logLevel::info, "p");
    EXPECT_EQ(0u, content().find(reopenedHead));
    EXPECT_EQ(1, countOf("kept\r\n"));
    EXPECT_EQ(0, countOf("Err.Number"));
    EXPECT_EQ(std::string::npos, tool.files.content(first).find("kept"));
}

TEST_F(ClassLogTrouble, AStreamThatHasGoneAndCannotBeOpenedLosesTheLineAndIsTriedAtTheNext)
{
    tool.files.failing(path(), 424);
    log.log("lost", logLevel::info, "p");
    log.log("lost too", logLevel::info, "p");
    tool.files.mended(path());
    log.log("kept", logLevel::info, "p");
    EXPECT_EQ(0, countOf("lost"));
    EXPECT_EQ(1, countOf("kept"));
    EXPECT_EQ(2, countOf(reopenedHead)) << "the first one and that of the new stream";
}

TEST_F(ClassLogTrouble, AFullDiskLosesLinesAndRaisesNothing)
{
    tool.files.roomFor(0);
    const std::string before = content();
    for (int line = 0; line < 100; ++line) log.log("lost", logLevel::error, "p");
    log.enterProc("[a]x");
    log.exitProc("[a]x");
    EXPECT_EQ(before, content());
    tool.files.roomFor(10'000);
    log.log("kept", logLevel::info, "p");
    EXPECT_EQ(1, countOf("kept"));
}

TEST_F(ClassLogTrouble, AFullDiskDoesNotHoldUpTheDevelopmentHostForEver)
{
    tool.module.developmentHost = true;
    tool.files.roomFor(0);
    int readings = 0;
    clock.onNow = [&] { ++readings; };
    log.log("lost", logLevel::error, "p");
    EXPECT_EQ(0, countOf("lost"));
    EXPECT_EQ(1 + 10, readings) << "the line, and a failure for each of ten tries";
}

TEST_F(ClassLogTrouble, TheDevelopmentHostWritesALineOnceTheTroubleHasPassed)
{
    tool.module.developmentHost = true;
    tool.files.failing(path(), 57);
    int readings = 0;
    clock.onNow = [&] {
        if (++readings == 4) tool.files.mended(path());
    };
    log.log("kept", logLevel::info, "p");
    EXPECT_EQ(1, countOf(") kept\r\n"));
    EXPECT_EQ(1, countOf("logToFile) Err.Number = 57 Err.Description = Device I/O error\r\n"))
        << "of the three failures the last could be told";
}

TEST_F(ClassLogTrouble, EveryLineIsHandedOnAtOnceInOneWrite)
{
    for (int line = 0; line < 3; ++line) {
        const std::size_t before = content().size();
        log.log("message", logLevel::info, "p");
        EXPECT_EQ(before + 70 + 7 + 2, content().size());
    }
}

TEST(RetentionTrouble, PassesOverEachStepThatFails)
{
    struct Case {
        const char* because;
        const char* spoiled;
        const char* remains;
    };
    const Case cases[] = {
        {"without the disk's figures its space counts as none", "C:\\",
         "Removing logs older than 9/28/2005 3:23:07 PM - Log Directory Size: 0. MB    MB Free    "
         "MB Total "},
        {"an unreadable file does not stop the others", "C:\\OrvanDiagnostics\\LOGS\\A.LOG",
         "Err.Number = 57 Err.Description = Device I/O error"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool tool;
        for (const char* name : {"A.LOG", "B.LOG"}) {
            const std::string path = std::string("C:\\OrvanDiagnostics\\LOGS\\") + name;
            tool.files.with(path).modified(path, Date{1});
        }
        tool.files.failing(c.spoiled, 57);
        const classLog log(tool.platform);
        EXPECT_NE(std::string::npos, tool.files.content(log.strLogFile()).find(c.remains));
        EXPECT_FALSE(tool.files.fileExists("C:\\OrvanDiagnostics\\LOGS\\B.LOG"));
    }
}

TEST(RetentionTrouble, TriesAgainInTheDevelopmentHostButNotForEver)
{
    TestTool tool;
    tool.module.developmentHost = true;
    const std::string path = "C:\\OrvanDiagnostics\\LOGS\\A.LOG";
    tool.files.with(path).modified(path, Date{1}).readOnly(path);
    const classLog log(tool.platform);
    const auto& asked = tool.files.asked();
    EXPECT_EQ(10, std::count(asked.begin(), asked.end(), path));
}

} // namespace
