#include "core/utility.h"

#include "core/registry_store.h"
#include "core/signals.h"
#include "core/tool_context.h"
#include "support/test_tool.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

TestTool& withInstallFolder(TestTool& tool, const std::string& folder)
{
    tool.registry.withText(baseKey, "InstalledFolderPath", folder);
    return tool;
}

} // namespace

TEST(SelectDirectory, GivesWhatThePersonPicks)
{
    TestTool tool;
    tool.desktop.picks("C:\\Gathered");
    EXPECT_EQ("C:\\Gathered", selectDirectory(tool.context));
    EXPECT_EQ((std::vector<std::string>{"Select the destination directory"}),
              tool.desktop.folderPickers());
    EXPECT_TRUE(tool.logged("Entering [mdlUtility]selectDirectory_0"));
    EXPECT_TRUE(tool.logged("Exiting [mdlUtility]selectDirectory_0"));
}

TEST(SelectLogFile, GivesWhatThePersonPicks)
{
    TestTool tool;
    tool.desktop.picks("C:\\grid.xml");
    EXPECT_EQ("C:\\grid.xml", selectLogFile(tool.context));
    EXPECT_EQ((std::vector<std::string>{"Select Log File"}), tool.desktop.filePickers());
    EXPECT_TRUE(tool.logged("Exiting [mdlUtility]selectLogFile_0"));
}

TEST(Pickers, ACancelGivesTheEmptyText)
{
    TestTool tool;
    EXPECT_EQ("", selectDirectory(tool.context));
    EXPECT_EQ("", selectLogFile(tool.context));
    EXPECT_TRUE(tool.failures().empty());
}

TEST(Pickers, AFailureIsLoggedAndGivesTheEmptyText)
{
    TestTool tool;
    tool.desktop.pickersFailing(5).picks("C:\\x");
    EXPECT_EQ("", selectDirectory(tool.context));
    EXPECT_EQ("", selectLogFile(tool.context));
    const std::vector<std::string> failure = {
        "Err.Number = 5 Err.Description = Invalid procedure call or argument"};
    EXPECT_EQ(failure, tool.failures("[mdlUtility]selectDirectory"));
    EXPECT_EQ(failure, tool.failures("[mdlUtility]selectLogFile"));
    EXPECT_TRUE(tool.logged("Exiting [mdlUtility]selectDirectory_0"));
}

TEST(ExpandPath, PutsTheInstallFolderInPlaceOfItsToken)
{
    struct Case {
        const char* because;
        const char* installed;
        const char* path;
        const char* expected;
    };
    const Case cases[] = {
        {"the joint is mended", "C:\\Orvan\\", "%CommServer%\\Tools\\x.exe",
         "C:\\Orvan\\tools\\x.exe"},
        {"doubled separators are mended wherever they stand", "C:\\Orvan\\",
         "%CommServer%\\\\Tools\\\\x.exe", "C:\\Orvan\\tools\\x.exe"},
        {"all is in lower case but what was put in", "C:\\Orvan", "%COMMSERVER%\\A%commserver%",
         "C:\\Orvan\\aC:\\Orvan"},
        {"no token, no folder", "C:\\Orvan", "D:\\Tools\\X.EXE", "d:\\tools\\x.exe"},
        {"without an install folder the token goes", "", "%commserver%\\x", "\\x"},
        {"nothing stays nothing", "C:\\Orvan", "", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool tool;
        EXPECT_EQ(c.expected, expandPath(withInstallFolder(tool, c.installed).context, c.path));
    }
}

TEST(GetInstalledFolderPath, ReadsTheServersKey)
{
    TestTool tool;
    EXPECT_EQ("", getInstalledFolderPath(tool.context));
    EXPECT_EQ("C:\\Orvan\\",
              getInstalledFolderPath(withInstallFolder(tool, "C:\\Orvan\\").context));
}

TEST(ProcessNameFromFileName, StandsBetweenTheFirstTwoUnderscores)
{
    EXPECT_EQ("RoCsMgr", processNameFromFileName("data_RoCsMgr_1.txt"));
    EXPECT_EQ("RoCsMgr", processNameFromFileName("diag_RoCsMgr_20051008.txt"));
    EXPECT_EQ("B", processNameFromFileName("DIAG_B_C_D"));
    EXPECT_EQ("", processNameFromFileName("diag__x"));
    EXPECT_EQ("x", processNameFromFileName("_x_"));
}

TEST(ProcessNameFromFileName, RaisesWithoutASecondUnderscore)
{
    for (const char* name : {"", "plain.txt", "diag_RoCsMgr.txt", "_", "trailing_"})
        EXPECT_EQ(5, errorOf([&] { processNameFromFileName(name); })) << name;
}

TEST(PadNumber, PutsZerosInFront)
{
    EXPECT_EQ("007", padNumber(7, 3));
    EXPECT_EQ("123", padNumber(123, 3));
    EXPECT_EQ("0", padNumber(0, 1));
    EXPECT_EQ("00-5", padNumber(-5, 4));
}

TEST(PadNumber, RaisesForATextThatIsLongerAlready)
{
    EXPECT_EQ(5, errorOf([] { padNumber(1234, 3); }));
    EXPECT_EQ(5, errorOf([] { padNumber(0, 0); }));
    EXPECT_EQ(5, errorOf([] { padNumber(std::numeric_limits<std::int32_t>::min(), 10); }));
    EXPECT_EQ(5, errorOf([] { padNumber(1, -1); }));
}

TEST(ParseTimeText, GivesTheTimeOnAZeroDate)
{
    struct Case {
        const char* because;
        const char* text;
        double expectedSeconds;
    };
    constexpr double afternoon = 15 * 3600 + 23 * 60 + 7;
    const Case cases[] = {
        {"the date before the blank does not count", "2005-10-08 15:23:07", afternoon},
        {"milliseconds behind the last colon do not count", "15:23:07:123", afternoon},
        {"a blank with AM or PM behind it belongs to the time", "10/8/2005 3:23:07 PM", afternoon},
        {"without a blank the last part goes, whatever it is", "15:23:07", 15 * 3600 + 23 * 60},
        {"a blank before the third character is passed over", "1 2 03:04:05", 3 * 3600 + 245},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_NEAR(c.expectedSeconds, parseTimeText(c.text).days * 86400, 1e-4);
    }
}

TEST(ParseTimeText, ATextThatIsNoDateRaises13)
{
    for (const char* text : {"noon:00", "2005-10-08 noon", "no time at all", ":", ":::", "   ",
                             "25:00:00:000", "\xFF\xFE\xFD:\x01"})
        EXPECT_EQ(13, errorOf([&] { parseTimeText(text); })) << text;
}

TEST(ParseTimeText, ATextWithoutAColonToEndBeforeRaises5)
{
    for (const char* text : {"", "x", "15", "1 ", "152307123"})
        EXPECT_EQ(5, errorOf([&] { parseTimeText(text); })) << text;
}

TEST(ToLocalTime, FollowsTheZoneThatTheBiasWasReadFrom)
{
    TestTool tool;
    getTZBias(tool.context);
    const auto local = [&](Date universal) {
        return sortableDateTime(toLocalTime(tool.context, universal));
    };
    EXPECT_EQ("2005-10-08 15:23:07", local(dateOf(2005, 10, 8, 22, 23, 7)));
    EXPECT_EQ("2009-12-31 23:59:59", local(dateOf(2010, 1, 1, 7, 59, 59)));
    EXPECT_EQ("2010-07-04 05:00:00", local(dateOf(2010, 7, 4, 12, 0, 0)));
}

TEST(ToLocalTime, IsUniversalTimeBeforeTheZoneWasRead)
{
    TestTool tool;
    EXPECT_EQ("2005-10-08 22:23:07",
              sortableDateTime(toLocalTime(tool.context, dateOf(2005, 10, 8, 22, 23, 7))));
}

TEST(ToLocalTime, RaisesWhatTheServiceRaises)
{
    TestTool tool;
    EXPECT_EQ(5, errorOf([&] { toLocalTime(tool.context, Date{-200000}); }));
}

TEST(WaitForProcess, IsTrueUnlessTheProcessIsNotThere)
{
    TestTool tool;
    tool.processes.running(42);
    EXPECT_TRUE(waitForProcess(tool.context, 42, -1));
    EXPECT_FALSE(waitForProcess(tool.context, 43, 500));
    EXPECT_EQ((std::vector<std::pair<std::int32_t, std::int32_t>>{{42, -1}, {43, 500}}),
              tool.processes.waits());
}

TEST(ReportServerEvent, ReportsUnderTheToolsHandle)
{
    TestTool tool;
    tool.context.g_eventLogHandle = 77;
    reportServerEvent(tool.context, 10, 10004, {"Group", "Trace"});
    reportServerEvent(tool.context, 0, 10002, {});
    EXPECT_EQ((std::vector<FakeEventReporter::Report>{
                  {"OrvanDiagnosticTool_MC", 77, 10, 10004, {"Group", "Trace"}},
                  {"OrvanDiagnosticTool_MC", 77, 0, 10002, {}}}),
              tool.eventReporter.reports());
}

TEST(ReportServerEvent, RaisesWhatTheReporterRaises)
{
    TestTool tool;
    tool.eventReporter.missing();
    EXPECT_EQ(429, errorOf([&] { reportServerEvent(tool.context, 0, 10002, {}); }));
    EXPECT_TRUE(tool.failures().empty());
}

TEST(InitBitMasks, EntryNIsTwoToThePowerN)
{
    TestTool tool;
    initBitMasks(tool.context);
    EXPECT_EQ(1, tool.context.g_bitMasks[0]);
    for (std::size_t level = 1; level < 31; ++level)
        EXPECT_EQ(2 * tool.context.g_bitMasks[level - 1], tool.context.g_bitMasks[level]);
    EXPECT_EQ(std::numeric_limits<std::int32_t>::min(), tool.context.g_bitMasks[31]);
}

TEST(ModuleVersionText, HasALeadingBlankAndSingleBlanksAroundBuild)
{
    FakeHostModule module;
    module.major = 2;
    module.minor = 1;
    module.build = 23;
    EXPECT_EQ(" 2.1 Build 23", moduleVersionText(module));
    module.major = 0;
    module.minor = 0;
    module.build = 0;
    EXPECT_EQ(" 0.0 Build 0", moduleVersionText(module));
}
