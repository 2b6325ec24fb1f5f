#include "hosts/mmc/loaded_snap_in.h"

#include <algorithm>
#include <cstdio>
#include <fstream>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace stand_in {

namespace {

class Views : public SnapInTest {};

const char* const currentLog = "Processes/KoCSMgr/Current- diag_KoCSMgr_20250219_144115.txt";

std::vector<std::string> captions(const std::vector<MenuItem>& items)
{
    std::vector<std::string> found;
    for (const MenuItem& item : items)
        found.push_back(item.enabled ? item.caption : "(" + item.caption + ")");
    return found;
}

std::string manyLines(int count)
{
    std::string lines;
    char line[80];
    for (int number = 1; number <= count; ++number) {
        std::snprintf(line, sizeof line, "10:00:00:%03d,CallSvc,1236,CallFlow,2,line %d\n",
                      number % 1000, number);
        lines += line;
    }
    return lines;
}

TEST_F(Views, ShowTheTreeThatTheServerHas)
{
    const auto lines = open().outline();

    ASSERT_GE(lines.size(), 5U);
    EXPECT_EQ("Kelma Orvan Diagnostics", lines[0]);
    EXPECT_EQ("  Processes", lines[1]);
    EXPECT_EQ("    KoCSMgr", lines[2]);
    EXPECT_EQ("      Current- diag_KoCSMgr_20250219_144115.txt", lines[3]);
    EXPECT_EQ("      diag_KoCSMgr_20250218_145617.txt", lines[4]);
    EXPECT_THAT(lines, Not(Contains(HasSubstr("fmtd"))));
    EXPECT_THAT(lines, Contains("    KoTelephony"));
}

TEST_F(Views, ListProcessesAndTheirLogs)
{
    Window& window = open().window();
    window.select("Processes");
    EXPECT_THAT(window.columnTitles(), SizeIs(1));
    EXPECT_THAT(window.rows(), Contains(ElementsAre("KoCSMgr")));

    window.select("Processes/KoCSMgr");
    EXPECT_THAT(window.columnTitles(),
                ElementsAre(" ", "Current", "File Name", "Time Stamp", "Size (Bytes)"));
    const auto rows = window.rows();
    ASSERT_THAT(rows, SizeIs(3));
    EXPECT_EQ("x", rows[0][1]);
    EXPECT_EQ("diag_KoCSMgr_20250219_144115.txt", rows[0][2]);
    EXPECT_EQ("", rows[2][1]);
    EXPECT_EQ("diag_KoCSMgr_20250217_174229.txt", rows[2][2]);
}

TEST_F(Views, OpenALogByADoubleClickOnItsRow)
{
    Window& window = open().window();
    window.select("Processes/KoCSMgr");
    window.doubleClick(window.findRow(2, "diag_KoCSMgr_20250218_145617.txt"));

    EXPECT_EQ("Processes/KoCSMgr/diag_KoCSMgr_20250218_145617.txt", window.selectedPath());
    EXPECT_THAT(window.columnTitles(), ElementsAre("#", "Timestamp", "Source", "Trace No.",
                                                   "Component", "Level", "Trace"));
    EXPECT_GT(window.rowCount(), 3);
    EXPECT_EQ("000001", window.cell(0, 0));
    EXPECT_EQ("Format Completed.", window.statusText());
}

TEST_F(Views, ReadALogOfThirtyThousandLinesRowByRow)
{
    writeLog("diag_KoCSMgr_20250210_100000.txt", manyLines(30000));
    Window& window = open().window();
    window.select("Processes/KoCSMgr/diag_KoCSMgr_20250210_100000.txt");

    ASSERT_EQ(Shown::virtualList, window.shown());
    ASSERT_EQ(30000, window.rowCount());
    for (const int row : {0, 29999, 17, 15003, 29998, 1, 12345}) {
        char number[16];
        std::snprintf(number, sizeof number, "%06d", row + 1);
        const auto cells = window.row(row);
        EXPECT_EQ(number, cells[0]);
        EXPECT_EQ("line " + std::to_string(row + 1) + " ", cells[6]);
    }

    // The list changes under what was read.
    window.select("Processes/KoCSMgr");
    EXPECT_THAT(window.rows(), SizeIs(4));
    window.select(currentLog);
    EXPECT_EQ("000001", window.row(0)[0]);
}

TEST_F(Views, SortALogByAColumnAndBack)
{
    writeLog("diag_KoCSMgr_20250210_100000.txt", manyLines(12));
    Window& window = open().window();
    window.select("Processes/KoCSMgr/diag_KoCSMgr_20250210_100000.txt");

    window.sort(0, true);
    EXPECT_EQ("000012", window.cell(0, 0));
    EXPECT_EQ("line 12 ", window.cell(0, 6));
    window.sort(0, false);
    EXPECT_EQ("000001", window.cell(0, 0));
}

TEST_F(Views, OfferTheSameMenusEverywhere)
{
    Window& window = open().window();
    for (const char* path : {"", "Processes", "Processes/KoCSMgr", currentLog}) {
        SCOPED_TRACE(path);
        window.select(path);
        EXPECT_THAT(captions(window.contextMenu()),
                    testing::UnorderedElementsAre(
                        "Open Log File", "Change Orvan Event Log Language", "German (Germany)",
                        "English (United States)", "Spanish (Spain, Traditional Sort)",
                        "French (France)", "Japanese (Japan)", "Configure Macro Traces",
                        "Configure Micro Traces", "Reset to Default Traces", "Start New Log Files",
                        "Gather Log Files", "Configure Log Settings"));
    }
    EXPECT_THAT(console_->menuOf("Processes"), SizeIs(13));
}

TEST_F(Views, SpeakTheLanguageThatIsChosenInTheMenu)
{
    Window& window = open().window();
    window.select("");
    window.choose("French (France)");

    EXPECT_THAT(registry(), HasSubstr("\"CurrentLocalizationLanguage\"=\"1036\""));
    EXPECT_THAT(captions(window.contextMenu()), Contains("Configurer les macro-traces"));
    window.refresh();
    ASSERT_FALSE(window.tasks().empty());
    EXPECT_EQ("Configurer les macro-traces", window.tasks().front().text);
}

TEST_F(Views, OfferRefreshAndNoOtherVerb)
{
    Window& window = open().window();
    window.select("Processes/KoCSMgr");
    EXPECT_TRUE(window.isVerbEnabled(MMC_VERB_REFRESH));
    for (const int verb : {MMC_VERB_COPY, MMC_VERB_DELETE, MMC_VERB_PROPERTIES, MMC_VERB_RENAME})
        EXPECT_FALSE(window.isVerbEnabled(static_cast<MMC_CONSOLE_VERB>(verb)));
    console_->sendWhatIsNotHandled();
}

TEST_F(Views, ShowTheTasksOnAPadWhereTheConsolePrefersPads)
{
    Window& window = open().window();
    ASSERT_EQ(Shown::taskPad, window.shown());
    EXPECT_EQ("Kelma Orvan Diagnostic Tasks", window.taskPadTitle());
    EXPECT_EQ("Common diagnostics tasks for Kelma Orvan", window.taskPadText());
    std::vector<std::string> texts;
    for (const Task& task : window.tasks()) texts.push_back(task.text);
    EXPECT_THAT(texts, ElementsAre("Configure Macro Traces", "Configure Micro Traces",
                                   "Reset to Default Traces", "Start New Log Files",
                                   "Gather Log Files", "Configure Log Settings"));

    window.clickTask("Start New Log Files");
    EXPECT_EQ("New log files started.", window.statusText());
}

TEST_F(Views, ListTheTasksWhereTheConsolePrefersLists)
{
    ConsoleOptions lists;
    lists.prefersTaskPads = false;
    Window& window = open(lists).window();
    ASSERT_THAT(window.shown(), testing::AnyOf(Shown::list, Shown::virtualList));
    const int row = window.findRow(0, "Start New Log Files");
    ASSERT_GE(row, 0);

    window.doubleClick(row);

    EXPECT_EQ("New log files started.", window.statusText());
}

TEST_F(Views, ShowLogFilesThatCameSinceWhenRefreshed)
{
    Window& window = open().window();
    window.select("Processes/KoCSMgr");
    writeLog("diag_KoCSMgr_20250216_090000.txt", "");
    ASSERT_TRUE(window.refresh());

    EXPECT_THAT(console_->children("Processes/KoCSMgr"),
                Contains("diag_KoCSMgr_20250216_090000.txt"));
    EXPECT_GE(window.findRow(2, "diag_KoCSMgr_20250216_090000.txt"), 0);
}

TEST_F(Views, OfTwoWindowsHaveSelectionsOfTheirOwn)
{
    Window& first = open().window();
    first.select("Processes/KoCSMgr");
    Window& second = console_->openWindow();
    second.select(currentLog);

    EXPECT_EQ("Processes/KoCSMgr", first.selectedPath());
    EXPECT_EQ(5U, first.columns().size());
    EXPECT_EQ(7U, second.columns().size());
    EXPECT_EQ("diag_KoCSMgr_20250219_144115.txt", first.row(0)[2]);
    EXPECT_EQ("000001", second.row(0)[0]);

    console_->closeWindow(1);
    EXPECT_EQ("diag_KoCSMgr_20250219_144115.txt", first.row(0)[2]);
    first.select("Processes");
    EXPECT_EQ("Processes", first.selectedPath());
}

TEST_F(Views, OfTwoConsolesDoNotMeet)
{
    Window& first = open().window();
    first.select("Processes/KoCSMgr");
    const auto other = another();
    other->window().select("Processes/KoNotify");

    EXPECT_EQ("Processes/KoCSMgr", first.selectedPath());
    expectObedience(*other);
    first.select(currentLog);
    EXPECT_EQ("000001", first.row(0)[0]);
}

TEST_F(Views, TakeTheHelpKeyAndNameTheHelpFile)
{
    Window& window = open().window();
    window.select("Processes");
    EXPECT_TRUE(window.help());
    EXPECT_TRUE(console_->helpOnSnapIn());
    EXPECT_THAT(console_->helpFile(), testing::EndsWith(".chm"));
}

TEST_F(Views, LoadAndUnloadAHundredTimesWithoutGrowing)
{
    const auto pagesInUse = [] {
        long all = 0;
        long resident = 0;
        long shared = 0;
        std::ifstream counts("Z:\\proc\\self\\statm");
        counts >> all >> resident >> shared;
        return resident - shared;
    };
    SiteModule::get();
    long afterTen = 0;
    for (int load = 0; load < 100; ++load) {
        const auto console = another();
        console->window().select("Processes");
        expectObedience(*console);
        if (load == 9) afterTen = pagesInUse();
    }
    ASSERT_GT(afterTen, 0);
    // Pages of 4 KiB: a load may not cost as much as two of them.
    EXPECT_LT(pagesInUse() - afterTen, 180);
}

TEST(Identity, IsToldWithoutATool)
{
    Held<ISnapinAbout> about;
    ASSERT_EQ(S_OK, SiteModule::get().make(SiteModule::about, iid::snapinAbout,
                                           reinterpret_cast<void**>(about.place())));
    Contract contract;
    LPOLESTR text = nullptr;
    ASSERT_EQ(S_OK, about->GetSnapinDescription(&text));
    EXPECT_EQ("The snap-in on a site", contract.takeText(text, "the description"));
    ASSERT_EQ(S_OK, about->GetProvider(&text));
    EXPECT_EQ("Tests", contract.takeText(text, "the provider"));
    ASSERT_EQ(S_OK, about->GetSnapinVersion(&text));
    EXPECT_EQ(" 4.3 Build 10", contract.takeText(text, "the version"));

    HICON icon = nullptr;
    EXPECT_EQ(S_OK, about->GetSnapinImage(&icon));
    ICONINFO known;
    EXPECT_TRUE(GetIconInfo(icon, &known));
    HBITMAP small = nullptr;
    HBITMAP open = nullptr;
    HBITMAP large = nullptr;
    COLORREF mask = 0;
    EXPECT_EQ(S_OK, about->GetStaticFolderImage(&small, &open, &large, &mask));
    BITMAP drawn{};
    EXPECT_NE(0, GetObjectW(large, sizeof drawn, &drawn));
    EXPECT_EQ(32, drawn.bmHeight);
    EXPECT_THAT(contract.breaches(), IsEmpty());
}

TEST(NoServer, LeavesASnapInThatSaysSo)
{
    SetEnvironmentVariableW(L"ORVAN_TEST_SITE", L"/C:/there/is/nothing");
    Console console(
        [](REFIID id, void** object) {
            return SiteModule::get().make(SiteModule::snapIn, id, object);
        },
        SiteModule::snapIn);
    console.load();
    console.close();

    std::string said;
    for (const Box& box : console.boxes()) said += box.text;
    EXPECT_THAT(said, Not(IsEmpty()));
    EXPECT_THAT(console.breaches(), Not(Contains(HasSubstr("exception"))));
    EXPECT_THAT(console.breaches(), Not(Contains(HasSubstr("fault"))));
    EXPECT_THAT(console.breaches(), Not(Contains(HasSubstr("keeps"))));
}

} // namespace

} // namespace stand_in
