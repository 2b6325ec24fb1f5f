#pragma once

#include "wizards/wizard_page.h"

/// The one page of the wizard that resets all traces: a box to tick, and Finish.
class ppgDisableAllTraces0 final : public WizardPage, public IMMCPropertyPage {
public:
    ppgDisableAllTraces0(ToolContext& tool, std::shared_ptr<classTraceObject> shared);

    IMMCPropertyPage* propertyPage() override { return this; }

    /// Raises 424 without a shared object.
    void IMMCPropertyPage_Initialize(ScopeItem* Data, PageSheet& sheet) override;
    void IWizardPage_Activate(bool& EnableBack, int& NextOrFinish,
                              std::string& FinishText) override;
    void IWizardPage_Finish() override;

    Label lblWelcomeTitle;
    Label lblPurpose;
    Label lblDefinitions; ///< no text is ever given to it
    Label lblWarnings;
    CheckBox chkDisableAllTraces;
    Label lblPrompt;

private:
    void ppgDisableAllTraces0_Auto_Init();
    void chkDisableAllTraces_Click();
};
