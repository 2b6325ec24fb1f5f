#include "shell/shell_fixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* logFile = "diag_RoCsMgr_20051008_152307.txt";
constexpr const char* logPath = "C:\\Logs\\diag_RoCsMgr_20051008_152307.txt";
constexpr const char* routine = "[mdlSnapIn]populateListViewDiagLog";

/// The texts that the status bar showed.
struct StatusTexts final : ConsoleObserver {
    Texts texts;

    void scopeItemAdded(ScopeItem&) override {}
    void scopeItemChanged(ScopeItem&) override {}
    void scopeItemRemoved(ScopeItem&) override {}
    void selectionChanged(View&) override {}
    void viewReset(ResultView&) override {}
    void viewFilled(ResultView&) override {}
    void statusBarChanged(View& view) override { texts.push_back(view.statusBarText()); }
};

struct DiagLogView : ShellTest {
    StatusTexts status;

    DiagLogView() { console.addObserver(status); }

    void withContent(const std::string& content)
    {
        withProcess("RoCsMgr");
        withLog(logFile, content);
    }

    void show()
    {
        load();
        console.expand(processes());
        console.expand(node("RoCsMgr"));
        view().select(node(logFile));
    }
};

std::string rawLine(int number)
{
    return "15:23:07:123,Conv," + std::to_string(number) + ",CallFlow,7,Call answered";
}

} // namespace

TEST_F(DiagLogView, FormatsAndSplitsTheLinesOfALog)
{
    withContent("15:23:07:123,Conv,1234,CallFlow,7,Call answered, at last\r\n"
                "2005-10-08 15:23:08,Ports,-1,Driver,31,caf\xE9\n");

    show();

    EXPECT_THAT(headers(), ElementsAre("#", "Timestamp", "Source", "Trace No.", "Component",
                                       "Level", "Trace"));
    ASSERT_EQ(2, list().itemCount());
    EXPECT_THAT(row(1), ElementsAre("000001", "15:23:07:123", "Conv", "1234", "CallFlow", "7",
                                    "Call answered, at last "));
    EXPECT_THAT(row(2), ElementsAre("000002", "2005-10-08 15:23:08", "Ports", "-1", "Driver", "31",
                                    "caf\xE9 "))
        << "bytes stay as the server wrote them";
    EXPECT_EQ("15:23:07:123 (Conv,1234,CallFlow,7) Call answered, at last ", list().item(1).text());
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(DiagLogView, KeepsItsWidthsButForTheTraceAndTheExtendedFields)
{
    withContent("");
    show();

    std::vector<int> widths;
    for (const auto& header : list().columns()) widths.push_back(header.width);
    EXPECT_THAT(widths, ElementsAre(50, 150, 100, 50, 80, 30, 400));
}

TEST_F(DiagLogView, ShowsThreadPortAndCallIdOfAServerThatLogsThem)
{
    tool.registry.withNumber(baseKey, "MajorVersion", 4).withNumber(baseKey, "MinorVersion", 1);
    tool.eventReporter.extended();
    withContent("15:23:07:123,Conv,1234,T1,P2,C3,CallFlow,7,Call answered\r\n");

    show();

    EXPECT_THAT(headers(), ElementsAre("#", "Timestamp", "Source", "Trace No.", "Component",
                                       "Level", "Thread", "Port", "Call ID", "Trace"));
    EXPECT_EQ(40, list().column(7).width);
    EXPECT_EQ(30, list().column(8).width);
    EXPECT_EQ(100, list().column(9).width);
    EXPECT_EQ(400, list().column(10).width);
    EXPECT_THAT(row(1), ElementsAre("000001", "15:23:07:123", "Conv", "1234", "CallFlow", "7", "T1",
                                    "P2", "C3", "Call answered "));
}

TEST_F(DiagLogView, FindsTenHeadersOnASecondShowingAndAddsNone)
{
    tool.registry.withNumber(baseKey, "MajorVersion", 4).withNumber(baseKey, "MinorVersion", 1);
    withContent("");
    show();
    ASSERT_EQ(10, list().columnCount());

    console.currentView().display("listviewDiagLog", ResultViewType::list);

    EXPECT_EQ(10, list().columnCount());
    EXPECT_EQ("Trace", list().column(10).text);
}

TEST_F(DiagLogView, MakesTheColumnsOfAListThatHasNone)
{
    struct Case {
        const char* because;
        bool extended;
        int expected;
    };
    const Case cases[] = {{"a server without the fields", false, 7}, {"one with them", true, 10}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        ShellTest::definition.listViews[0].columns.clear();
        TestTool fresh;
        fresh.registry.withNumber(baseKey, "MajorVersion", 4)
            .withNumber(baseKey, "MinorVersion", c.extended ? 1 : 0);
        Console itsConsole(definition);
        snapinOrvanDiagnostics its(fresh.context, itsConsole);
        itsConsole.load(its);
        ScopeItem& root = itsConsole.scopeItems().item(1);

        itsConsole.currentView().select(itsConsole.scopeItems().addChild("nodeLogs", "log", root));

        ListView& made = itsConsole.currentView().selectedScopePaneItem().resultView().list();
        EXPECT_EQ(c.expected, made.columnCount());
        EXPECT_EQ("", made.column(1).text);
        EXPECT_EQ(automaticWidth, made.column(1).width);
        EXPECT_EQ("Trace", made.column(c.expected).text);
    }
}

TEST_F(DiagLogView, NumbersOnlyTheLinesThatAreNotEmpty)
{
    withContent("\r\n" + rawLine(1) + "\r\n\r\n\r\n" + rawLine(2) + "\r\n\r\n" + rawLine(3));

    show();

    EXPECT_THAT(column(1), ElementsAre("000001", "000002", "000003"));
    EXPECT_THAT(column(4), ElementsAre("1", "2", "3"));
}

TEST_F(DiagLogView, KeepsALineWithoutAKnownFormBesideItsBlankRow)
{
    const std::string dataLine = "2005-10-08 22:23:07,Conv,12,caf\xE9 opened";
    const std::string longLine = std::string(510, '?') + "tail";
    withContent(dataLine + "\r\n" + rawLine(1) + "\r\nshort\r\n" + longLine + "\r\n");

    show();

    ASSERT_EQ(4, list().itemCount());
    EXPECT_THAT(row(1), ElementsAre("000001", "", "", "0", "", "0", ""));
    EXPECT_EQ(" ", list().item(1).text());
    EXPECT_EQ(dataLine, list().item(1).note());
    EXPECT_EQ("", list().item(2).note()) << "its columns show all of it";
    EXPECT_THAT(row(3), ElementsAre("000003", "", "", "0", "", "0", ""));
    EXPECT_EQ("short", list().item(3).note());
    EXPECT_THAT(row(4), ElementsAre("000004", "", "", "0", "", "0", "tail"));
    EXPECT_EQ(longLine, list().item(4).note());
}

TEST_F(DiagLogView, EndsAnEmptyLogWithAnEmptyListAndItsText)
{
    withContent("");

    show();

    EXPECT_EQ(0, list().itemCount());
    EXPECT_THAT(status.texts, ElementsAre("Formatting Log...", "Format Completed."));
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(DiagLogView, ReportsTheBytesLeftAtLineOneAndEveryThousandth)
{
    std::string content;
    Texts expected = {"Formatting Log..."};
    std::size_t read = 0;
    std::vector<std::size_t> readAt;
    for (int number = 1; number <= 2001; ++number) {
        const std::string line = rawLine(number);
        content += line + "\r\n";
        read += line.size();
        if (number == 1 || number == 1000 || number == 2000) readAt.push_back(read);
    }
    for (const std::size_t seen : readAt)
        expected.push_back("Formatting Log... " + std::to_string(content.size() - seen) +
                           " Bytes Left");
    expected.push_back("Format Completed.");
    withContent(content);

    show();

    EXPECT_EQ(expected, status.texts);
    EXPECT_EQ(2001, list().itemCount());
}

TEST_F(DiagLogView, CountsNoLineEndsInTheBytesLeft)
{
    withContent(rawLine(1) + "\r\n");

    show();

    EXPECT_EQ("Formatting Log... 2 Bytes Left", status.texts.at(1));
}

TEST_F(DiagLogView, ShowsALogOfTheLargestSizeAndNoLargerOne)
{
    struct Case {
        const char* because;
        std::size_t size;
        bool shown;
    };
    const Case cases[] = {
        {"the limit itself is shown", 2'500'000, true},
        {"one byte more is not", 2'500'001, false},
    };
    withContent("");
    show();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        std::string content = rawLine(1);
        content.resize(c.size, '\n');
        tool.files.with(logPath, content);
        const std::size_t before = tool.desktop.messages().size();

        view().display("listviewDiagLog", ResultViewType::list);

        EXPECT_EQ(c.shown ? 0u : 1u, tool.desktop.messages().size() - before);
        EXPECT_EQ(c.shown ? "Format Completed." : "Formatting Log...", view().statusBarText());
        EXPECT_EQ(c.shown ? 1 : 0, list().itemCount());
    }
}

TEST_F(DiagLogView, RefusesALogWhoseSizeTakesMoreThanThirtyTwoBits)
{
    withContent("");
    tool.files.withSize(logPath, 4'294'967'296 + 100);

    show();

    EXPECT_EQ(1u, tool.desktop.messages().size());
}

TEST_F(DiagLogView, SaysWhatToDoWithALogThatIsTooLarge)
{
    withContent("");
    tool.files.withSize(logPath, 2'500'001);

    show();

    EXPECT_THAT(tool.desktop.messages(),
                ElementsAre(FakeDesktop::Message{
                    std::string(logPath) +
                        " is too large to display in the Orvan Diagnostic Tool.\r\n"
                        "Please use the Gather Logs Wizard to format this log file.\r\n"
                        "You can then view the formatted log file in the editor of your choice.",
                    "Log too large to display.", MessageIcon::critical}));
}

TEST_F(DiagLogView, SaysThatALogIsNotThere)
{
    withContent("");
    load();
    console.expand(processes());
    console.expand(node("RoCsMgr"));
    tool.files.deleteFile(logPath);

    view().select(node(logFile));

    EXPECT_THAT(tool.desktop.messages(),
                ElementsAre(FakeDesktop::Message{"Log file: " + std::string(logPath) +
                                                     " can not be found.  Log not processed.",
                                                 "Log not found", MessageIcon::critical}));
    EXPECT_EQ(0, list().itemCount());
    EXPECT_EQ("Formatting Log...", view().statusBarText());
}

TEST_F(DiagLogView, LeavesTheToolLogOneStepDeeperAfterARefusal)
{
    withContent("");
    tool.files.withSize(logPath, 2'500'001);

    show();

    EXPECT_TRUE(tool.logged("Entering " + std::string(routine)));
    EXPECT_FALSE(tool.logged("Exiting " + std::string(routine)));

    tool.files.with(logPath, "");
    view().display("listviewDiagLog", ResultViewType::list);
    EXPECT_TRUE(tool.logged("Exiting " + std::string(routine) + "_1"));
}

TEST_F(DiagLogView, LooksForABareNameInTheWorkingFolderFirst)
{
    withContent(rawLine(1));
    tool.files.with("C:\\Work\\" + std::string(logFile), rawLine(2) + "\n" + rawLine(3));
    tool.files.changeFolder("C:\\Work");

    show();

    EXPECT_THAT(column(4), ElementsAre("2", "3"));
}

TEST_F(DiagLogView, CutsALongCallIdFromTheTrace)
{
    tool.registry.withNumber(baseKey, "MajorVersion", 4).withNumber(baseKey, "MinorVersion", 1);
    tool.eventReporter.extended();
    const std::string callId(32, 'c');
    withContent("15:23:07:123,Conv,1,T,P," + callId + ",CallFlow,7,Call answered\r\n");

    show();

    EXPECT_EQ(callId, list().item(1).subItem(9));
    EXPECT_EQ("Call answered ", list().item(1).subItem(10));
}

TEST_F(DiagLogView, GivesABadLineARowWithWhatCouldBeRead)
{
    withContent("too short\r\nno log line at all, but long enough\r\n" + rawLine(3) + "\r\n");

    show();

    EXPECT_THAT(column(1), ElementsAre("000001", "000002", "000003"));
    EXPECT_THAT(row(1), ElementsAre("000001", "", "", "0", "", "0", ""));
    EXPECT_EQ("Call answered ", row(3)[6]);
}

TEST_F(DiagLogView, EndsALogWhoseReadingFails)
{
    withContent(rawLine(1) + "\r\n" + rawLine(2) + "\r\n" + rawLine(3) + "\r\n");
    tool.files.failingAfterLines(logPath, 2, 57);

    show();

    EXPECT_THAT(column(4), ElementsAre("1", "2"));
    EXPECT_THAT(tool.failures(routine), ElementsAre(testing::StartsWith("Err.Number = 57")));
    EXPECT_EQ("Format Completed.", view().statusBarText());
}

TEST_F(DiagLogView, ShowsTheEmptyTailOfEachLineWhenTheServersFormatterIsMissing)
{
    withContent(rawLine(1) + "\r\n");
    tool.eventReporter.missing();

    show();

    ASSERT_EQ(1, list().itemCount());
    EXPECT_EQ(" ", list().item(1).text());
    EXPECT_EQ("000001", list().item(1).subItem(1));
}
