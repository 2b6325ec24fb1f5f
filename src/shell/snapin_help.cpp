#include "core/error_trap.h"
#include "platform/desktop.h"
#include "settings/about_box.h"
#include "settings/help.h"
#include "shell/snapin_orvan_diagnostics.h"

void snapinOrvanDiagnostics::SnapIn_Help()
{
    ErrorTrap step{tool_, "snapinOrvanDiagnostics", "SnapIn_Help", countedTrapWithLine};
    step.body([&] {
        step.enterProc();
        step([&] { tool_.platform.desktop.showHelp(mdlHTMLHelp::getHelpFileName(tool_), 0); });
        step.exitProc();
    });
}

void snapinOrvanDiagnostics::ScopeItems_Help(ScopeItem&)
{
    mdlHTMLHelp::showCHMHelp(tool_, mdlHTMLHelp::getHelpFileName(tool_));
}

void snapinOrvanDiagnostics::ResultViews_Help(ResultView&)
{
    mdlHTMLHelp::showCHMHelp(tool_, mdlHTMLHelp::getHelpFileName(tool_));
}

frmAbout& snapinOrvanDiagnostics::showAbout()
{
    if (!about_) about_ = std::make_unique<frmAbout>(tool_);
    about_->show();
    return *about_;
}
