#pragma once

#include "wizards/wizard_page.h"

class ErrorTrap;

/// Page 1 of the macro trace wizard: tells what a macro trace is, and builds the catalogue anew at
/// each arrival.
class ppgMacroTrace0Welcome final : public WizardPage {
public:
    ppgMacroTrace0Welcome(ToolContext& tool, std::shared_ptr<classTraceObject> shared);

    void IWizardPage_Activate(bool& EnableBack, int& NextOrFinish,
                              std::string& FinishText) override;

    Label lblWelcome;
    Label lblPurpose;
    Label lblDefinitions;

private:
    void ppgMacroTrace0Welcome_Auto_Init();
};

/// Page 3 of the macro trace wizard: lists what the person changed.
class ppgMacroTrace3Final final : public WizardPage {
public:
    ppgMacroTrace3Final(ToolContext& tool, std::shared_ptr<classTraceObject> shared);

    void IWizardPage_Activate(bool& EnableBack, int& NextOrFinish,
                              std::string& FinishText) override;

    Label lblCompletionTitle;
    Label lblCompletionStatment;
    Label lblSummary;

private:
    void ppgMacroTrace3Final_Auto_Init();
    void showSummary(ErrorTrap& step);
};
