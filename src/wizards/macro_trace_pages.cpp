#include "wizards/macro_trace_pages.h"

#include "core/error_trap.h"
#include "core/localisation.h"
#include "runtime/required_object.h"
#include "runtime/text.h"
#include "traces/macro_trace_catalogue.h"

#include <utility>
#include <vector>

namespace {

/// A heading and the names below it.
struct NameList {
    std::string text;
    bool any = false;

    void add(const std::string& name)
    {
        text.append(lineBreak).append("        ").append(name);
        any = true;
    }
};

} // namespace

ppgMacroTrace0Welcome::ppgMacroTrace0Welcome(ToolContext& tool,
                                             std::shared_ptr<classTraceObject> shared)
    : WizardPage(tool, "ppgMacroTrace0Welcome", std::move(shared))
{
    declare("lblWelcome", ControlRole::title, lblWelcome);
    declare("lblPurpose", ControlRole::description, lblPurpose);
    declare("lblDefinitions", ControlRole::body, lblDefinitions);
}

void ppgMacroTrace0Welcome::ppgMacroTrace0Welcome_Auto_Init()
{
    setCaptions({{lblDefinitions, TextId::whatAMacroTraceIs},
                 {lblPurpose, TextId::macroTraceWizardPurpose},
                 {lblWelcome, TextId::macroTraceWelcome}});
}

void ppgMacroTrace0Welcome::IWizardPage_Activate(bool& EnableBack, int& NextOrFinish, std::string&)
{
    applyFontToPage();
    ppgMacroTrace0Welcome_Auto_Init();
    EnableBack = false;
    NextOrFinish = wizardButton::nextEnabled;
    mdlTraces::initMacroTraces(tool());
    applyFontToControls();
}

ppgMacroTrace3Final::ppgMacroTrace3Final(ToolContext& tool,
                                         std::shared_ptr<classTraceObject> shared)
    : WizardPage(tool, "ppgMacroTrace3Final", std::move(shared))
{
    declare("lblCompletionTitle", ControlRole::title, lblCompletionTitle);
    declare("lblCompletionStatment", ControlRole::description, lblCompletionStatment);
    declare("lblSummary", ControlRole::summary, lblSummary);
}

void ppgMacroTrace3Final::ppgMacroTrace3Final_Auto_Init()
{
    setCaptions({{lblCompletionStatment, TextId::macroTracesWereConfigured},
                 {lblCompletionTitle, TextId::macroTraceCompletionTitle}});
}

void ppgMacroTrace3Final::IWizardPage_Activate(bool&, int& NextOrFinish, std::string&)
{
    ErrorTrap step{tool(), "ppgMacroTrace3Final", "IWizardPage_Activate"};

    step.enterProc();
    step([&] { applyFontToPage(); });
    step([&] { ppgMacroTrace3Final_Auto_Init(); });
    NextOrFinish = wizardButton::finishEnabled;
    step([&] { applyFontToControls(); });
    showSummary(step);
    step.exitProc();
}

void ppgMacroTrace3Final::showSummary(ErrorTrap& step)
{
    NameList enabled;
    NameList disabled;
    std::vector<std::string> keys;

    step([&] { lblSummary.setCaption({}); });
    step([&] { enabled.text = myLoadResString(tool(), TextId::macroTracesWereEnabled); });
    step([&] { disabled.text = myLoadResString(tool(), TextId::macroTracesWereDisabled); });
    const auto status = step.value(nullptr, [&] { return SelectedControls(0).dictStatus; });
    step([&] { keys = required(status).keys(); });
    for (const auto& key : keys) (status->item(key) ? enabled : disabled).add(key);

    if (enabled.any) step([&] { lblSummary.setCaption(enabled.text + std::string(lineBreak)); });
    if (disabled.any) step([&] { lblSummary.setCaption(lblSummary.caption() + disabled.text); });
}
