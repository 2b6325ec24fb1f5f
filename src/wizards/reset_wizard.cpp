#include "wizards/reset_wizard.h"

#include "core/error_trap.h"
#include "traces/macro_trace_catalogue.h"
#include "traces/reset_traces.h"

#include <utility>

ppgDisableAllTraces0::ppgDisableAllTraces0(ToolContext& tool,
                                           std::shared_ptr<classTraceObject> shared)
    : WizardPage(tool, "ppgDisableAllTraces0", std::move(shared))
{
    declare("lblWelcomeTitle", ControlRole::title, lblWelcomeTitle);
    declare("lblPurpose", ControlRole::description, lblPurpose);
    declare("lblDefinitions", ControlRole::body, lblDefinitions);
    declare("lblWarnings", ControlRole::body, lblWarnings);
    declare("chkDisableAllTraces", ControlRole::choice, chkDisableAllTraces);
    declare("lblPrompt", ControlRole::body, lblPrompt);
    chkDisableAllTraces.onClick = [this] { chkDisableAllTraces_Click(); };
}

void ppgDisableAllTraces0::ppgDisableAllTraces0_Auto_Init()
{
    setCaptions({{chkDisableAllTraces, TextId::resetToDefaultTraces},
                 {lblWarnings, TextId::someMicroTracesRemainOn},
                 {lblPrompt, TextId::toContinueClickFinish},
                 {lblPurpose, TextId::resetWizardPurpose},
                 {lblWelcomeTitle, TextId::resetWelcome}});
}

void ppgDisableAllTraces0::IMMCPropertyPage_Initialize(ScopeItem*, PageSheet& sheet)
{
    SelectedControls(0).m_PropertySheet(sheet);
}

void ppgDisableAllTraces0::IWizardPage_Activate(bool& EnableBack, int& NextOrFinish, std::string&)
{
    applyFontToPage();
    ppgDisableAllTraces0_Auto_Init();
    EnableBack = false;
    NextOrFinish = finishButtonBeforeChoice();
    applyFontToControls();
    mdlTraces::initMacroTraces(tool());
}

void ppgDisableAllTraces0::chkDisableAllTraces_Click()
{
    if (!tool().g_bDebugMode) enableFinishButton();
}

void ppgDisableAllTraces0::IWizardPage_Finish()
{
    ErrorTrap step{tool(), "ppgDisableAllTraces0", "IWizardPage_Finish"};

    step.enterProc();
    if (chkDisableAllTraces.checked()) step([&] { mdlTraces::disableAllTraces(tool()); });
    step.exitProc();
}
