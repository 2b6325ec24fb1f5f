#include "logreader/log_file_names.h"

#include "support/test_tool.h"
#include "support/traced_pairs.h"

#include <gtest/gtest.h>

using mdlDiagnostics::appendFormattedTagToFile;
using mdlDiagnostics::getCurrentDiagnosticFile;
using mdlDiagnostics::parseDateFromFileName;

namespace {
const std::string processKey = "Software\\Kelma Systems\\Kelma Orvan\\RoLogMgr\\Process\\RoCsMgr";
} // namespace

TEST(GetCurrentDiagnosticFile, GivesTheBareNameOfAFileThatIsThere)
{
    TestTool tool;
    tool.files.with("C:\\Logs\\diag_RoCsMgr_20051008_152307.txt", "x");
    tool.registry.withText(processKey, "CurrentLogFile",
                           "C:\\Logs\\diag_RoCsMgr_20051008_152307.txt");
    EXPECT_EQ("diag_RoCsMgr_20051008_152307.txt",
              getCurrentDiagnosticFile(tool.context, "RoCsMgr"));
    EXPECT_TRUE(tool.failures().empty());
    EXPECT_TRUE(tool.logged("Entering [mdlDiagnostics]getCurrentDiagnosticFile"));
}

TEST(GetCurrentDiagnosticFile, GivesNothingForAFileThatWasMovedAway)
{
    TestTool tool;
    tool.registry.withText(processKey, "CurrentLogFile", "C:\\Logs\\gone.txt");
    EXPECT_EQ("", getCurrentDiagnosticFile(tool.context, "RoCsMgr"));
}

TEST(GetCurrentDiagnosticFile, GivesNothingForAProcessWithoutAKey)
{
    TestTool tool;
    EXPECT_EQ("", getCurrentDiagnosticFile(tool.context, "RoCsMgr"));
    EXPECT_TRUE(tool.failures().empty());
}

TEST(GetCurrentDiagnosticFile, TakesEitherSeparatorForTheEndOfTheFolder)
{
    TestTool tool;
    tool.files.with("C:\\Logs\\a.txt", "x");
    tool.registry.withText(processKey, "CurrentLogFile", "C:\\Logs/a.txt");
    EXPECT_EQ("a.txt", getCurrentDiagnosticFile(tool.context, "RoCsMgr"));
}

TEST(GetCurrentDiagnosticFile, LogsAFileSystemThatFails)
{
    TestTool tool;
    tool.registry.withText(processKey, "CurrentLogFile", "C:\\Logs\\a.txt");
    tool.files.with("C:\\Logs\\a.txt", "x").failing("C:\\Logs\\a.txt", 70);
    EXPECT_EQ("", getCurrentDiagnosticFile(tool.context, "RoCsMgr"));
    EXPECT_EQ(1U, tool.failures("[mdlDiagnostics]getCurrentDiagnosticFile").size());
}

TEST(ParseDateFromFileName, ReadsTheMomentThatTheFileWasOpened)
{
    TestTool tool;
    EXPECT_EQ(dateOf(2005, 10, 8, 15, 23, 7),
              parseDateFromFileName(tool.context, "RoCsMgr", "diag_RoCsMgr_20051008_152307.txt"));
    EXPECT_EQ(
        dateOf(2005, 10, 8, 15, 23, 7),
        parseDateFromFileName(tool.context, "RoCsMgr", "diag_RoCsMgr_20051008_152307_fmtd.txt"));
    EXPECT_TRUE(tool.failures().empty());
}

TEST(ParseDateFromFileName, ANameThatDoesNotFitIsLoggedAndGivesTheZeroDate)
{
    struct Case {
        const char* because;
        const char* process;
        const char* fileName;
    };
    const Case cases[] = {
        {"no digits", "RoCsMgr", "diag_RoCsMgr_latest.txt"},
        {"a month that is none", "RoCsMgr", "diag_RoCsMgr_20051308_152307.txt"},
        {"too short", "RoCsMgr", "diag_RoCsMgr_"},
        {"the empty name", "RoCsMgr", ""},
        {"a process that the name lacks", "Other", "diag_RoCsMgr_20051008_152307.txt"},
        {"a process that is part of an earlier piece is found there", "ia",
         "diag_ia_20051008_152307.txt"},
        {"the case of the process counts", "rocsmgr", "diag_RoCsMgr_20051008_152307.txt"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool tool;
        EXPECT_EQ(Date{}, parseDateFromFileName(tool.context, c.process, c.fileName));
        EXPECT_EQ((std::vector<std::string>{"Err.Number = 13 Err.Description = Type mismatch"}),
                  tool.failures("[mdlDiagnostics]parseDateFromFileName"));
    }
}

TEST(ParseDateFromFileName, TakesTheFirstPlaceWhereTheProcessStands)
{
    TestTool tool;
    EXPECT_EQ(dateOf(1999, 1, 2, 3, 4, 5),
              parseDateFromFileName(tool.context, "Ro", "Ro_19990102_030405_Ro_20051008_152307"));
}

TEST(AppendFormattedTagToFile, PutsTheTagBeforeTheFirstPoint)
{
    TestTool tool;
    EXPECT_EQ("diag_RoCsMgr_20051008_152307_fmtd.txt",
              appendFormattedTagToFile(tool.context, "diag_RoCsMgr_20051008_152307.txt"));
    EXPECT_EQ("a_fmtd.b.txt", appendFormattedTagToFile(tool.context, "a.b.txt"));
    EXPECT_EQ("_fmtd.txt", appendFormattedTagToFile(tool.context, ".txt"));
    EXPECT_TRUE(tool.failures().empty());
}

TEST(AppendFormattedTagToFile, ANameWithoutAPointIsLoggedAndGivesNothing)
{
    TestTool tool;
    EXPECT_EQ("", appendFormattedTagToFile(tool.context, "diag"));
    EXPECT_EQ((std::vector<std::string>{
                  "Err.Number = 5 Err.Description = Invalid procedure call or argument"}),
              tool.failures("[mdlDiagnostics]appendFormattedTagToFile"));
}

TEST(LogFileNames, EachRoutineIsTracedWhenItEndsWellAndWhenItFails)
{
    TestTool tool;
    getCurrentDiagnosticFile(tool.context, "RoCsMgr");
    for (const std::string name : {"diag_RoCsMgr_20051008_152307.txt", "nothing"}) {
        parseDateFromFileName(tool.context, "RoCsMgr", name);
        appendFormattedTagToFile(tool.context, name);
    }
    EXPECT_EQ(2U, tool.failures().size());
    for (const std::string routine :
         {"getCurrentDiagnosticFile", "parseDateFromFileName", "appendFormattedTagToFile"})
        EXPECT_TRUE(tool.logged("Entering [mdlDiagnostics]" + routine + "_0")) << routine;
    EXPECT_EQ(std::vector<std::string>{}, tracesOutOfPairs(tool));
}
