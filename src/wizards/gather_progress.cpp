#include "wizards/gather_progress.h"

#include "core/error_trap.h"
#include "core/localisation.h"
#include "core/tool_context.h"
#include "gather/cancel.h"
#include "gather/pipeline.h"
#include "wizards/gather_pages.h"

#include <utility>

namespace {
constexpr const char* pageName = "ppgGatherLogs03Step";
constexpr int startDelay = 500;      ///< milliseconds
constexpr int cancelInterval = 1000; ///< milliseconds
} // namespace

ppgGatherLogs03Step::ppgGatherLogs03Step(ToolContext& tool,
                                         std::shared_ptr<classTraceObject> shared)
    : WizardPage(tool, pageName, std::move(shared)), tmrDelayStart(startDelay, false),
      timerCheckForCancel(cancelInterval)
{
    declare("lblStepTitle", ControlRole::title, lblStepTitle);
    declare("lblStepDescription", ControlRole::description, lblStepDescription);
    declare("treeviewSteps", ControlRole::mainTree, treeviewSteps);
    declare("lblCurrentProcess", ControlRole::progress, lblCurrentProcess);
    declare("progressbarCurrentProcess", ControlRole::progress, progressbarCurrentProcess);
    declare("lblOverallProgress", ControlRole::progress, lblOverallProgress);
    declare("progressbarOverall", ControlRole::progress, progressbarOverall);
    declare("tmrDelayStart", ControlRole::timer, tmrDelayStart);
    declare("timerCheckForCancel", ControlRole::timer, timerCheckForCancel);
    tmrDelayStart.onTick = [this] { tmrDelayStart_Timer(); };
    timerCheckForCancel.onTick = [this] { timerCheckForCancel_Timer(); };
}

void ppgGatherLogs03Step::ppgGatherLogs03Step_Auto_Init()
{
    setCaptions({{lblStepTitle, TextId::gatheringLogs},
                 {lblStepDescription, TextId::logsAreBeingGathered},
                 {lblCurrentProcess, TextId::processing},
                 {lblOverallProgress, TextId::overallProgress}});
}

void ppgGatherLogs03Step::IMMCPropertyPage_Initialize(ScopeItem*, PageSheet& sheet)
{
    sheet_ = &sheet;
    SelectedControls(0).m_PropertySheet(sheet);
}

void ppgGatherLogs03Step::IMMCPropertyPage_QueryCancel(bool& Allow)
{
    mdlLogs::cancelCurrentProcess(tool(), true);
    Allow = true;
    timerCheckForCancel.setInterval(0);
}

void ppgGatherLogs03Step::IWizardPage_Activate(bool&, int& NextOrFinish, std::string&)
{
    ErrorTrap step{tool(), pageName, "IWizardPage_Activate"};

    step.enterProc();
    step([&] { applyFontToPage(); });
    step([&] { ppgGatherLogs03Step_Auto_Init(); });
    NextOrFinish = nextButtonBeforeChoice();
    step([&] { populateSteps(); });
    tmrDelayStart.setEnabled(true);
    timerCheckForCancel.setInterval(cancelInterval);
    step([&] { applyFontToControls(); });
    step.exitProc();
}

/// The first root is never translated: the pipeline knows the server logs by its text.
void ppgGatherLogs03Step::populateSteps()
{
    ErrorTrap step{tool(), pageName, "populateSteps"};

    step.enterProc();
    step([&] { treeviewSteps.clear(); });
    addSteps(step, std::string(mdlLogs::orvanLogsBranch), &classTraceObject::getOrvanLogs);
    addSteps(step, myLoadResString(tool(), TextId::windowsEventLogs),
             &classTraceObject::getWindowsLogs);
    step.exitProc();
}

/// A list that is empty shows as one step with an empty text.
void ppgGatherLogs03Step::addSteps(ErrorTrap& step, std::string rootText,
                                   StringArray (classTraceObject::*logs)() const)
{
    TreeNode& root = treeviewSteps.add(std::move(rootText));
    const StringArray names = step.value({}, [&] { return (SelectedControls(0).*logs)(); });
    const int last = step.value(0, [&] { return names.upperBound(); });
    for (int index = 1; index <= last; ++index)
        step([&] { treeviewSteps.addChild(root, names.at(index)).ensureVisible(); });
}

void ppgGatherLogs03Step::tmrDelayStart_Timer()
{
    tmrDelayStart.setEnabled(false);
    classTraceObject& job = SelectedControls(0);
    const bool timeFrame = job.m_bTimeFrameLogs;
    std::string folder = mdlLogs::processLogs(
        tool(), treeviewSteps, lblCurrentProcess, progressbarCurrentProcess, progressbarOverall,
        job.m_LogDestinationDirectory, timeFrame ? job.m_dateStart : Date{},
        timeFrame ? job.m_dateEnd : Date{});
    job.m_LogDestinationDirectory = std::move(folder);
    if (!tool().g_bDebugMode) enableNextButton();
    if (sheet_) sheet_->pressNext();
}

void ppgGatherLogs03Step::timerCheckForCancel_Timer()
{
    mdlLogs::cancelCurrentProcess(tool());
}

void ppgGatherLogs03Step::IWizardPage_Back(int& NextPage)
{
    const classTraceObject& job = SelectedControls(0);
    if (job.m_bTimeFrameLogs)
        NextPage = gatherPage::timeFrame;
    else if (job.m_bStandardLogs)
        NextPage = gatherPage::welcome;
    else
        NextPage = gatherPage::logSelection;
    timerCheckForCancel.setInterval(0);
}

void ppgGatherLogs03Step::IWizardPage_Next(int&)
{
    timerCheckForCancel.setInterval(0);
}

void ppgGatherLogs03Step::IWizardPage_Finish()
{
    timerCheckForCancel.setInterval(0);
}
