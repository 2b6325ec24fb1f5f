#include "shell/sheet_definitions.h"

#include "settings/event_log_language_page.h"
#include "settings/log_settings_page.h"
#include "shell/wizard_kinds.h"
#include "wizards/gather_completion.h"
#include "wizards/gather_log_selection.h"
#include "wizards/gather_progress.h"
#include "wizards/gather_time_frame.h"
#include "wizards/gather_welcome.h"
#include "wizards/macro_trace_pages.h"
#include "wizards/macro_trace_step.h"
#include "wizards/micro_trace_wizard.h"
#include "wizards/reset_wizard.h"

namespace {

template <typename Page>
std::unique_ptr<SheetPage> wizardPage(ToolContext& tool,
                                      const std::shared_ptr<classTraceObject>& shared)
{
    return std::make_unique<Page>(tool, shared);
}

template <typename Page>
std::unique_ptr<SheetPage> plainPage(ToolContext& tool, const std::shared_ptr<classTraceObject>&)
{
    return std::make_unique<Page>(tool);
}

} // namespace

const SheetDefinition* sheetDefinition(int kind)
{
    using namespace mdlDefinitions;
    static const SheetDefinition sheets[] = {
        {kindMacroTrace,
         "MacroTrace",
         SheetType::wizard,
         TextId::macroTraceWizardTitle,
         {
             wizardPage<ppgMacroTrace0Welcome>,
             wizardPage<ppgMacroTrace1>,
             wizardPage<ppgMacroTrace3Final>,
         }},
        {kindMicroTrace,
         "MicroTrace",
         SheetType::wizard,
         TextId::microTraceWizardTitle,
         {
             wizardPage<ppgMicroTrace00Welcome>,
             wizardPage<ppgMicroTrace01Step>,
             wizardPage<ppgMicroTrace99Final>,
         }},
        {kindDisableAllTraces,
         "DisableAllTraces",
         SheetType::wizard,
         TextId::resetWizardTitle,
         {
             wizardPage<ppgDisableAllTraces0>,
         }},
        {kindGatherLogFiles,
         "GatherLogFiles",
         SheetType::wizard,
         TextId::gatherWizardTitle,
         {
             wizardPage<ppgGatherLogs00Welcome>,
             wizardPage<ppgGatherLogs01Step>,
             wizardPage<ppgGatherLogs02Step>,
             wizardPage<ppgGatherLogs03Step>,
             wizardPage<ppgGatherLogs99Final>,
         }},
        {kindLogSettings,
         "Logging",
         SheetType::propertySheet,
         TextId::logSettings,
         {plainPage<ppgConfLogSettings>}},
        {kindEventLogLanguage,
         "Kelma Orvan Event Log Language",
         SheetType::propertySheet,
         TextId::eventLogLanguage,
         {plainPage<ppgEventLogLanguage>}},
    };
    for (const SheetDefinition& sheet : sheets)
        if (sheet.kind == kind) return &sheet;
    return nullptr;
}
