#include "core/error_trap.h"
#include "core/localisation.h"
#include "core/signals.h"
#include "core/utility.h"
#include "shell/required_object.h"
#include "shell/scope_nodes.h"
#include "shell/snapin_orvan_diagnostics.h"

#include <string_view>
#include <utility>

namespace {

constexpr const char* moduleName = "snapinOrvanDiagnostics";

struct MenuItemTexts {
    const char* name;
    TextId caption;
    TextId statusBarText;
};

constexpr MenuItemTexts taskMenuTexts[] = {
    {"mnuConfigureMacroTrace", TextId::configureMacroTraces, TextId::macroTraceActionHelp},
    {"mnuConfigureMicroTraces", TextId::configureMicroTraces, TextId::microTraceActionHelp},
    {"mnuDisableAllTraces", TextId::resetToDefaultTraces, TextId::resetActionHelp},
    {"mnuStartNewLogFiles", TextId::startNewLogFiles, TextId::startNewLogFilesActionHelp},
    {"mnuGatherLogFiles", TextId::gatherLogFiles, TextId::gatherActionHelp},
    {"mnuConfigureLogSettings", TextId::configureLogSettings, TextId::logSettingsActionHelp},
};

struct TaskRoutine {
    const char* key;
    void (snapinOrvanDiagnostics::*routine)();
};

constexpr TaskRoutine openingTasks[] = {
    {"1", &snapinOrvanDiagnostics::startConfigureMacroTraceWizard},
    {"2", &snapinOrvanDiagnostics::startConfigureMicroTracesWizard},
    {"3", &snapinOrvanDiagnostics::startDisableAllTracesWizard},
    {"5", &snapinOrvanDiagnostics::startGatherLogFilesWizard},
    {"6", &snapinOrvanDiagnostics::displayConfigureLogSettingsPSheet},
};

} // namespace

void snapinOrvanDiagnostics::Views_AddTaskMenuItems(View&, ScopeItem&, ContextMenu& menu)
{
    ErrorTrap step{tool_, moduleName, "Views_AddTaskMenuItems"};

    step.enterProc();
    for (const MenuItemTexts& texts : taskMenuTexts) {
        step([&] {
            console_.menu("mnuTask").item(texts.name).caption =
                myLoadResString(tool_, texts.caption);
        });
        step([&] {
            console_.menu("mnuTask").item(texts.name).statusBarText =
                myLoadResString(tool_, texts.statusBarText);
        });
    }
    step([&] { menu.add(console_.menu("mnuTask")); });
    step.exitProc();
}

void snapinOrvanDiagnostics::Views_AddTopMenuItems(View&, ScopeItem&, ContextMenu& menu)
{
    ErrorTrap step{tool_, moduleName, "Views_AddTopMenuItems"};

    step.enterProc();
    step([&] { menu.add(console_.menu("mnuMain")); });
    step.exitProc();
}

void snapinOrvanDiagnostics::Views_AddViewMenuItems(View&, ScopeItem&, ContextMenu&)
{
    ErrorTrap step{tool_, moduleName, "Views_AddViewMenuItems"};

    step.enterProc();
    step.exitProc();
}

void snapinOrvanDiagnostics::MenuItem_Click(const MenuItem& item)
{
    static const std::pair<std::string_view, void (snapinOrvanDiagnostics::*)()> handlers[] = {
        {"mnuConfigureMacroTrace", &snapinOrvanDiagnostics::mnuconfigureMacroTrace_Click},
        {"mnuConfigureMicroTraces", &snapinOrvanDiagnostics::mnuConfigureMicroTraces_Click},
        {"mnuDisableAllTraces", &snapinOrvanDiagnostics::mnuDisableAllTraces_Click},
        {"mnuStartNewLogFiles", &snapinOrvanDiagnostics::mnuStartNewLogFiles_Click},
        {"mnuGatherLogFiles", &snapinOrvanDiagnostics::mnuGatherLogFiles_Click},
        {"mnuConfigureLogSettings", &snapinOrvanDiagnostics::mnuConfigureLogSettings_Click},
        {"mnuChangeLanguage", &snapinOrvanDiagnostics::mnuChangeLanguage_Click},
        {"mnuOpenLogFile", &snapinOrvanDiagnostics::mnuOpenLogFile_click},
    };
    for (const auto& [name, handler] : handlers)
        if (item.name == name) return (this->*handler)();
}

void snapinOrvanDiagnostics::ResultViews_TaskClick(ResultView&, Task& task)
{
    ErrorTrap step{tool_, moduleName, "ResultViews_TaskClick"};

    step.enterProc();
    for (const TaskRoutine& opening : openingTasks)
        if (task.key == opening.key) step([&] { (this->*opening.routine)(); });
    if (task.key == "4") {
        step([&] { signalCycleDiagFiles(tool_); });
        step([&] {
            console_.currentView().statusBarText(
                myLoadResString(tool_, TextId::newLogFilesStarted));
        });
        step([&] { refreshScopeItems(); });
    }
    step.exitProc();
}

void snapinOrvanDiagnostics::mnuStartNewLogFiles_Click()
{
    ErrorTrap step{tool_, moduleName, "mnuStartNewLogFiles_Click"};

    step.enterProc();
    step([&] { signalCycleDiagFiles(tool_); });
    leaveShownLogs(step);
    step([&] {
        console_.currentView().statusBarText(myLoadResString(tool_, TextId::newLogFilesStarted));
    });
    step([&] { refreshScopeItems(); });
    step.exitProc();
}

/// Builds the list of logs anew, or goes from the lines of a log to the view's second node.
void snapinOrvanDiagnostics::leaveShownLogs(ErrorTrap& step)
{
    View& view = console_.currentView();
    std::string shown;
    const auto readShown = [&] {
        shown = view.selectedScopePaneItem().resultView().displayString();
    };
    const auto renewSelected = [&] {
        mdlSnapIn::populateScopeAllLogs(tool_, console_.scopeItems(), console_.currentScopeItem());
    };

    step(readShown);
    if (shown == "listviewAllLogs") {
        step([&] { view.select(view.selectedScopePaneItem().scopeItem()); });
        step(renewSelected);
    }
    step(readShown);
    if (shown == "listviewDiagLog") {
        step([&] { view.select(view.scopePaneItem(2).scopeItem()); });
        step(renewSelected);
    }
}

void snapinOrvanDiagnostics::mnuOpenLogFile_click()
{
    ErrorTrap step{tool_, moduleName, "mnuOpenLogFile_click"};
    ScopeTree& scopeItems = console_.scopeItems();
    View& view = console_.currentView();
    std::string path;
    ScopeItem* opened = nullptr;
    const auto savedLogs = [&]() -> ScopeItem& { return required(m_SavedLogsItem.lock().get()); };
    step.specialCase([&](const RunTimeError& error) {
        if (error.number() != runTimeErrors::scopeItemExists) return Resume::asUsual;
        scopeItems.remove(path);
        return Resume::retry;
    });

    step.enterProc();
    step([&] { path = selectLogFile(tool_); });
    if (path.empty()) return step.exitProc();
    m_strSavedLogFile = path;
    if (m_SavedLogsItem.expired()) {
        step([&] {
            m_SavedLogsItem = scopeItems.addChild("nodeProcesses", "SavedLog", scopeItems.item(1))
                                  .weak_from_this();
        });
        step([&] { savedLogs().name("SavedLog"); });
        step([&] { savedLogs().displayName(myLoadResString(tool_, TextId::savedLogs)); });
        step([&] { savedLogs().kind(mdlSnapIn::kindLogProcess); });
    }
    step([&] { view.select(savedLogs()); });
    step([&] { opened = &scopeItems.addChild("nodeLogs", path, console_.currentScopeItem()); });
    step([&] { required(opened).name(path); });
    step([&] { required(opened).displayName(path); });
    step([&] { required(opened).kind(mdlSnapIn::kindLogFile); });
    step([&] { view.select(required(opened)); });
    step.exitProc();
}
