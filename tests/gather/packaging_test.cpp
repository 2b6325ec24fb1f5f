#include "gather/packaging.h"

#include "support/test_tool.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

const std::string stamp = "20051008_152307";
const std::string database = "C:\\Out\\ORVAN01_WPN_" + stamp + ".mdb";
const std::string createProc = "[mdlLogs]createNewDB";
const std::string packProc = "[mdlLogs]compressResults";
const std::string head = ".Option EXPLICIT\r\n"
                         ".Set CabinetNameTemplate=..\\ORVAN01_WPN_" +
                         stamp +
                         ".cab\r\n"
                         ".Set Cabinet=on\r\n"
                         ".Set Compress=on\r\n"
                         ".Set MaxDiskSize=CDROM\r\n";

/// A tool with a template and a cabinet maker that works.
struct PackagingTool : TestTool {
    PackagingTool()
    {
        files.with("C:\\OrvanDiagnostics\\blankWPNDB.mdb", "blank")
            .with("C:\\OrvanDiagnostics\\cabmaker.exe", "program")
            .withFolder("C:\\Out");
        processes.onStart([this](const std::string&) {
            directives = files.content("C:\\Out\\ZMK.DDF");
            directivesOpen = files.isOpen("C:\\Out\\ZMK.DDF");
            folderOfRun = files.currentFolder();
            programBeside = files.fileExists("C:\\Out\\cabmaker.exe");
            files.with("C:\\Out\\setup.rpt")
                .with("C:\\Out\\setup.inf")
                .withFolder("C:\\Out\\disk1");
        });
    }

    std::string directives;
    std::string folderOfRun;
    bool directivesOpen = true;
    bool programBeside = false;
};

} // namespace

TEST(CreateNewDB, CopiesTheTemplateUnderTheComputersNameAndTheMoment)
{
    PackagingTool tool;
    EXPECT_EQ(database, mdlLogs::createNewDB(tool.context, "C:\\Out"));
    EXPECT_EQ("blank", tool.files.content(database));
    EXPECT_TRUE(tool.failures().empty());
    EXPECT_TRUE(tool.logged("Entering " + createProc));
    EXPECT_TRUE(tool.logged("Exiting " + createProc));
}

TEST(CreateNewDB, ACopyOfAReadOnlyTemplateMayBeWritten)
{
    PackagingTool tool;
    tool.files.readOnly("C:\\OrvanDiagnostics\\blankWPNDB.mdb");
    mdlLogs::createNewDB(tool.context, "C:\\Out");
    EXPECT_FALSE(tool.files.isReadOnly(database));
}

TEST(CreateNewDB, ASecondOneInOneSecondOverwritesTheFirst)
{
    PackagingTool tool;
    tool.files.with(database, "rows of an earlier gather");
    EXPECT_EQ(database, mdlLogs::createNewDB(tool.context, "C:\\Out"));
    EXPECT_EQ("blank", tool.files.content(database));
}

TEST(CreateNewDB, GivesThePathWithoutATemplateToo)
{
    PackagingTool tool;
    tool.files.deleteFile("C:\\OrvanDiagnostics\\blankWPNDB.mdb");
    EXPECT_EQ(database, mdlLogs::createNewDB(tool.context, "C:\\Out"));
    EXPECT_FALSE(tool.files.fileExists(database));
    EXPECT_EQ((std::vector<std::string>(2, "Err.Number = 53 Err.Description = File not found")),
              tool.failures(createProc));
}

TEST(CompressResults, WritesTheDirectivesLineByLine)
{
    struct Case {
        const char* because;
        std::vector<std::string> files;
        std::string members;
    };
    const Case cases[] = {
        {"both event logs and the database",
         {"C:\\Out\\Application.csv", "C:\\Out\\System.csv", database},
         "\"C:\\Out\\Application.csv\"\r\n\"C:\\Out\\System.csv\"\r\n\"" + database + "\"\r\n"},
        {"the database alone", {database}, "\"" + database + "\"\r\n"},
        {"no database", {"C:\\Out\\System.csv"}, "\"C:\\Out\\System.csv\"\r\n"},
        {"another event log stays out", {"C:\\Out\\Security.csv"}, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        PackagingTool tool;
        for (const auto& file : c.files) tool.files.with(file, "x");
        mdlLogs::compressResults(tool.context, "C:\\Out", database);
        EXPECT_EQ(head + c.members, tool.directives);
    }
}

TEST(CompressResults, WritesTheDirectivesInTheSingleByteEncoding)
{
    PackagingTool tool;
    const std::string path = "C:\\Out\\caf\xC3\xA9 \xE2\x82\xAC.mdb";
    tool.files.with(path, "x");
    mdlLogs::compressResults(tool.context, "C:\\Out", path);
    EXPECT_EQ(head + "\"C:\\Out\\caf\xE9 \x80.mdb\"\r\n", tool.directives);
}

TEST(CompressResults, RunsTheCopiedCabinetMakerHiddenAndWaitsForItsEnd)
{
    PackagingTool tool;
    tool.files.with(database, "x");
    mdlLogs::compressResults(tool.context, "C:\\Out", database);
    const std::string command = "\"C:\\Out\\cabmaker\" /f \"C:\\Out\\ZMK.DDF\"";
    EXPECT_EQ((std::vector<std::string>{command}), tool.processes.commandLines());
    EXPECT_EQ((std::vector<WindowStyle>{WindowStyle::hidden}), tool.processes.windows());
    ASSERT_EQ(1U, tool.processes.waits().size());
    EXPECT_EQ(-1, tool.processes.waits()[0].second);
    EXPECT_EQ("C:\\Out", tool.folderOfRun);
    EXPECT_TRUE(tool.programBeside);
    EXPECT_FALSE(tool.directivesOpen) << "all of them are in the file by then";
    EXPECT_TRUE(tool.logged("Command: " + command));
    EXPECT_TRUE(tool.failures().empty());
}

TEST(CompressResults, RemovesAllButTheResults)
{
    PackagingTool tool;
    tool.files.with(database, "x").with("C:\\Out\\Application.csv", "x");
    mdlLogs::compressResults(tool.context, "C:\\Out", database);
    std::vector<std::string> names;
    for (const auto& entry : tool.files.entries("C:\\Out")) names.push_back(entry.name);
    EXPECT_EQ((std::vector<std::string>{"Application.csv", "ORVAN01_WPN_" + stamp + ".mdb"}),
              names);
    EXPECT_TRUE(tool.files.fileExists("C:\\OrvanDiagnostics\\cabmaker.exe"));
}

TEST(CompressResults, NamesWhatTheSingleByteEncodingLacksInUtf8BehindItsMark)
{
    PackagingTool tool;
    std::string directives;
    tool.processes.onStart([&](const std::string&) {
        directives = tool.files.content("C:\\\xE3\x82\xB1 \"\xC3\xBC\\ZMK.DDF");
    });
    const std::string folder = "C:\\\xE3\x82\xB1 \"\xC3\xBC";
    tool.files.with(folder + "\\x.mdb", "x");
    mdlLogs::compressResults(tool.context, folder, folder + "\\x.mdb");
    EXPECT_TRUE(directives.starts_with("\xEF\xBB\xBF.Option EXPLICIT\r\n")) << directives;
    EXPECT_NE(std::string::npos,
              directives.find("\r\n\"C:\\\xE3\x82\xB1 \"\"\xC3\xBC\\x.mdb\"\r\n"))
        << directives;
    EXPECT_EQ("\"C:\\\xE3\x82\xB1 \"\"\xC3\xBC\\cabmaker\" /f \"C:\\\xE3\x82\xB1 \"\"\xC3\xBC"
              "\\ZMK.DDF\"",
              tool.processes.commandLines().back());
}

TEST(CompressResults, ChangesToTheDriveAndThenToTheFolder)
{
    PackagingTool tool;
    mdlLogs::compressResults(tool.context, "C:\\Out", database);
    const auto& asked = tool.files.asked();
    const std::vector<std::string> changes = {"C:", "C:\\Out"};
    EXPECT_NE(asked.end(), std::search(asked.begin(), asked.end(), changes.begin(), changes.end()));
}

TEST(CompressResults, CleansUpInItsOrder)
{
    PackagingTool tool;
    mdlLogs::compressResults(tool.context, "C:\\Out", database);
    const auto& asked = tool.files.asked();
    const std::vector<std::string> removed = {"C:\\Out\\setup.rpt", "C:\\Out\\setup.inf",
                                              "C:\\Out\\ZMK.DDF", "C:\\Out\\disk1",
                                              "C:\\Out\\cabmaker.exe"};
    ASSERT_GE(asked.size(), removed.size());
    EXPECT_EQ(removed, std::vector<std::string>(asked.end() - 5, asked.end()));
}

TEST(CompressResults, RemovesTheDirectiveFileUnderTheNameItWasMadeWith)
{
    PackagingTool tool;
    mdlLogs::compressResults(tool.context, "C:\\Out", database);
    const auto& asked = tool.files.asked();
    EXPECT_NE(asked.end(), std::find(asked.begin(), asked.end(), "C:\\Out\\ZMK.DDF"));
    EXPECT_EQ(asked.end(), std::find(asked.begin(), asked.end(), "C:\\Out\\zmk.ddf"));
}

TEST(CompressResults, AMissingCabinetMakerIsLoggedAndTheCleanUpRuns)
{
    PackagingTool tool;
    tool.files.deleteFile("C:\\OrvanDiagnostics\\cabmaker.exe");
    tool.files.with(database, "x");
    tool.processes.missing("C:\\Out\\cabmaker");
    mdlLogs::compressResults(tool.context, "C:\\Out", database);
    EXPECT_FALSE(tool.files.fileExists("C:\\Out\\ZMK.DDF"));
    EXPECT_TRUE(tool.files.fileExists(database));
    EXPECT_TRUE(tool.logged("Exiting " + packProc));
    EXPECT_EQ(6U, tool.failures(packProc).size())
        << "its copy, its start, its three reports and its copy's removal";
}

TEST(CompressResults, ACabinetMakerThatLeavesNothingIsNoReasonToStop)
{
    PackagingTool tool;
    tool.processes.onStart({});
    mdlLogs::compressResults(tool.context, "C:\\Out", database);
    EXPECT_EQ((std::vector<std::string>{"Err.Number = 53 Err.Description = File not found",
                                        "Err.Number = 53 Err.Description = File not found",
                                        "Err.Number = 76 Err.Description = Path not found"}),
              tool.failures(packProc));
    EXPECT_FALSE(tool.files.fileExists("C:\\Out\\cabmaker.exe"));
}

TEST(CompressResults, ADestinationThatVanishedFailsStatementByStatement)
{
    PackagingTool tool;
    mdlLogs::compressResults(tool.context, "C:\\Gone", "C:\\Gone\\x.mdb");
    EXPECT_TRUE(tool.logged("Exiting " + packProc));
    EXPECT_FALSE(tool.failures(packProc).empty());
}
