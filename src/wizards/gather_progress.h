#pragma once

#include "wizards/wizard_page.h"

class ErrorTrap;

/// Page 4 of the gather wizard: runs the job shortly after the page is up, and goes on to the next
/// page by itself when the run has returned.
///
/// The run reports to the page's controls. They outlive a sheet that is closed meanwhile, as the
/// sheet lives until the tick that began the run returns.
class ppgGatherLogs03Step final : public WizardPage, public IMMCPropertyPage {
public:
    ppgGatherLogs03Step(ToolContext& tool, std::shared_ptr<classTraceObject> shared);

    IMMCPropertyPage* propertyPage() override { return this; }

    void IMMCPropertyPage_Initialize(ScopeItem* Data, PageSheet& sheet) override;

    /// Asks the run to end, and lets the sheet close at once.
    void IMMCPropertyPage_QueryCancel(bool& Allow) override;

    /// Each arrival starts a run, even while one is under way.
    void IWizardPage_Activate(bool& EnableBack, int& NextOrFinish,
                              std::string& FinishText) override;
    void IWizardPage_Back(int& NextPage) override;
    void IWizardPage_Next(int& NextPage) override;
    void IWizardPage_Finish() override;

    /// What the page runs. Raises 424 when it was given none.
    const classTraceObject& job() const { return SelectedControls(0); }

    Label lblStepTitle;
    Label lblStepDescription;
    TreeView treeviewSteps; ///< a leaf for each log of the job; the current one is bold
    Label lblCurrentProcess;
    ProgressBar progressbarCurrentProcess;
    Label lblOverallProgress;
    ProgressBar progressbarOverall;
    Timer tmrDelayStart;       ///< lets the page paint before the run takes the thread
    Timer timerCheckForCancel; ///< keeps messages coming for the pump inside the run

private:
    void ppgGatherLogs03Step_Auto_Init();
    void populateSteps();
    void addSteps(ErrorTrap& step, std::string rootText,
                  StringArray (classTraceObject::*logs)() const);
    void tmrDelayStart_Timer();
    void timerCheckForCancel_Timer();

    PageSheet* sheet_ = nullptr; ///< the page's own, whose Next the end of a run presses
};
