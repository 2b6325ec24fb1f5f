#include "wizards/gather_completion.h"

#include "core/error_trap.h"
#include "core/localisation.h"
#include "core/registry_store.h"
#include "core/utility.h"
#include "platform/file_system.h"
#include "platform/processes.h"
#include "runtime/text.h"
#include "wizards/gather_pages.h"

#include <utility>

namespace {
constexpr const char* pageName = "ppgGatherLogs99Final";
} // namespace

ppgGatherLogs99Final::ppgGatherLogs99Final(ToolContext& tool,
                                           std::shared_ptr<classTraceObject> shared)
    : WizardPage(tool, pageName, std::move(shared))
{
    declare("lblCompletionTitle", ControlRole::title, lblCompletionTitle);
    declare("lblCompletionStatment", ControlRole::description, lblCompletionStatment);
    declare("lblSummary", ControlRole::summary, lblSummary);
    declare("cmdOpenWindowsExplorer", ControlRole::action, cmdOpenWindowsExplorer);
    declare("cmdLaunchQRV", ControlRole::action, cmdLaunchQRV);
    cmdOpenWindowsExplorer.onClick = [this] { cmdOpenWindowsExplorer_Click(); };
    cmdLaunchQRV.onClick = [this] { cmdLaunchQRV_Click(); };
}

void ppgGatherLogs99Final::ppgGatherLogs99Final_Auto_Init()
{
    setCaptions({{lblCompletionTitle, TextId::gatherCompletionTitle},
                 {lblCompletionStatment, TextId::logsHaveBeenGathered},
                 {cmdOpenWindowsExplorer, TextId::viewDirectory},
                 {cmdLaunchQRV, TextId::openLogsInViewer}});
}

void ppgGatherLogs99Final::IMMCPropertyPage_Initialize(ScopeItem*, PageSheet& sheet)
{
    SelectedControls(0).m_PropertySheet(sheet);
}

void ppgGatherLogs99Final::IWizardPage_Activate(bool&, int& NextOrFinish, std::string&)
{
    ErrorTrap step{tool(), pageName, "IWizardPage_Activate"};

    step.enterProc();
    step([&] { applyFontToPage(); });
    step([&] { ppgGatherLogs99Final_Auto_Init(); });
    step([&] { cmdLaunchQRV.setEnabled(!tool().g_strTraceDatabase.empty()); });
    NextOrFinish = wizardButton::finishEnabled;
    step([&] { applyFontToControls(); });
    step([&] { updateSummary(); });
    step.exitProc();
}

void ppgGatherLogs99Final::updateSummary()
{
    const std::string emptyLine = std::string(lineBreak) + std::string(lineBreak);
    lblSummary.setCaption(myLoadResString(tool(), TextId::logsHaveBeenPlacedIn) + emptyLine +
                          SelectedControls(0).m_LogDestinationDirectory);
}

void ppgGatherLogs99Final::IWizardPage_Back(int& NextPage)
{
    const classTraceObject& job = SelectedControls(0);
    if (job.m_bStandardLogs)
        NextPage = gatherPage::welcome;
    else if (job.m_bTimeFrameLogs)
        NextPage = gatherPage::timeFrame;
    else
        NextPage = gatherPage::logSelection;
}

/// The folder is not quoted: one with blanks in it opens the explorer at another place.
void ppgGatherLogs99Final::cmdOpenWindowsExplorer_Click()
{
    Platform& platform = tool().platform;
    platform.processes.start(platform.files.specialFolder(SpecialFolder::windows) +
                                 "\\explorer.exe " + SelectedControls(0).m_LogDestinationDirectory,
                             WindowStyle::normal);
}

void ppgGatherLogs99Final::cmdLaunchQRV_Click()
{
    ErrorTrap step{tool(), pageName, "cmdLaunchQRV_Click", countedTrapWithLine};

    step.body([&] {
        step.enterProc();
        std::string path =
            step.value("", [&] { return getRegistryText(tool(), viewerKey, viewerValue); });
        if (!path.empty()) {
            step([&] { path = expandPath(tool(), path); });
            const std::string command =
                step.value("", [&] { return path + " -db \"" + tool().g_strTraceDatabase + "\""; });
            step.log(command, logLevel::error);
            step([&] { tool().platform.processes.start(command, WindowStyle::normal); });
        }
        step.exitProc();
    });
}
