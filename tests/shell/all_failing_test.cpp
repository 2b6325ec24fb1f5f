#include "settings/about_box.h"
#include "shell/shell_fixture.h"

#include <functional>

namespace {

struct AllFailing : ShellTest {
    AllFailing()
    {
        withProcess("RoCsMgr");
        withCurrentLog("RoCsMgr", "diag_RoCsMgr_20051008_152307.txt", "line");
    }

    void failEverything()
    {
        tool.files.failingAll(70);
        tool.registry.closed("Software").closed("System");
        tool.eventReporter.failing(429);
        tool.eventLogExporter.failing(70);
        tool.processes.failing(5);
        tool.desktop.pickersFailing(5);
        tool.database.unreachable().breakConnection();
        tool.workstation.machine.reset();
        tool.workstation.person.reset();
    }

    void openFile()
    {
        tool.desktop.picks("C:\\Temp\\opened.txt");
        console.clickMenuItem("mnuOpenLogFile");
    }

    /// Opens and shows each node that is there, and uses every command on each.
    void useEverything()
    {
        const std::function<void()> commands[] = {
            [&] { console.taskMenu(); },
            [&] { console.topMenu(); },
            [&] {
                ContextMenu menu;
                snapIn.Views_AddViewMenuItems(view(), console.currentScopeItem(), menu);
            },
            [&] {
                bool answer = false;
                snapIn.Views_QueryPagesFor(view(), console.currentScopeItem(), answer);
            },
            [&] { openFile(); },
            [&] { console.clickMenuItem("mnuStartNewLogFiles"); },
            [&] { snapIn.refreshScopeItems(); },
            [&] { console.helpOnSnapIn(); },
            [&] { console.helpOnScopeItem(); },
            [&] { console.helpOnResultView(); },
            [&] { snapIn.showAbout().mnuLanguageList_Click(0); },
            [&] { console.refresh(); },
        };
        Texts keys;
        for (int position = 1; position <= console.scopeItems().count(); ++position)
            keys.push_back(console.scopeItems().item(position).key());
        for (const auto& key : keys) {
            for (const auto& command : commands) {
                ScopeItem* item = console.scopeItems().find(key);
                if (!item) continue;
                EXPECT_NO_THROW(view().select(*item));
                EXPECT_NO_THROW(command());
            }
        }
        EXPECT_NO_THROW(view().select(node("Static Node")));
        for (const char* task : {"1", "2", "3", "4", "5", "6"})
            EXPECT_NO_THROW(console.clickTask(task));
    }
};

} // namespace

TEST_F(AllFailing, StartUpAndEveryEventGoOnPastAllErrors)
{
    failEverything();

    EXPECT_NO_THROW(load());
    useEverything();

    EXPECT_EQ("Static Node", selected());
    EXPECT_EQ(429, errorOf([&] { console.unload(); }));
}

TEST_F(AllFailing, EachTracedRoutineLeavesItsEntryInTheLog)
{
    tool.files.with("C:\\Temp\\opened.txt");
    load();
    console.expand(processes());
    console.expand(node("RoCsMgr"));
    useEverything();
    view().select(node("RoCsMgr"));
    console.doubleClickRow(1);
    for (const char* item :
         {"mnuConfigureMacroTrace", "mnuConfigureMicroTraces", "mnuDisableAllTraces",
          "mnuGatherLogFiles", "mnuConfigureLogSettings", "mnuChangeLanguage"})
        console.clickMenuItem(item);

    Texts routines = {"[mdlInitialize]initGlobalVariables", "[mdlSnapIn]populateListViewAllLogs",
                      "[mdlSnapIn]populateListViewDiagLog", "[mdlSnapIn]populateScopeAllLogs",
                      "[mdlSnapIn]populateScopeProcesses",  "[mdlSnapIn]populateTaskPadDefault"};
    for (const char* handler : {"SnapIn_Help",
                                "SnapIn_Initialize",
                                "SnapIn_Load",
                                "ScopeItems_Expand",
                                "refreshScopeItems",
                                "ResultViews_Initialize",
                                "ResultViews_ListItemDblClick",
                                "ResultViews_TaskClick",
                                "Views_AddTaskMenuItems",
                                "Views_AddTopMenuItems",
                                "Views_AddViewMenuItems",
                                "Views_CreatePropertyPages",
                                "Views_Refresh",
                                "Views_Select",
                                "startConfigureMacroTraceWizard",
                                "startConfigureMicroTracesWizard",
                                "startDisableAllTracesWizard",
                                "startGatherLogFilesWizard",
                                "displayConfigureLogSettingsPSheet",
                                "displayEventLogLanguagePSheet",
                                "mnuconfigureMacroTrace_Click",
                                "mnuConfigureMicroTraces_Click",
                                "mnuDisableAllTraces_Click",
                                "mnuGatherLogFiles_Click",
                                "mnuStartNewLogFiles_Click",
                                "mnuConfigureLogSettings_Click",
                                "mnuChangeLanguage_Click",
                                "mnuOpenLogFile_click"})
        routines.push_back("[snapinOrvanDiagnostics]" + std::string(handler));
    EXPECT_EQ(Texts{}, notTraced(tool, routines));
}

TEST_F(AllFailing, EveryEventGoesOnPastErrorsThatBeginAfterTheStart)
{
    load();
    console.expand(processes());
    console.expand(node("RoCsMgr"));
    failEverything();

    useEverything();

    EXPECT_EQ("Static Node", selected());
    EXPECT_EQ(429, errorOf([&] { console.unload(); }));
}

TEST_F(AllFailing, EveryEventGoesOnWhenOneServiceFails)
{
    const std::pair<const char*, std::function<void(ShellTest&)>> services[] = {
        {"files", [](ShellTest& test) { test.tool.files.failingAll(57); }},
        {"registry", [](ShellTest& test) { test.tool.registry.closed("Software"); }},
        {"event reporter", [](ShellTest& test) { test.tool.eventReporter.failing(5); }},
        {"desktop", [](ShellTest& test) { test.tool.desktop.pickersFailing(70); }},
    };
    load();
    console.expand(processes());
    for (const auto& [name, fail] : services) {
        SCOPED_TRACE(name);
        fail(*this);
        useEverything();
    }
    EXPECT_EQ("Static Node", selected());
}
