#include "core/error_trap.h"
#include "core/localisation.h"
#include "runtime/required_object.h"
#include "shell/sheet_definitions.h"
#include "shell/snapin_orvan_diagnostics.h"
#include "shell/wizard_kinds.h"
#include "wizards/trace_object.h"

namespace {
constexpr const char* moduleName = "snapinOrvanDiagnostics";
}

void snapinOrvanDiagnostics::startConfigureMacroTraceWizard()
{
    openSheet("startConfigureMacroTraceWizard", mdlDefinitions::kindMacroTrace);
}

void snapinOrvanDiagnostics::startConfigureMicroTracesWizard()
{
    openSheet("startConfigureMicroTracesWizard", mdlDefinitions::kindMicroTrace);
}

void snapinOrvanDiagnostics::startDisableAllTracesWizard()
{
    openSheet("startDisableAllTracesWizard", mdlDefinitions::kindDisableAllTraces);
}

void snapinOrvanDiagnostics::startGatherLogFilesWizard()
{
    openSheet("startGatherLogFilesWizard", mdlDefinitions::kindGatherLogFiles);
}

void snapinOrvanDiagnostics::displayConfigureLogSettingsPSheet()
{
    openSheet("displayConfigureLogSettingsPSheet", mdlDefinitions::kindLogSettings);
}

void snapinOrvanDiagnostics::displayEventLogLanguagePSheet()
{
    openSheet("displayEventLogLanguagePSheet", mdlDefinitions::kindEventLogLanguage);
}

/// What the six routines above share; `routine` is the one that is logged.
void snapinOrvanDiagnostics::openSheet(const char* routine, int kind)
{
    ErrorTrap step{tool_, moduleName, routine};
    PropertySheetProvider& sheets = console_.currentView().propertySheetProvider();
    const SheetDefinition& definition = *sheetDefinition(kind);

    step.enterProc();
    ScopeItem* const subject =
        step.value(nullptr, [&] { return &console_.scopeItems().item(rootKey); });
    m_WizardKind = kind;
    step([&] {
        sheets.createPropertySheet(definition.sheetTitle, definition.type, required(subject));
    });
    step([&] { sheets.addPrimaryPages(); });
    step([&] { sheets.show(1); });
    step.exitProc();
}

void snapinOrvanDiagnostics::clickOpens(const char* handler, OpeningRoutine open)
{
    ErrorTrap step{tool_, moduleName, handler};

    step.enterProc();
    step([&] { (this->*open)(); });
    step.exitProc();
}

void snapinOrvanDiagnostics::mnuconfigureMacroTrace_Click()
{
    clickOpens("mnuconfigureMacroTrace_Click",
               &snapinOrvanDiagnostics::startConfigureMacroTraceWizard);
}

void snapinOrvanDiagnostics::mnuConfigureMicroTraces_Click()
{
    clickOpens("mnuConfigureMicroTraces_Click",
               &snapinOrvanDiagnostics::startConfigureMicroTracesWizard);
}

void snapinOrvanDiagnostics::mnuDisableAllTraces_Click()
{
    clickOpens("mnuDisableAllTraces_Click", &snapinOrvanDiagnostics::startDisableAllTracesWizard);
}

void snapinOrvanDiagnostics::mnuGatherLogFiles_Click()
{
    clickOpens("mnuGatherLogFiles_Click", &snapinOrvanDiagnostics::startGatherLogFilesWizard);
}

void snapinOrvanDiagnostics::mnuConfigureLogSettings_Click()
{
    clickOpens("mnuConfigureLogSettings_Click",
               &snapinOrvanDiagnostics::displayConfigureLogSettingsPSheet);
}

void snapinOrvanDiagnostics::mnuChangeLanguage_Click()
{
    clickOpens("mnuChangeLanguage_Click", &snapinOrvanDiagnostics::displayEventLogLanguagePSheet);
}

void snapinOrvanDiagnostics::Views_CreatePropertyPages(View&, ScopeItem&, OpenSheet& propertySheet)
{
    ErrorTrap step{tool_, moduleName, "Views_CreatePropertyPages"};
    const SheetDefinition* definition = sheetDefinition(m_WizardKind);

    step.enterProc();
    if (!m_TraceObject) m_TraceObject = std::make_shared<classTraceObject>();
    if (definition) {
        const std::string title = myLoadResString(tool_, definition->pageTitle);
        for (const MakePage makePage : definition->pages)
            step([&] { propertySheet.addPage(makePage(tool_, m_TraceObject), title, false); });
    }
    step.exitProc();
}
