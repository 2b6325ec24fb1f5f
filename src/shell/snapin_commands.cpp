#include "core/error_trap.h"
#include "core/localisation.h"
#include "core/signals.h"
#include "core/utility.h"
#include "runtime/required_object.h"
#include "shell/scope_nodes.h"
#include "shell/snapin_names.h"
#include "shell/snapin_orvan_diagnostics.h"

#include <string_view>
#include <utility>

namespace {

constexpr const char* moduleName = "snapinOrvanDiagnostics";

/// Key and name of the node above the logs that are opened by hand.
constexpr const char* savedLogsKey = "SavedLog";

struct MenuItemTexts {
    const char* name;
    TextId caption;
    TextId statusBarText;
};

constexpr MenuItemTexts taskMenuTexts[] = {
    {snapinItem::configureMacroTrace, TextId::configureMacroTraces, TextId::macroTraceActionHelp},
    {snapinItem::configureMicroTraces, TextId::configureMicroTraces, TextId::microTraceActionHelp},
    {snapinItem::disableAllTraces, TextId::resetToDefaultTraces, TextId::resetActionHelp},
    {snapinItem::startNewLogFiles, TextId::startNewLogFiles, TextId::startNewLogFilesActionHelp},
    {snapinItem::gatherLogFiles, TextId::gatherLogFiles, TextId::gatherActionHelp},
    {snapinItem::configureLogSettings, TextId::configureLogSettings, TextId::logSettingsActionHelp},
};

struct TaskRoutine {
    const char* key;
    void (snapinOrvanDiagnostics::*routine)();
};

constexpr TaskRoutine openingTasks[] = {
    {snapinTask::configureMacroTrace, &snapinOrvanDiagnostics::startConfigureMacroTraceWizard},
    {snapinTask::configureMicroTraces, &snapinOrvanDiagnostics::startConfigureMicroTracesWizard},
    {snapinTask::disableAllTraces, &snapinOrvanDiagnostics::startDisableAllTracesWizard},
    {snapinTask::gatherLogFiles, &snapinOrvanDiagnostics::startGatherLogFilesWizard},
    {snapinTask::configureLogSettings, &snapinOrvanDiagnostics::displayConfigureLogSettingsPSheet},
};

} // namespace

void snapinOrvanDiagnostics::Views_AddTaskMenuItems(View&, ScopeItem&, ContextMenu& menu)
{
    ErrorTrap step{tool_, moduleName, "Views_AddTaskMenuItems"};

    step.enterProc();
    for (const MenuItemTexts& texts : taskMenuTexts) {
        step([&] {
            console_.menu(snapinMenu::task).item(texts.name).caption =
                myLoadResString(tool_, texts.caption);
        });
        step([&] {
            console_.menu(snapinMenu::task).item(texts.name).statusBarText =
                myLoadResString(tool_, texts.statusBarText);
        });
    }
    step([&] { menu.add(console_.menu(snapinMenu::task)); });
    step.exitProc();
}

void snapinOrvanDiagnostics::Views_AddTopMenuItems(View&, ScopeItem&, ContextMenu& menu)
{
    ErrorTrap step{tool_, moduleName, "Views_AddTopMenuItems"};

    step.enterProc();
    step([&] { menu.add(console_.menu(snapinMenu::main)); });
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
        {snapinItem::configureMacroTrace, &snapinOrvanDiagnostics::mnuconfigureMacroTrace_Click},
        {snapinItem::configureMicroTraces, &snapinOrvanDiagnostics::mnuConfigureMicroTraces_Click},
        {snapinItem::disableAllTraces, &snapinOrvanDiagnostics::mnuDisableAllTraces_Click},
        {snapinItem::startNewLogFiles, &snapinOrvanDiagnostics::mnuStartNewLogFiles_Click},
        {snapinItem::gatherLogFiles, &snapinOrvanDiagnostics::mnuGatherLogFiles_Click},
        {snapinItem::configureLogSettings, &snapinOrvanDiagnostics::mnuConfigureLogSettings_Click},
        {snapinItem::changeLanguage, &snapinOrvanDiagnostics::mnuChangeLanguage_Click},
        {snapinItem::openLogFile, &snapinOrvanDiagnostics::mnuOpenLogFile_click},
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
    if (task.key == snapinTask::startNewLogFiles) {
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
    if (shown == snapinView::logFiles) {
        step([&] { view.select(view.selectedScopePaneItem().scopeItem()); });
        step(renewSelected);
    }
    step(readShown);
    if (shown == snapinView::logLines) {
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
            m_SavedLogsItem =
                scopeItems.addChild(snapinNode::process, savedLogsKey, scopeItems.item(1))
                    .weak_from_this();
        });
        step([&] { savedLogs().name(savedLogsKey); });
        step([&] { savedLogs().displayName(myLoadResString(tool_, TextId::savedLogs)); });
        step([&] { savedLogs().kind(mdlSnapIn::kindLogProcess); });
    }
    step([&] { view.select(savedLogs()); });
    ScopeItem* const opened = step.value(nullptr, [&] {
        return &scopeItems.addChild(snapinNode::log, path, console_.currentScopeItem());
    });
    step([&] { required(opened).name(path); });
    step([&] { required(opened).displayName(path); });
    step([&] { required(opened).kind(mdlSnapIn::kindLogFile); });
    step([&] { view.select(required(opened)); });
    step.exitProc();
}
