#pragma once

#include "wizards/wizard_page.h"

/// Page 5 of the gather wizard: tells where the results are, and opens them.
class ppgGatherLogs99Final final : public WizardPage, public IMMCPropertyPage {
public:
    ppgGatherLogs99Final(ToolContext& tool, std::shared_ptr<classTraceObject> shared);

    IMMCPropertyPage* propertyPage() override { return this; }

    void IMMCPropertyPage_Initialize(ScopeItem* Data, PageSheet& sheet) override;
    void IWizardPage_Activate(bool& EnableBack, int& NextOrFinish,
                              std::string& FinishText) override;

    /// Passes over the progress page, so that no gather starts by accident.
    void IWizardPage_Back(int& NextPage) override;

    /// The gather that is over. Raises 424 on a page without one.
    const classTraceObject& job() const { return SelectedControls(0); }

    Label lblCompletionTitle;
    Label lblCompletionStatment;
    Label lblSummary; ///< a caption, an empty line and the folder

    /// Its click raises what starting the explorer raises.
    Button cmdOpenWindowsExplorer;

    /// Enabled once a trace database was made in this run of the tool, by this gather or not.
    Button cmdLaunchQRV;

private:
    void ppgGatherLogs99Final_Auto_Init();
    void updateSummary();
    void cmdOpenWindowsExplorer_Click();
    void cmdLaunchQRV_Click();
};
