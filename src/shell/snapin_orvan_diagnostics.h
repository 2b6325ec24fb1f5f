#pragma once

#include "console/console.h"

#include <memory>
#include <string>

class ErrorTrap;
class classTraceObject;
class frmAbout;
struct ToolContext;

/// The snap-in: what the tool does when the console calls.
///
/// The console is the one that loads it. No handler raises but `SnapIn_Unload`, and
/// `mnuOpenLogFile_click` where a key stands in its way that is not the opened log's. The groups
/// below lie in a source each.
class snapinOrvanDiagnostics final : public SnapInEvents {
public:
    snapinOrvanDiagnostics(ToolContext& tool, Console& console);
    ~snapinOrvanDiagnostics() override;

    // snapin_lifecycle.cpp: start-up and end.
    void SnapIn_Initialize() override;
    void SnapIn_Load() override;
    void SnapIn_Unload() override;

    // snapin_help.cpp: the manual and the about box.
    void SnapIn_Help() override;
    void ScopeItems_Help(ScopeItem& item) override;
    void ResultViews_Help(ResultView& resultView) override;

    /// The console's About command: shows the about box, always the same one. It stays until the
    /// snap-in goes.
    frmAbout& showAbout();

    // snapin_views.cpp: what the panes show.
    void ScopeItems_Expand(ScopeItem& item) override;
    void ResultViews_Initialize(ResultView& resultView) override;
    void ResultViews_ListItemDblClick(ResultView& resultView, ListItem item,
                                      bool& doDefault) override;
    void Views_QueryPagesFor(View& view, ScopeItem& selection, bool& answer) override;
    void Views_Select(View& view, ScopeItem& selection, bool selected,
                      ConsoleVerbs& verbs) override;
    void Views_Refresh(View& view, ScopeItem& selection) override;

    /// Renews the log nodes of every process that was opened so far.
    void refreshScopeItems();

    /// Puts what the panes hold into the present language: the root's name, and the task pad or the
    /// headers on show. Rows stay. For a host that is open while the language changes.
    void showLanguage();

    // snapin_commands.cpp: tasks and menus.
    void ResultViews_TaskClick(ResultView& resultView, Task& task) override;
    void Views_AddTaskMenuItems(View& view, ScopeItem& selection, ContextMenu& menu) override;
    void Views_AddTopMenuItems(View& view, ScopeItem& selection, ContextMenu& menu) override;
    void Views_AddViewMenuItems(View& view, ScopeItem& selection, ContextMenu& menu) override;
    void MenuItem_Click(const MenuItem& item) override;
    void mnuStartNewLogFiles_Click();
    void mnuOpenLogFile_click();

    // snapin_sheets.cpp: wizards and sheets.
    void Views_CreatePropertyPages(View& view, ScopeItem& selection,
                                   OpenSheet& propertySheet) override;

    /// Each opens its wizard or sheet at the first page and returns when it is up.
    void startConfigureMacroTraceWizard();
    void startConfigureMicroTracesWizard();
    void startDisableAllTracesWizard();
    void startGatherLogFilesWizard();
    void displayConfigureLogSettingsPSheet();
    void displayEventLogLanguagePSheet();

    void mnuconfigureMacroTrace_Click();
    void mnuConfigureMicroTraces_Click();
    void mnuDisableAllTraces_Click();
    void mnuGatherLogFiles_Click();
    void mnuConfigureLogSettings_Click();
    void mnuChangeLanguage_Click();

private:
    using OpeningRoutine = void (snapinOrvanDiagnostics::*)();

    void openSheet(const char* routine, int kind);
    void clickOpens(const char* handler, OpeningRoutine open);
    void leaveShownLogs(ErrorTrap& step);

    ToolContext& tool_;
    Console& console_;
    std::shared_ptr<classTraceObject> m_TraceObject; ///< shared by all wizards; made on first use
    int m_WizardKind = 0;                     ///< one of `mdlDefinitions`; 0 before the first sheet
    std::unique_ptr<frmAbout> about_;         ///< made on first use
    std::string m_strSavedLogFile;            ///< the last file opened by hand
    std::weak_ptr<ScopeItem> m_SavedLogsItem; ///< empty until a file is opened by hand
};
