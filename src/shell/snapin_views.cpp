#include "core/error_trap.h"
#include "core/localisation.h"
#include "runtime/required_object.h"
#include "shell/diag_log_view.h"
#include "shell/log_list_view.h"
#include "shell/scope_nodes.h"
#include "shell/snapin_definition.h"
#include "shell/snapin_names.h"
#include "shell/snapin_orvan_diagnostics.h"
#include "shell/task_pad_view.h"

#include <vector>

namespace {
constexpr const char* moduleName = "snapinOrvanDiagnostics";
} // namespace

void snapinOrvanDiagnostics::ScopeItems_Expand(ScopeItem& item)
{
    ErrorTrap step{tool_, moduleName, "ScopeItems_Expand"};
    ScopeTree& scopeItems = console_.scopeItems();

    step.enterProc();
    if (item.kind() == mdlSnapIn::kindProcesses) {
        step([&] { mdlSnapIn::populateScopeProcesses(tool_, scopeItems, item); });
        const bool placeholder = step.value(
            false, [&] { return scopeItems.item(2).displayName() == processesPlaceholder; });
        if (placeholder) step([&] { scopeItems.item(2).displayName("Processes"); });
    } else if (item.kind() == mdlSnapIn::kindLogProcess) {
        step([&] { mdlSnapIn::populateScopeAllLogs(tool_, scopeItems, item); });
        step([&] { tool_.g_dictProcessItems.item(item.key()) = item.weak_from_this(); });
    }
    step.exitProc();
}

void snapinOrvanDiagnostics::refreshScopeItems()
{
    ErrorTrap step{tool_, moduleName, "refreshScopeItems"};

    step.enterProc();
    const auto keys = step.value({}, [&] { return tool_.g_dictProcessItems.keys(); });
    for (const auto& key : keys) {
        step([&] {
            const auto process = tool_.g_dictProcessItems.item(key).lock();
            ScopeItems_Expand(required(process));
        });
    }
    step.exitProc();
}

void snapinOrvanDiagnostics::ResultViews_Initialize(ResultView& resultView)
{
    ErrorTrap step{tool_, moduleName, "ResultViews_Initialize"};
    const std::string& shown = resultView.displayString();

    step.enterProc();
    if (shown == snapinView::taskPad) {
        step([&] { mdlSnapIn::populateTaskPadDefault(tool_, resultView); });
    } else if (shown == snapinView::logFiles) {
        step([&] { mdlSnapIn::populateListViewAllLogs(tool_, resultView); });
    } else if (shown == snapinView::logLines) {
        step(
            [&] { mdlSnapIn::populateListViewDiagLog(tool_, resultView, console_.currentView()); });
    }
    step.exitProc();
}

void snapinOrvanDiagnostics::ResultViews_ListItemDblClick(ResultView& resultView, ListItem item,
                                                          bool&)
{
    ErrorTrap step{tool_, moduleName, "ResultViews_ListItemDblClick"};

    step.enterProc();
    if (resultView.displayString() == snapinView::logFiles) {
        step([&] {
            const auto log = tool_.g_dictLogItems.item(item.text()).lock();
            console_.currentView().select(required(log));
        });
    }
    step.exitProc();
}

void snapinOrvanDiagnostics::Views_QueryPagesFor(View&, ScopeItem&, bool& answer)
{
    answer = true;
}

void snapinOrvanDiagnostics::Views_Select(View&, ScopeItem&, bool, ConsoleVerbs& verbs)
{
    ErrorTrap step{tool_, moduleName, "Views_Select"};

    step.enterProc();
    step([&] { verbs.verb(consoleVerb::refresh).enabled = true; });
    step.exitProc();
}

void snapinOrvanDiagnostics::Views_Refresh(View&, ScopeItem&)
{
    ErrorTrap step{tool_, moduleName, "Views_Refresh"};
    View& current = console_.currentView();

    step.enterProc();
    const std::string displayString = step.value(
        "", [&] { return current.selectedScopePaneItem().resultView().displayString(); });
    const ResultViewType type = step.value(
        ResultViewType::list, [&] { return current.selectedScopePaneItem().resultView().type(); });
    step([&] { current.display(displayString, type); });
    step([&] { refreshScopeItems(); });
    step.exitProc();
}

void snapinOrvanDiagnostics::showLanguage()
{
    ErrorTrap step{tool_, moduleName, "showLanguage"};

    step([&] { console_.displayName(myLoadResString(tool_, TextId::snapInName)); });
    step([&] {
        ResultView& shown = console_.currentView().selectedScopePaneItem().resultView();
        const std::string& name = shown.displayString();
        if (name == snapinView::taskPad) mdlSnapIn::populateTaskPadDefault(tool_, shown);
        if (name == snapinView::logFiles) mdlSnapIn::nameLogFileColumns(tool_, shown);
        if (name == snapinView::logLines) mdlSnapIn::nameLogLineColumns(tool_, shown);
    });
}
