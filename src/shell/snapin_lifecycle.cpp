#include "core/error_trap.h"
#include "core/localisation.h"
#include "core/utility.h"
#include "platform/host_module.h"
#include "platform/tool_events.h"
#include "server/server_identity.h"
#include "settings/about_box.h"
#include "settings/event_log_language.h"
#include "settings/help.h"
#include "shell/initialize.h"
#include "shell/snapin_identity.h"
#include "shell/snapin_orvan_diagnostics.h"

snapinOrvanDiagnostics::snapinOrvanDiagnostics(ToolContext& tool, Console& console)
    : tool_(tool), console_(console)
{}

snapinOrvanDiagnostics::~snapinOrvanDiagnostics() = default;

void snapinOrvanDiagnostics::SnapIn_Initialize()
{
    ErrorTrap step{tool_, "snapinOrvanDiagnostics", "SnapIn_Initialize"};

    step.enterProc();
    step([&] { InitalizeLanguages(tool_); });
    step([&] { console_.displayName(myLoadResString(tool_, TextId::snapInName)); });
    step([&] { console_.identity().provider = myLoadResString(tool_, TextId::companyName); });
    step([&] {
        console_.identity().description =
            snapinDescription([&](TextId id) { return myLoadResString(tool_, id); });
    });
    step([&] { console_.identity().helpFileName = mdlHTMLHelp::getHelpFileName(tool_); });
    step([&] { console_.identity().version = moduleVersionText(tool_.platform.module); });
    const ServerVersion server = step.value({}, [&] { return mdlOrvan::getVersion(tool_); });
    if (mdlOrvan::logsExtendedFields(server)) tool_.g_bExtendedLogFields = true;
    step.exitProc();
}

void snapinOrvanDiagnostics::SnapIn_Load()
{
    ErrorTrap step{tool_, "snapinOrvanDiagnostics", "SnapIn_Load"};

    step.enterProc();
    step([&] { mdlInitialize::initGlobalVariables(tool_); });
    step([&] { reportServerEvent(tool_, toolEvents::success, toolEvents::loaded, {}); });
    step.exitProc();
}

/// Has no trap: an error goes to the console.
void snapinOrvanDiagnostics::SnapIn_Unload()
{
    const std::string language = mdlLanguage::originalLanguage(tool_);
    if (!language.empty())
        mdlLanguage::changeEventLogLanguage(tool_, language, mdlLanguage::getEventLogKeys(tool_));
    reportServerEvent(tool_, toolEvents::success, toolEvents::unloaded, {});
}
