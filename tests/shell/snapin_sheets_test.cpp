#include "console/pages.h"
#include "console/plain_sheet.h"
#include "console/shown_sheets.h"
#include "console/wizard_sheet.h"
#include "controls/controls.h"
#include "shell/sheet_definitions.h"
#include "shell/shell_fixture.h"
#include "shell/wizard_kinds.h"

#include <gmock/gmock.h>

#include <functional>

using testing::ElementsAreArray;

namespace {

/// A row of the sheets, with the ways that lead to it.
struct Opening {
    int kind;
    const char* title;
    SheetType type;
    const char* pageTitle;
    Texts pages;
    const char* menuItem;
    const char* task; ///< null when the task pad has none
    const char* routine;
    const char* handler;
};

const Opening openings[] = {
    {1,
     "MacroTrace",
     SheetType::wizard,
     "Configure Macro Traces Wizard",
     {"ppgMacroTrace0Welcome", "ppgMacroTrace1", "ppgMacroTrace3Final"},
     "mnuConfigureMacroTrace",
     "1",
     "startConfigureMacroTraceWizard",
     "mnuconfigureMacroTrace_Click"},
    {2,
     "MicroTrace",
     SheetType::wizard,
     "Configure Micro Traces Wizard",
     {"ppgMicroTrace00Welcome", "ppgMicroTrace01Step", "ppgMicroTrace99Final"},
     "mnuConfigureMicroTraces",
     "2",
     "startConfigureMicroTracesWizard",
     "mnuConfigureMicroTraces_Click"},
    {3,
     "DisableAllTraces",
     SheetType::wizard,
     "Reset to Default Traces Wizard",
     {"ppgDisableAllTraces0"},
     "mnuDisableAllTraces",
     "3",
     "startDisableAllTracesWizard",
     "mnuDisableAllTraces_Click"},
    {5,
     "GatherLogFiles",
     SheetType::wizard,
     "Gather Logs Wizard",
     {"ppgGatherLogs00Welcome", "ppgGatherLogs01Step", "ppgGatherLogs02Step", "ppgGatherLogs03Step",
      "ppgGatherLogs99Final"},
     "mnuGatherLogFiles",
     "5",
     "startGatherLogFilesWizard",
     "mnuGatherLogFiles_Click"},
    {6,
     "Logging",
     SheetType::propertySheet,
     "Log Settings",
     {"ppgConfLogSettings"},
     "mnuConfigureLogSettings",
     "6",
     "displayConfigureLogSettingsPSheet",
     "mnuConfigureLogSettings_Click"},
    {7,
     "Kelma Orvan Event Log Language",
     SheetType::propertySheet,
     "Event Log Language",
     {"ppgEventLogLanguage"},
     "mnuChangeLanguage",
     nullptr,
     "displayEventLogLanguagePSheet",
     "mnuChangeLanguage_Click"},
};

struct SnapinSheets : ShellTest {
    ShownSheets shownSheets{console};

    SnapinSheets()
    {
        load();
        tool.database.opened().withComponent("A", 7, 4);
    }

    PropertySheetProvider& sheets() { return view().propertySheetProvider(); }
    WizardSheet& wizard() { return *sheets().lastSheet()->wizard(); }

    void expectOpened(const Opening& expected)
    {
        ASSERT_EQ(1u, shownSheets.open().size());
        OpenSheet& sheet = *shownSheets.open().front();
        EXPECT_EQ(expected.title, sheet.title());
        EXPECT_EQ(expected.type == SheetType::wizard, sheet.wizard() != nullptr);
        EXPECT_EQ(1, sheet.currentPosition());
        Texts pages;
        for (int place = 1; place <= sheet.pageCount(); ++place) {
            pages.push_back(sheet.page(place).name());
            EXPECT_EQ(expected.pageTitle, sheet.pageTitle(place));
            EXPECT_FALSE(sheet.hasHelpButton(place));
        }
        EXPECT_THAT(pages, ElementsAreArray(expected.pages));
        sheet.cancel();
    }
};

} // namespace

TEST_F(SnapinSheets, EveryMenuItemOpensItsSheetAtTheFirstPage)
{
    for (const auto& opening : openings) {
        SCOPED_TRACE(opening.title);
        console.clickMenuItem(opening.menuItem);
        expectOpened(opening);
        for (const char* routine : {opening.routine, opening.handler})
            EXPECT_TRUE(tool.logged("Entering [snapinOrvanDiagnostics]" + std::string(routine)));
    }
}

TEST_F(SnapinSheets, TheTaskPadOpensTheSameSheets)
{
    for (const auto& opening : openings) {
        if (!opening.task) continue;
        SCOPED_TRACE(opening.title);
        console.clickTask(opening.task);
        expectOpened(opening);
    }
}

TEST_F(SnapinSheets, EveryKindButFourHasItsSheet)
{
    struct Case {
        int kind;
        const char* title;
        SheetType type;
        int pageTitle;
    };
    const Case cases[] = {
        {mdlDefinitions::kindMacroTrace, "MacroTrace", SheetType::wizard, 1025},
        {mdlDefinitions::kindMicroTrace, "MicroTrace", SheetType::wizard, 1027},
        {mdlDefinitions::kindDisableAllTraces, "DisableAllTraces", SheetType::wizard, 1037},
        {mdlDefinitions::kindGatherLogFiles, "GatherLogFiles", SheetType::wizard, 1046},
        {mdlDefinitions::kindLogSettings, "Logging", SheetType::propertySheet, 1052},
        {mdlDefinitions::kindEventLogLanguage, "Kelma Orvan Event Log Language",
         SheetType::propertySheet, 1039},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.title);
        const SheetDefinition* sheet = sheetDefinition(c.kind);
        ASSERT_NE(nullptr, sheet);
        EXPECT_EQ(c.title, sheet->sheetTitle);
        EXPECT_EQ(c.type, sheet->type);
        EXPECT_EQ(TextId{c.pageTitle}, sheet->pageTitle);
    }
    for (const int kind : {0, 4, 8}) EXPECT_EQ(nullptr, sheetDefinition(kind)) << kind;
}

TEST_F(SnapinSheets, EveryMenuItemAndTaskOfASheetRunsItsRoutine)
{
    const std::pair<const char*, const char*> menuItems[] = {
        {"mnuGatherLogFiles", "startGatherLogFilesWizard"},
        {"mnuConfigureLogSettings", "displayConfigureLogSettingsPSheet"},
        {"mnuChangeLanguage", "displayEventLogLanguagePSheet"},
    };
    const auto entered = [&](const char* routine) {
        int times = 0;
        for (const auto& line : tool.logLines())
            if (line.message.find(std::string("Entering [snapinOrvanDiagnostics]") + routine) == 0)
                ++times;
        return times;
    };
    for (const auto& [item, routine] : menuItems) {
        console.clickMenuItem(item);
        EXPECT_EQ(1, entered(routine)) << item;
    }
    console.clickTask("5");
    console.clickTask("6");
    EXPECT_EQ(2, entered("startGatherLogFilesWizard"));
    EXPECT_EQ(2, entered("displayConfigureLogSettingsPSheet"));
    EXPECT_EQ(1, entered("displayEventLogLanguagePSheet")) << "it is a menu item only";
}

TEST_F(SnapinSheets, AKindWithoutACaseGivesASheetWithoutPages)
{
    sheets().createPropertySheet("None", SheetType::wizard, node("Static Node"));
    sheets().addPrimaryPages();
    sheets().show(1);
    EXPECT_EQ(0, sheets().lastSheet()->pageCount());
    EXPECT_TRUE(sheets().lastSheet()->closed());
}

TEST_F(SnapinSheets, AWizardOpenedTwiceInARunGetsTheSameSharedObject)
{
    tool.files.with(tool.context.g_strMacroTraceFolder + "\\HTa.xml",
                    "<GA NAME='G'><TRACE NAME='T'><DESCRIPTION/></TRACE></GA>");
    console.clickTask("1");
    wizard().next();
    auto& tree = dynamic_cast<TreeView&>(*wizard().currentPage().control("treeviewMacroTrace"));
    tree.checkByPerson(tree.item(2), true);
    wizard().next();
    wizard().finish();

    console.clickTask("1");
    SheetPage& last = wizard().page(3);
    bool back = false;
    int button = 0;
    std::string text;
    last.wizardPage()->IWizardPage_Activate(back, button, text);
    EXPECT_EQ("The following Macro Traces were enabled:\r\n        G - T\r\n",
              dynamic_cast<Label&>(*last.control("lblSummary")).caption())
        << "what a wizard leaves in it is seen by the next";
}

TEST_F(SnapinSheets, AWizardThatIsOpenedAgainShowsWhatTheOneBeforeSet)
{
    tool.files.with(tool.context.g_strMacroTraceFolder + "\\HTa.xml",
                    "<GA NAME='G'><TRACE NAME='T'><DESCRIPTION/></TRACE></GA>");
    for (const bool before : {false, true}) {
        console.clickTask("1");
        wizard().next();
        auto& tree = dynamic_cast<TreeView&>(*wizard().currentPage().control("treeviewMacroTrace"));
        EXPECT_EQ(before, tree.item(2).checked());
        tree.checkByPerson(tree.item(2), true);
        wizard().next();
        wizard().finish();
    }
}

TEST_F(SnapinSheets, OfTwoWizardsAtOnceTheOneOpenedLastHasItsButtonsSet)
{
    console.clickTask("3");
    const auto reset = sheets().lastSheet();
    console.clickTask("1");
    const auto macro = sheets().lastSheet();
    auto& box = dynamic_cast<CheckBox&>(*reset->currentPage().control("chkDisableAllTraces"));

    box.click();
    EXPECT_FALSE(reset->wizard()->canFinish()) << "both share one object, which knows one sheet";
    EXPECT_TRUE(macro->wizard()->canFinish());

    macro->cancel();
    console.clickTask("6");
    box.click();
    EXPECT_FALSE(reset->wizard()->canFinish()) << "a closed sheet ignores its pages";
}

TEST_F(SnapinSheets, TheResetWizardWorksFromTheTaskPadToItsEnd)
{
    console.clickTask("3");
    dynamic_cast<CheckBox&>(*wizard().currentPage().control("chkDisableAllTraces")).click();
    ASSERT_TRUE(wizard().finish());
    EXPECT_EQ(4, tool.database.flagsOf("A"));
    EXPECT_TRUE(shownSheets.open().empty());
}

TEST_F(SnapinSheets, AChangedLogFolderReachesTheListsAtTheNextStartAlone)
{
    withProcess("RoCsMgr");
    withLog("diag_RoCsMgr_20051001_080000.txt");
    tool.files.with("D:\\New\\diag_RoCsMgr_20051002_080000.txt", "");
    console.clickTask("6");
    const auto settings = sheets().lastSheet();
    dynamic_cast<TextBox&>(*settings->currentPage().control("txtLocationOfLogFiles"))
        .setByPerson("D:\\New");
    settings->plainSheet()->apply();
    ASSERT_EQ("D:\\New", tool.registry.text(logManagerKey, "Output Path"));

    console.expand(processes());
    console.expand(node("RoCsMgr"));
    EXPECT_EQ((Texts{"diag_RoCsMgr_20051001_080000.txt"}), below(node("RoCsMgr")));
    snapIn.refreshScopeItems();
    EXPECT_EQ((Texts{"diag_RoCsMgr_20051001_080000.txt"}), below(node("RoCsMgr")));

    ToolContext restarted(tool.platform);
    Console other(definition);
    snapinOrvanDiagnostics again(restarted, other);
    other.load(again);
    other.expand(other.scopeItems().item(2));
    other.expand(other.scopeItems().item("RoCsMgr"));
    EXPECT_EQ((Texts{"diag_RoCsMgr_20051002_080000.txt"}),
              below(other.scopeItems().item("RoCsMgr")));
}
